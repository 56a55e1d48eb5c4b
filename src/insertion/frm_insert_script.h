// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"

// Inserts a script tag for the chosen language.
class Frm_InsertScript : public ToolDialog {
    Q_OBJECT

public:
    Frm_InsertScript();
};
