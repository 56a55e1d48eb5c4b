// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QApplication>
#include <QDialog>

// Shows the shared dialog modally to the main window and ends its life when it is closed.
template<class Dialog> void ShowModal() {
    Dialog& dialog = Shared<Dialog>(); // which may have been filled before it is shown
    if (dialog.isVisible()) return;
    QWidget* parent = QApplication::activeWindow();
    // a window that has just ended its life would take the dialog along
    if (!dialog.parentWidget() && parent && parent->isVisible())
        dialog.setParent(parent, dialog.windowFlags());
    dialog.exec();
    Unload<Dialog>();
}
