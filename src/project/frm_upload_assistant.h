// SPDX-License-Identifier: MIT
#pragma once

#include "documents/tool_dialog.h"
#include "project/site_scan.h"
#include "project/upload_run.h"

#include <array>

class FileListModel;
class QCheckBox;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QStackedWidget;
class QTreeView;

// Puts the page, or all files that are reached from it, on a server, in three steps: login, files, status.
class Frm_UploadAssistant : public ToolDialog {
    Q_OBJECT

public:
    Frm_UploadAssistant();
    void OnLoad() override;
    void OnUnload() override;
    void reject() override; // the button, Esc and the frame's X end a running scan or transfer, too

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* MakeLoginStep();
    QWidget* MakeFilesStep();
    QWidget* MakeStatusStep();
    void MakeButtons();
    void OrderTabs();

    bool IsHeldEnter(const QEvent* event);
    void Activate();
    void ShowWizardStep();
    void Next();
    void Back();
    void KeepLogin();
    // Fills the list anew, which brings removed rows back.
    void LoadFiles();
    void RemoveOutsideFiles(const SiteScan::Result& site);
    void RemoveFiles();
    QStringList Folders() const; // of the rows, as UploadRun takes them
    void Upload();
    void ShowBusy(bool busy);
    void ShowProgress(qint64 sent, qint64 all);
    void AppendStatus(const QString& text, UploadRun::Kind kind);

    int WizardStep = 1;
    bool m_left = false;
    quint64 m_enterReleased = 0; // when, in the time of events
    FileListModel* const m_files;
    std::array<QPushButton*, 3> Cmd_Control{};
    QStackedWidget* Frm_Step;
    QLineEdit* Txt_Address;
    QLineEdit* Txt_UserName;
    QLineEdit* Txt_Password;
    QCheckBox* Chk_SaveData;
    QCheckBox* Chk_SavePassword;
    QLineEdit* Txt_Path;
    QCheckBox* Chk_SubFiles;
    QTreeView* Lvw_Files;
    QPushButton* Cmd_LoadNew;
    QPushButton* Cmd_RemoveFile;
    QPlainTextEdit* Txt_Status;
    QProgressBar* Prb_File;
};
