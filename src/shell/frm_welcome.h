// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QDialog>

class QListWidget;
class QPushButton;
class QTabBar;

// The start dialog: new documents, opening a file, browsing alone.
class Frm_Welcome : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_Welcome();
    void OnLoad() override;
    void OnUnload() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Tab_Choice_Click();
    void Cmd_Control(int index);
    void Run();

    QTabBar* Tab_Choice;
    QListWidget* Lvw_StartOption;
    QPushButton* Cmd_Control_0;
    QPushButton* Cmd_Control_1;
    QString m_choice; // tag of the selected item
};
