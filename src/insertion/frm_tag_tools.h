// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_window.h"

class ButtonBar;

// Wraps the selection in a tag pair at a click, or inserts a ready-made tag.
class Frm_TagTools : public ToolWindow {
    Q_OBJECT

public:
    Frm_TagTools();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    ButtonBar* Tlb_Tag;
};
