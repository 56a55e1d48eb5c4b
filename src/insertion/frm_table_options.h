// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"
#include "insertion/table_draft.h"

class QComboBox;
class QLineEdit;
class QRadioButton;

// The look of the table that Frm_Table inserts.
class Frm_TableOptions : public ToolDialog {
    Q_OBJECT

public:
    Frm_TableOptions();
    TableLook Look() const;

private:
    void Show(const TableLook& look);
    void Take();

    QRadioButton* Opt_Frame[3];
    QLineEdit* Txt_Width;
    QLineEdit* Txt_Height;
    QLineEdit* Txt_BackColor;
    QComboBox* Cmb_Default;
};
