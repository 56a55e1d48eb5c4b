// SPDX-License-Identifier: MIT
#include "preview/preview_page.h"

#include "platform/dialogs.h"
#include "platform/literals.h"
#include "preview/browser_address.h"
#include "preview/notice_page.h"

#include <QApplication>
#include <QPalette>
#include <QPointer>
#include <QTimer>
#include <QWebEngineDownloadRequest>
#include <QWebEngineNewWindowRequest>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWidget>
#include <utility>

RequestGuard::RequestGuard(const AccessRule* rule, QObject* parent)
    : QWebEngineUrlRequestInterceptor(parent), m_rule(rule) {}

namespace {

AccessRule::Part PartOf(QWebEngineUrlRequestInfo::ResourceType type) {
    switch (type) {
    case QWebEngineUrlRequestInfo::ResourceTypeXhr:
        return AccessRule::Part::Data;
    case QWebEngineUrlRequestInfo::ResourceTypeSubFrame:
    case QWebEngineUrlRequestInfo::ResourceTypeNavigationPreloadSubFrame:
    case QWebEngineUrlRequestInfo::ResourceTypeObject:
    case QWebEngineUrlRequestInfo::ResourceTypePluginResource:
        return AccessRule::Part::Frame;
    default:
        return AccessRule::Part::Other;
    }
}

} // namespace

void RequestGuard::interceptRequest(QWebEngineUrlRequestInfo& info) {
    const QUrl url = info.requestUrl();
    if (info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame) {
        if (!m_rule->AllowsFetch(url)) info.block(true);
        return;
    }
    const AccessRule::Part part = PartOf(info.resourceType());
    if (m_rule->AllowsPart(url, part, info.firstPartyUrl())) return;
    info.block(true);
    emit Refused(url, part);
}

void PreviewPage::Prepare(QWebEngineProfile* profile) {
    profile->setHttpAcceptLanguage(u"de-DE,de;q=0.9,en;q=0.6"_s);
    QWebEngineSettings* settings = profile->settings();
    // Switched off it would refuse a local page its pictures, styles and links; the guard
    // keeps its scripts in.
    settings->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
    settings->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    settings->setAttribute(QWebEngineSettings::DnsPrefetchEnabled, false);
    settings->setAttribute(QWebEngineSettings::AutoLoadIconsForPage, false);
    settings->setUnknownUrlSchemePolicy(QWebEngineSettings::AllowUnknownUrlSchemesFromUserInteraction);
    // Peer connections do not pass the guard.
    QWebEngineScript script;
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(u"delete window.RTCPeerConnection; delete window.webkitRTCPeerConnection;"_s);
    profile->scripts()->insert(script);
}

PreviewPage::PreviewPage(QWebEngineProfile* profile, AccessRule* rule, QObject* parent)
    : QWebEnginePage(profile, parent), m_rule(rule) {
    connect(this, &QWebEnginePage::loadStarted, this, [this] {
        m_messages.Forget();
        m_refused.clear();
        m_refusedFrames.clear();
    });
    connect(this, &QWebEnginePage::loadFinished, this, [this] {
        m_goingTo = url();
        ShowRefusedFrames();
    });
    connect(this, &QWebEnginePage::newWindowRequested, this, &PreviewPage::NewWindowRequested);
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl& origin, Feature feature) {
                setFeaturePermission(origin, feature, PermissionDeniedByUser);
            });
}

QUrl PreviewPage::ShownAddress() const {
    const QUrl refused = NoticePage::RefusedAddress(url());
    return refused.isValid() ? refused : url();
}

QWidget* PreviewPage::Window() const { return QApplication::activeWindow(); }

// --- where the page may go ------------------------------------------------------------------------

bool PreviewPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
    if (url.scheme() == u"mailto") {
        if (type == NavigationTypeLinkClicked) AskToOpenOutside(url);
        return false;
    }
    if (isMainFrame) return AcceptMainPage(url, type);
    // The engine itself keeps a local page's frames from the network, before the guard is asked.
    const bool refused =
        BrowserAddress::IsNetwork(url) && !m_rule->AllowsPart(url, AccessRule::Part::Frame, m_goingTo);
    if (refused) TellRefused(url, AccessRule::Part::Frame);
    return !refused;
}

bool PreviewPage::AcceptMainPage(const QUrl& url, NavigationType type) {
    if (type == NavigationTypeLinkClicked && url == NoticePage::RefusedAddress(this->url())) {
        QTimer::singleShot(0, this, [url] { Dialogs::OpenAddress(BrowserAddress::ForSystem(url)); });
        return false;
    }
    const QUrl from = type == NavigationTypeRedirect ? m_goingTo : this->url();
    if (!m_rule->AllowsPage(url, from)) {
        ShowRefused(url);
        return false;
    }
    m_goingTo = url;
    if (type != NavigationTypeLinkClicked || !BrowserAddress::IsNetwork(url) ||
        BrowserAddress::IsNetwork(from)) {
        return true;
    }
    // the engine lets no local page go to the network; where the rule does, the view goes by itself
    QTimer::singleShot(0, this, [this, url] { load(url); });
    return false;
}

void PreviewPage::ShowRefused(const QUrl& url) {
    const QPalette palette = QApplication::palette();
    const QUrl notice =
        NoticePage::Refused(url, palette.color(QPalette::Base).name(), palette.color(QPalette::Text).name());
    QTimer::singleShot(0, this, [this, notice] { load(notice); });
}

// --- what the page does not get -------------------------------------------------------------------

void PreviewPage::TellRefused(const QUrl& url, AccessRule::Part part) {
    if (!m_refused.contains(url)) m_refused.append(url);
    if (part == AccessRule::Part::Frame && !m_refusedFrames.contains(url)) m_refusedFrames.append(url);
    if (isLoading()) return;
    emit StatusText(RefusedText());
    QTimer::singleShot(0, this, &PreviewPage::ShowRefusedFrames);
}

QString PreviewPage::RefusedText() const {
    if (m_refused.isEmpty()) return {};
    const QString first = u"Nicht geladen: "_s + BrowserAddress::Shown(m_refused.constFirst());
    return m_refused.size() == 1 ? first : first + u" und %1 weitere"_s.arg(m_refused.size() - 1);
}

// A frame that stays empty would look like a fault of the page. The notice takes the place of what the frame
// shows and changes nothing of the page itself.
void PreviewPage::ShowRefusedFrames() {
    const QPalette palette = QApplication::palette();
    for (const QUrl& url : std::exchange(m_refusedFrames, {})) {
        const QUrl notice = NoticePage::RefusedFrame(url, palette.color(QPalette::Base).name(),
                                                     palette.color(QPalette::Text).name());
        const QString script = u"for (const frame of document.querySelectorAll('iframe, frame')) {"
                               "if (frame.src === '%1') frame.contentWindow.location.replace('%2'); }"_s;
        runJavaScript(script.arg(QString::fromLatin1(url.toEncoded()).replace(u'\'', u"\\'"_s),
                                 QString::fromLatin1(notice.toEncoded())),
                      QWebEngineScript::ApplicationWorld);
    }
}

// --- what is handed on ----------------------------------------------------------------------------

void PreviewPage::NewWindowRequested(QWebEngineNewWindowRequest& request) {
    const QUrl url = request.requestedUrl();
    if (!request.isUserInitiated()) {
        emit StatusText(u"Die Seite wollte von sich aus ein Fenster öffnen."_s);
    } else if (BrowserAddress::CanOpenOutside(url)) {
        AskToOpenOutside(url);
    } else {
        emit StatusText(u"Die Vorschau zeigt keine weiteren Fenster."_s);
    }
}

void PreviewPage::AskForDownload(QWebEngineDownloadRequest* download) {
    const QUrl url = download->url();
    download->cancel();
    if (BrowserAddress::CanOpenOutside(url)) {
        AskToOpenOutside(url);
    } else {
        emit StatusText(u"Die Vorschau lädt keine Dateien herunter."_s);
    }
}

void PreviewPage::AskToOpenOutside(const QUrl& url) {
    if (m_asking) return; // one question at a time, however many the page would like
    m_asking = true;
    QTimer::singleShot(0, this, [this, url] {
        const QPointer<PreviewPage> self = this;
        const QString question =
            url.scheme() == u"mailto"
                ? u"Möchten Sie eine E-Mail an diese Adresse schreiben?"_s
                : u"Die Vorschau zeigt das nicht selbst. Soll es in Ihrem Browser geöffnet "
                  "werden?"_s;
        const QString shown = url.scheme() == u"mailto" ? url.path() : BrowserAddress::Shown(url);
        const auto answer = Dialogs::MsgBox({u"HTML Vorschau"_s, question + u"\r\n\r\n"_s + shown,
                                             Dialogs::Icon::Question, Dialogs::Buttons::YesNo});
        if (answer == Dialogs::Answer::Yes) Dialogs::OpenAddress(BrowserAddress::ForSystem(url));
        if (self) self->m_asking = false;
    });
}

// --- scripts --------------------------------------------------------------------------------------

void PreviewPage::javaScriptAlert(const QUrl&, const QString& text) { m_messages.Alert(Window(), text); }

bool PreviewPage::javaScriptConfirm(const QUrl&, const QString& text) {
    // the view's own question before a page is left comes in English
    const bool leaving =
        text == QCoreApplication::translate("QWebEnginePage",
                                            "Are you sure you want to leave this page? Changes that "
                                            "you made may not be saved.");
    return m_messages.Confirm(
        Window(), leaving
                      ? u"Möchten Sie diese Seite verlassen? Was Sie dort eingegeben haben, geht verloren."_s
                      : text);
}

bool PreviewPage::javaScriptPrompt(const QUrl&, const QString& text, const QString& preset, QString* result) {
    return m_messages.Prompt(Window(), text, preset, result);
}

void PreviewPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& text, int line,
                                           const QString& source) {
    if (level != ErrorMessageLevel || NoticePage::RefusedAddress(QUrl(source)).isValid()) return;
    emit StatusText(u"Skriptfehler in Zeile %1: %2"_s.arg(line).arg(text));
}
