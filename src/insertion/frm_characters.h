// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_window.h"

class ButtonBar;

// Inserts entities at a click.
class Frm_Characters : public ToolWindow {
    Q_OBJECT

public:
    Frm_Characters();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    ButtonBar* Tlb_Characters;
};
