// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"
#include "insertion/entry_list.h"

class QCheckBox;
class QComboBox;

// Builds style rules element by element; stays open for the next one.
class Frm_InsertStyle : public ToolDialog {
    Q_OBJECT

public:
    Frm_InsertStyle();
    void OnLoad() override;

private:
    void Cmb_Object_Change();
    void Insert();

    QComboBox* Cmb_Object;
    QListWidget* Lst_AllAttributes;
    QLineEdit* Txt_AttributeValue;
    QCheckBox* Chk_Option_0; // one line
    QCheckBox* Chk_Option_1; // lines
    EntryList m_entries;
};
