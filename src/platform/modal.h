// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QApplication>
#include <QDialog>

// Shows the shared dialog modally to the main window and ends its life when it is closed.
template <class Dialog> void ShowModal() {
    if (Loaded<Dialog>()) return;
    Dialog& dialog = Shared<Dialog>();
    if (!dialog.parentWidget()) dialog.setParent(QApplication::activeWindow(), dialog.windowFlags());
    dialog.exec();
    Unload<Dialog>();
}
