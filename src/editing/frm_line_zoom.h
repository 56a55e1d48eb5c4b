// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QDialog>

class Txt_Code;

// The line at the caret in a box of its own, where it is not wrapped. However the window is closed, the line
// goes back into the code box.
class Frm_LineZoom : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_LineZoom();
    void OnLoad() override;
    void OnUnload() override;

    // Selects the current line in the code box and returns it.
    QString ReadCurrentLine();
    // Writes the zoom box back over that selection.
    void SaveLine();

private:
    void Txt_LineZoom_KeyUp(int key);

    Txt_Code* const Txt_LineZoom;
    bool m_enterTyped = false; // in the box, and not in the menu that has opened the window
};
