// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

class QUrl;
class QWebEngineView;

// The help window: the pages of the program's folder "support".
class Frm_Help : public QWidget, public SharedWindow {
    Q_OBJECT

public:
    Frm_Help();
    // Shows the window and brings it to the front.
    void BringToFront();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildBrowser();
    void ShowMenu(const QPoint& place);

    QWebEngineView* Browser = nullptr; // made on first show: it is the dearest part of the program
};

namespace Help {

// Whether the help window shows the address itself; all others belong to the user's own browser.
bool IsOwnPage(const QUrl& address);

} // namespace Help
