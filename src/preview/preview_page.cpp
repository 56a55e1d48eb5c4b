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
    const bool allowed =
        info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeMainFrame
            ? m_rule->AllowsFetch(info.requestUrl())
            : m_rule->AllowsPart(info.requestUrl(), PartOf(info.resourceType()), info.firstPartyUrl());
    if (!allowed) info.block(true);
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
    connect(this, &QWebEnginePage::loadStarted, this, [this] { m_messages.Forget(); });
    connect(this, &QWebEnginePage::loadFinished, this, [this] { m_goingTo = url(); });
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
    return !isMainFrame || AcceptMainPage(url, type);
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
