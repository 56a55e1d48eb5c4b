// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"
#include "project/site_scan.h"

class FileListModel;
class FolderChooser;
class QPushButton;

// Copies the document and everything that it needs into a folder, in the layout that it has on the disk.
class Frm_ProjectBackUp : public ToolDialog {
    Q_OBJECT

public:
    Frm_ProjectBackUp();
    void OnUnload() override;
    void reject() override; // the button, Esc and the frame's X end a running scan or copy, too
    // Scans the document's site; its files are listed.
    void StartCheck();
    // Copies the files listed to the chosen folder and ends the window. What is missing in the copy is told
    // in the main window.
    void CopyProjectFiles();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void ShowInfo();
    void Open(bool open);

    bool m_left = false;
    FileListModel* const m_files;
    FolderChooser* const m_folder;
    QPushButton* m_save = nullptr;
    QPushButton* m_info = nullptr;
    SiteScan::Result m_site;
    QString m_root;
};
