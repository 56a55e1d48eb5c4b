// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QDialog>

class QComboBox;
class Txt_Code;

// The texts that Ctrl+0 to Ctrl+9 insert in the code box. Only its first button stores a text.
class Frm_KeyCombo : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_KeyCombo();
    void OnLoad() override;
    void OnUnload() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    // The stored text of the selected combination.
    QString& StoredText() const;
    void Cmb_Keys_Click();
    void Cmd_Control(int index);

    QComboBox* Cmb_Keys;
    Txt_Code* Txt_InsertText;
};
