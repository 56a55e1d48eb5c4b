// SPDX-License-Identifier: MIT
#include "editing/plain_text_box.h"

#include "documents/txt_code.h"

#include <QCursor>
#include <QMenu>

Txt_Code* MakePlainTextBox(const QString& name, const QString& label) {
    auto* box = new Txt_Code;
    box->setObjectName(name);
    box->setAccessibleName(label);
    box->setFrameShape(QFrame::StyledPanel);
    box->events.mouseDown = [box](int button, int, double, double) {
        if (button != 2) return;
        QMenu* menu = box->createStandardContextMenu();
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->popup(QCursor::pos());
    };
    return box;
}
