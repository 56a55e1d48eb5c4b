// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"

#include <QDialog>

class ClipView;
class QAction;
class QLabel;
class QListWidget;
class QScrollBar;
class QToolBar;

// The library of pictures: its folders at the left, the chosen one's pictures as thumbnails at the right.
// Stays open beside the document, and puts a copy of a picture into the site and its name or tag into the
// page.
class Frm_PAB : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_PAB();
    void OnLoad() override;
    void OnUnload() override;
    void Present();

    // Fills the folder list anew; none is chosen then.
    void ListClipFolders();
    // Shows the files of that folder of the library; of its root for an empty name.
    void ShowFolderClips(const QString& folder);

    enum class Mode { FileName, ImgTag };
    // Copies the picture into the site and writes its name or its tag at the caret.
    void InsertClip(const QString& path, Mode mode);

    void reject() override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildToolBar();
    void BuildLists();
    void BuildStatusBar();
    void ActivateButtons();
    void Locate();
    bool MakeRoot();

    void SelectFolder();
    void ShowChosen();
    void ShowSizes();
    void ShowPanel(int panel, const QString& text);
    void ShowProgress(int percent);
    void Scroll(int value);
    void BringChosenIntoSight();
    void Wheel(int angle); // eighths of a degree

    void View();
    void ImportClipFile();
    void CreateClipFolder();
    void KillFile();
    void KillFolder();

    QToolBar* ToolBar;
    QListWidget* Lvw_Folders;
    QWidget* Pic_ShowGraphics;
    ClipView* Pic_ViewScreen;
    QScrollBar* Scr_ScrollGraphics;
    QList<QLabel*> m_panels;
    QAction* m_view;
    QAction* m_import;
    QAction* m_killFile;
    QAction* m_killFolder;
    int m_wheel = 0; // angle that has not moved the sheet yet

    QString ClipRoot;
    bool ClipsMissing = false;
    QString SelectedClip;
    QString SelectedFolder;
    bool ClipWindowStarted = false;
};
