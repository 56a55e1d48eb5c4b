// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_window.h"

class QLabel;
class QLineEdit;

// The Kestrische Color Circuit: sixteen colours to choose from.
class Frm_KCC : public ToolWindow {
    Q_OBJECT

public:
    Frm_KCC();

private:
    void Img_ColorChoice_Click(int index);

    QLabel* Picture1;
    QLineEdit* Txt_ColorName;
    QLineEdit* Txt_ColorHex;
    QString m_hex; // of the colour chosen; empty before the first choice
};
