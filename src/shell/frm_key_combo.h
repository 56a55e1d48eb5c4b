// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"

class QComboBox;
class Txt_Code;

// The texts that Ctrl+0 to Ctrl+9 insert in the code box. Only its first button stores a text.
class Frm_KeyCombo : public ToolDialog {
    Q_OBJECT

public:
    Frm_KeyCombo();
    void OnLoad() override;
    void OnUnload() override;

private:
    // The stored text of the selected combination.
    QString& StoredText() const;
    void Cmb_Keys_Click();

    QComboBox* Cmb_Keys;
    Txt_Code* Txt_InsertText;
};
