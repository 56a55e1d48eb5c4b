// SPDX-License-Identifier: MIT
#include "shell/update_check.h"

#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/literals.h"
#include "platform/modal.h"
#include "shell/addresses.h"
#include "shell/frm_load.h"
#include "shell/frm_new_update.h"

#include <QElapsedTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>
#include <memory>

namespace UpdateCheck {

namespace {

constexpr qsizetype LargestPage = 64 * 1024; // bytes; a title further behind does not count
constexpr double Round = 0.005;              // seconds between two looks at the answer

QNetworkRequest RequestFor(const QUrl& address) {
    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setHeader(QNetworkRequest::UserAgentHeader, u"Sorvane HTML Editor"_s);
    request.setRawHeader("Accept-Encoding", "identity");
    request.setMaximumRedirectsAllowed(5);
    return request;
}

bool IsWebAddress(const QUrl& address) {
    return address.isValid() && (address.scheme() == u"http" || address.scheme() == u"https");
}

// The page as far as it has come, no more than LargestPage of it.
class Download {
public:
    explicit Download(const QUrl& address) : m_reply(m_manager.get(RequestFor(address))) {
        m_reply->setReadBufferSize(LargestPage);
    }
    ~Download() { m_reply->abort(); }
    Download(const Download&) = delete;
    Download& operator=(const Download&) = delete;

    // Takes what has come; returns whether that is all that is wanted.
    bool Take() {
        m_page += m_reply->read(LargestPage - m_page.size());
        return m_page.size() >= LargestPage || m_reply->isFinished();
    }
    bool Succeeded() const {
        const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        return m_reply->error() == QNetworkReply::NoError && status >= 200 && status < 300;
    }
    const QByteArray& Page() const { return m_page; }

private:
    QNetworkAccessManager m_manager;
    std::unique_ptr<QNetworkReply> m_reply;
    QByteArray m_page;
};

} // namespace

Outcome Look(const Question& question) {
    const auto status = [&](const QString& text) {
        if (question.status) question.status(text);
    };
    status(u"Suche neues Update im Internet..."_s);
    Events::DoEvents();
    const QUrl address(question.address);
    if (!IsWebAddress(address)) return Outcome::NoUpdate;
    QElapsedTimer clock; // the time of day may jump
    clock.start();
    Download download(address);
    while (!download.Take()) {
        Events::DoEvents();
        if (static_cast<double>(clock.elapsed()) >= question.timeOut * 1000) {
            status(u"Timeout..."_s);
            Events::Wait(question.pause);
            return Outcome::TimedOut;
        }
        Events::Sleep(Round);
    }
    if (!download.Succeeded()) return Outcome::NoUpdate;
    return TellsOfUpdate(TitleOf(download.Page())) ? Outcome::NewUpdate : Outcome::NoUpdate;
}

void CheckForUpdate(const QString& address) {
    if (Addresses::IsPlaceholder(address)) return;
    Question question;
    question.address = address;
    question.status = [](const QString& text) { Shared<Frm_Load>().SetStatus(text); };
    const Outcome outcome = Look(question);
    if (outcome == Outcome::TimedOut) Dialogs::Beep();
    if (outcome != Outcome::NewUpdate) return;
    Unload<Frm_Load>();
    ShowModal<Frm_NewUpdate>();
}

} // namespace UpdateCheck
