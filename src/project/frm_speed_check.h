// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QDialog>

class FileListModel;
class QTreeView;
class QTreeWidget;

// Shows what the document costs the one who loads it: the files, their sizes, and how long they take.
class Frm_SpeedCheck : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_SpeedCheck();
    ~Frm_SpeedCheck() override;
    void OnUnload() override;
    void reject() override; // the button, Esc and the frame's X end a running count, too

protected:
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

private:
    void Run();

    bool m_left = false;
    bool m_running = false;
    bool m_repeats = false; // coming back to the window counts anew
    FileListModel* const m_files;
    QTreeView* const Lvw_Files;
    QTreeWidget* const Lvw_Message;
};
