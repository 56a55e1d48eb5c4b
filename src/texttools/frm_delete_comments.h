// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"

class QRadioButton;

// Takes the comments out of the document, behind a backup copy of the file if that is wanted.
class Frm_DeleteComments : public ToolDialog {
    Q_OBJECT

public:
    Frm_DeleteComments();

private:
    void Delete();

    QRadioButton* const Opt_BackUp_0;
    QRadioButton* const Opt_BackUp_1;
};
