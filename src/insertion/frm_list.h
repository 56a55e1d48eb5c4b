// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"

class QComboBox;
class QLineEdit;
class QRadioButton;

// Inserts an ordered or unordered list with one entry.
class Frm_List : public ToolDialog {
    Q_OBJECT

public:
    Frm_List();

private:
    void Opt_ListType_Click(bool ordered);
    void Insert();

    QRadioButton* Opt_ListType_0; // ordered
    QRadioButton* Opt_ListType_1;
    QComboBox* Cmb_ListType;
    QLineEdit* Txt_Start;
};
