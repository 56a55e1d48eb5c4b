// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"
#include "insertion/entry_list.h"

// Inserts a meta tag for each entry with a check mark.
class Frm_MetaTags : public ToolDialog {
    Q_OBJECT

public:
    Frm_MetaTags();
    void OnLoad() override;

private:
    void Insert();

    QListWidget* Lst_Attributes;
    QLineEdit* Txt_AttributeValue;
    EntryList m_entries;
};
