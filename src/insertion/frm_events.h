// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_window.h"

// Inserts the name of a script event as soon as it is chosen.
class Frm_Events : public ToolWindow {
    Q_OBJECT

public:
    Frm_Events();
};
