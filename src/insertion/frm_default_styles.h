// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"

class QListWidget;

// Copies one of the ready-made style sheets beside the page and links it.
class Frm_DefaultStyles : public ToolDialog {
    Q_OBJECT

public:
    Frm_DefaultStyles();
    void OnLoad() override;
    void OnUnload() override;

private:
    void Lst_Design_Click(int row);
    void Insert();
    void CopyAndLink(const QString& source, const QString& target);

    QListWidget* Lst_Design;
    QLabel* Pic_PreView;
    QPushButton* m_insert;
    bool m_linkWritten = false;
};
