// SPDX-License-Identifier: MIT
#pragma once

#include "platform/mdi_child.h"
#include "project/index_history.h"
#include "project/link_scanner.h"
#include "project/project_file.h"

#include <vector>

class FileListModel;
struct FileListRow;
class QAction;
class QToolBar;
class QTreeView;

// The files that the open page reaches, and those that the user has added to the project by hand. Docked at
// the main window's left edge.
class Frm_ProjectManager : public MdiChild {
    Q_OBJECT

public:
    Frm_ProjectManager();
    ~Frm_ProjectManager() override;
    void OnLoad() override;
    void OnUnload() override;

    // Scans anew from the current document and lists what it reaches. Lets events run meanwhile: the window
    // may be gone behind it.
    void SearchLinks();
    // Forgets the pages gone through, so that the next page opened begins a project of its own.
    void DeleteFileIndex();
    // The project's index page: the first page gone through, or the current document.
    QString ReturnIndexFile() const;
    // Rewrites the project file with the files added by hand; returns false when that failed.
    bool SaveExtendedFiles();
    // Lays out the window and, unless `keepOthers`, those beside it.
    void ActualizeSize(bool keepOthers);
    // Draws both lists anew. The files are not looked for.
    void Refresh();
    // Shows the window and leaves the focus where it is.
    void ShowBeside();

    bool ScanFinished = true;

protected:
    void PlaceChanged(int state) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class List { None, Files, ExtendedFiles };
    static constexpr int FirstWidth = 2200; // twips

    void BuildToolBar();
    void BuildNewButtonMenu();
    void BuildLists();
    QTreeView* MakeList(const QString& name, FileListModel* model, std::initializer_list<int> characters);
    void DockFrame();
    void ShowSkin();
    void LayOut();
    static void GiveRoom();
    bool HandleListKey(List list, QEvent* event);
    void MoveDivider(double pointer);

    void Select(List list, int row);
    void ClearSelection();
    void ActivateButtons();
    void FinishScan();
    void AddFoundRow(const LinkRow& row);
    void ShowFoundRows();
    void LetEventsRun();
    void ShowScanCaption();
    bool IsScanning(unsigned scan) const { return m_open && m_scan == scan; }

    void LoadExtendedFiles();
    void FillExtendedFileList();
    void TellLoadFailure() const;
    void TellSaveFailure() const;

    // Runs a routine behind the present event: it may end the window, which its own controls must survive.
    void Later(void (Frm_ProjectManager::*routine)());
    bool AskToSave(const QString& question);
    void Push();
    void OpenFromList(QString path); // a copy: the scan clears the selected row
    void Lvw_Files_DblClick();
    void Lvw_ExtendedFiles_DblClick();
    void Back_Click();
    void Open_Click();
    void Delete_Click();
    void GoTo_Click();
    void New_Click();
    void NewMenu_Click();
    void DeleteFile();
    void RemoveFromProject();
    void InsertFile();

    QToolBar* Tlb_Navigation;
    QTreeView* Lvw_Files;
    QTreeView* Lvw_ExtendedFiles;
    QWidget* Pic_Resize; // the divider between them
    QAction* m_back;
    QAction* m_openFile;
    QAction* m_delete;
    QAction* m_goTo;
    QAction* m_new;
    QString m_newKind; // key of the menu entry chosen last
    FileListModel* m_files;
    FileListModel* m_extendedFiles;

    LinkScanner m_scanner;
    std::vector<FileListRow> m_found; // told by the scan, not shown yet
    double m_eventsRun = 0;           // when events ran last, in seconds since midnight
    double m_rowsShown = 0;           // when rows were shown last
    unsigned m_scan = 0;              // number of the scan that runs or has run last

    IndexHistory m_history;
    ProjectFile m_project; // closed without a document on disk
    QString m_toldPath;    // the project file whose loading failed last

    // The row clicked last.
    QString SelectedText;
    QString SelectedTag;
    QString SelectedLinkedFrom;
    QString SelectedLinkName;
    List SelectedList = List::None;

    float SplitPercent = 70; // of the lists' height, for the upper one
    float SplitLastTop = 0;  // of the divider, twips
    bool m_open = false;     // from load to unload
    bool m_fitting = false;
};
