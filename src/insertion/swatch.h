// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QLabel>

// Fills the label with the colour, whatever the desktop's palette.
inline void ShowSwatch(QLabel& label, const QColor& color) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::Window, color);
    label.setPalette(palette);
    label.setAutoFillBackground(true);
}
