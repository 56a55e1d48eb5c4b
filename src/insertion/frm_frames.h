// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"

// Inserts one of nine ready-made framesets.
class Frm_Frames : public ToolDialog {
    Q_OBJECT

public:
    Frm_Frames();

private:
    QString m_kind;
};
