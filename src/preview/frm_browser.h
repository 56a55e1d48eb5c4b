// SPDX-License-Identifier: MIT
#pragma once

#include "platform/mdi_child.h"
#include "preview/access_rule.h"

#include <QWebEngineProfile>
#include <cstdint>
#include <optional>

class PreviewPage;
class PreviewView;
class QStackedLayout;

// The preview: a page in a browser view.
class Frm_Browser : public MdiChild {
    Q_OBJECT

public:
    Frm_Browser();
    ~Frm_Browser() override;
    void OnLoad() override;
    void OnUnload() override;

    // Shows a path or an address.
    void Navigate(const QString& url);
    // The same for an address that the user entered himself: it may come from the network.
    void NavigateByUser(const QString& url);
    // Browsing without a document: the network is open until a document is previewed.
    void SetBrowsingAlone(bool alone) { m_rule.browsingAlone = alone; }
    void GoBack();
    void GoForward();
    void Refresh();
    void Stop();
    // The address of what is shown, as the user reads it.
    QString Address() const;
    // What the last StatusTextChange said of it, the mouse aside.
    QString Status() const { return m_restStatus; }

    void SetOffline(bool offline) { m_rule.offline = offline; }
    bool Offline() const { return m_rule.offline; }

    // Fits the window to the room that the main window has for it, while BrowserFitMode is 2.
    void ActualizeSize();
    void Fit(bool fit);
    // Gives the window a place of its own, in twips.
    void Place(int left, int top, int width, int height);

    std::int16_t BrowserFitMode = 0; // 2 while the window is held to the main window's client area

signals:
    void StatusTextChange(const QString& text);
    void TitleChange(const QString& text);
    void DocumentComplete(const QString& url);

protected:
    void PlaceChanged(int state) override;
    void Activated() override;

private:
    QWidget* MakeCrashNotice();
    void MakePage();
    void ReplaceStuckPage();
    void LoadFinished(bool ok);
    void ShowCaption();
    void TakeFocus();

    AccessRule m_rule;
    QWebEngineProfile m_profile;
    PreviewView* Browser;
    PreviewPage* m_page = nullptr;
    QStackedLayout* m_layers;
    QWidget* m_crashNotice;
    QString m_restStatus;                 // shown while the mouse is over no link
    std::optional<double> m_loadingSince; // while a page is being loaded, in seconds since midnight

    int BrowserSavedLeft = 0;
    int BrowserSavedTop = 0;
    int BrowserSavedWidth = 9000;
    int BrowserSavedHeight = 6000;
};
