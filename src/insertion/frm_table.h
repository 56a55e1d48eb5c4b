// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"
#include "insertion/table_draft.h"

class QLineEdit;
class QTableView;
class TableModel;

// Lays out a table in a grid, inserts it, and keeps drafts in files.
class Frm_Table : public ToolDialog {
    Q_OBJECT

public:
    Frm_Table();

    const TableLook& Look() const { return m_look; }
    // Takes over what Frm_TableOptions holds.
    void GetOptions();
    // Asks for a table file and fills the grid with it.
    void LoadFile();

    // Esc and the frame's X ask first about a draft that is neither saved nor inserted.
    void reject() override;

private:
    void Size_Change();
    void Field_Change(const QString& text);
    void EnterCell();
    void ShowCell();
    void Insert();
    bool Save();
    bool WriteFile(const QString& path);
    void ShowSize();

    TableModel* m_model;
    QTableView* Flx_Table;
    QLineEdit* Txt_Rows;
    QLineEdit* Txt_Cols;
    QLineEdit* Txt_FieldText;
    TableLook m_look;
    bool m_changed = false; // since the draft was loaded or saved
};
