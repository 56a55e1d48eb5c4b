// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_window.h"

#include <array>

class QLabel;
class QSlider;

// Mixes a colour from its three parts and inserts it.
class Frm_Color : public ToolWindow {
    Q_OBJECT

public:
    Frm_Color();

private:
    void Sld_RGB_Change();

    std::array<QSlider*, 3> Sld_RGB;
    QLabel* Pic_ShowColor;
};
