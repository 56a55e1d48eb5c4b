// SPDX-License-Identifier: MIT
#pragma once

#include "preview/access_rule.h"
#include "preview/page_messages.h"

#include <QList>
#include <QWebEnginePage>
#include <QWebEngineUrlRequestInterceptor>

class QWebEngineDownloadRequest;
class QWebEngineNewWindowRequest;

// Refuses what the rule does not allow to be fetched.
class RequestGuard : public QWebEngineUrlRequestInterceptor {
    Q_OBJECT

public:
    explicit RequestGuard(const AccessRule* rule, QObject* parent = nullptr);
    void interceptRequest(QWebEngineUrlRequestInfo& info) override;

signals:
    // A part of the page has been refused.
    void Refused(const QUrl& url, AccessRule::Part part);

private:
    const AccessRule* m_rule;
};

// The page of the preview: keeps to the rule and hands on to the user's browser what it does not do itself.
class PreviewPage : public QWebEnginePage {
    Q_OBJECT

public:
    // `rule` must outlive the page.
    PreviewPage(QWebEngineProfile* profile, AccessRule* rule, QObject* parent);

    // Sets up a profile for the preview: nothing on disk, no reach beyond the page.
    static void Prepare(QWebEngineProfile* profile);
    // The address that the user sees for what is loaded.
    QUrl ShownAddress() const;
    // Remembers a part that the page does not get, and tells of it as soon as the page stands.
    void TellRefused(const QUrl& url, AccessRule::Part part);
    // What of the page was refused, in a few words; empty when nothing was.
    QString RefusedText() const;
    // Asks whether a download is to be made by the user's browser, and cancels it here.
    void AskForDownload(QWebEngineDownloadRequest* download);

signals:
    // What the page has to tell: the address under the mouse, a fault of its script.
    void StatusText(const QString& text);

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    void javaScriptAlert(const QUrl& origin, const QString& text) override;
    bool javaScriptConfirm(const QUrl& origin, const QString& text) override;
    bool javaScriptPrompt(const QUrl& origin, const QString& text, const QString& preset,
                          QString* result) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& text, int line,
                                  const QString& source) override;

private:
    bool AcceptMainPage(const QUrl& url, NavigationType type);
    void ShowRefused(const QUrl& url);
    void ShowRefusedFrames();
    void NewWindowRequested(QWebEngineNewWindowRequest& request);
    // Asks the user, as soon as the view has returned to the event loop, and opens the address in his
    // browser.
    void AskToOpenOutside(const QUrl& url);
    QWidget* Window() const;

    AccessRule* m_rule;
    PageMessages m_messages;
    QList<QUrl> m_refused;       // parts of the page, each once
    QList<QUrl> m_refusedFrames; // those of them that no notice stands for yet
    QUrl m_goingTo;              // last address that the main page was let go to
    bool m_asking = false;
};
