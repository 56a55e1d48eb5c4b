// SPDX-License-Identifier: MIT
#include "project/frm_project_manager.h"

#include "documents/code_access.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "project/file_list_model.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QToolBar>
#include <QTreeView>
#include <utility>

namespace {

const QString Caption = QStringLiteral("ProjektManager");

const QString ScanCaption = QStringLiteral("ProjektManager wird aktualisiert...");

// A scan goes through thousands of links a second; events and rows wait this long at most, in seconds.
constexpr double EventsEvery = 0.01;
constexpr double RowsEvery = 0.1;

// Midnight turns the clock back, and what waits is due then.
bool IsDue(double since, double interval) {
    const double passed = Events::SecondsSinceMidnight() - since;
    return passed >= interval || passed < 0;
}

} // namespace

Frm_ProjectManager::Frm_ProjectManager()
    : Tlb_Navigation(new QToolBar(this)),
      m_files(new FileListModel(
          {u"Datei"_s, u"Titel"_s, u"Verzeichnis"_s, u"Verlinkt von"_s, u"Linkname"_s, u"Dateityp"_s}, this)),
      m_extendedFiles(new FileListModel({u"Datei"_s, u"Verzeichnis"_s, u"Dateityp"_s}, this)) {
    setObjectName(u"Frm_ProjectManager"_s);
    BuildToolBar();
    BuildLists();
    setFocusProxy(Lvw_Files);
    SetCaption(Caption, Icons::Named(u"project_manager"));
    DockFrame();
}

Frm_ProjectManager::~Frm_ProjectManager() = default;

void Frm_ProjectManager::OnLoad() {
    m_open = true;
    ShowSkin();
    SplitPercent = 70;
    Global::AutoScan = true;
    LoadExtendedFiles();
    Global::ProjectWindowOpen = true;
    Neighbours::ActivateFunktions();
    BuildNewButtonMenu();
    if (Global::AssistantOpen) {
        Neighbours::RunAnimation(
            1, u"In diesem Fenster werden alle HTML-Dateien angezeigt, die von dieser Seite erreichbar sind. "
               "Doppelklicken Sie auf eine Datei, um sie zu öffnen. Sie können auch Dateien löschen oder "
               "sich mit "
               "der Schaltflache 'Gehe zu' den Link anzeigen lassen. Um diese Funktion voll auszunutzen, "
               "laden Sie "
               "die Index-Datei des Projektes. Sollte der ProjektManager keine Dateien mehr finden, obwohl "
               "in der "
               "Titelleiste steht, das er aktualisiert wird, schließen sie die Vorschau."_s);
    }
    ActivateButtons();
    SetPlace(0, 0, FirstWidth, Height());
}

void Frm_ProjectManager::OnUnload() {
    Global::ProjectWindowOpen = false;
    m_open = false; // ends a scan that runs
    SaveExtendedFiles();
    Neighbours::ActivateFunktions();
    GiveRoom();
}

void Frm_ProjectManager::ShowBeside() {
    QMdiSubWindow* active = Host() ? Host()->activeSubWindow() : nullptr;
    BringToFront();
    if (active && active != Frame()) Host()->setActiveSubWindow(active);
}

void Frm_ProjectManager::Refresh() {
    Lvw_Files->viewport()->update();
    Lvw_ExtendedFiles->viewport()->update();
}

// --- the scan
// ------------------------------------------------------------------------------------------------

void Frm_ProjectManager::SearchLinks() {
    if (!m_open) return;
    const unsigned scan = ++m_scan; // one that runs already ends
    m_found.clear();
    m_files->Clear();
    if (!Global::AutoScan) {
        if (!ScanFinished) FinishScan();
        return;
    }
    ScanFinished = false;
    SetCaption(ScanCaption);
    ShowScanCaption();
    ClearSelection();
    ActivateButtons();
    m_eventsRun = m_rowsShown = Events::SecondsSinceMidnight();

    const QPointer<Frm_ProjectManager> self(this);
    // The end of the program hides the window and waits for the scan.
    const bool seen = isVisible();
    LinkScanner::Listener listener;
    listener.addRow = [self](const LinkRow& row) { self->AddFoundRow(row); };
    listener.goOn = [self, scan, seen] {
        return self && self->IsScanning(scan) && (!seen || self->isVisible());
    };
    listener.letEventsRun = [self](const LinkScanner::Counts&) { self->LetEventsRun(); };
    m_scanner.Scan(Global::CurrentFile, LinkScanner::Settings::Current(), listener);
    if (!self || !IsScanning(scan)) return;
    ShowFoundRows();
    LoadExtendedFiles(); // may tell of a broken project file
    if (self && IsScanning(scan)) FinishScan();
}

void Frm_ProjectManager::FinishScan() {
    ScanFinished = true;
    SetCaption(Caption);
    ActivateButtons();
}

void Frm_ProjectManager::AddFoundRow(const LinkRow& row) { m_found.push_back(FileListRow::From(row)); }

void Frm_ProjectManager::ShowFoundRows() { m_files->Add(std::exchange(m_found, {})); }

void Frm_ProjectManager::LetEventsRun() {
    if (!IsDue(m_eventsRun, EventsEvery)) return;
    if (IsDue(m_rowsShown, RowsEvery)) {
        ShowFoundRows();
        m_rowsShown = Events::SecondsSinceMidnight();
    }
    const QPointer<Frm_ProjectManager> self(this);
    Events::DoEvents();
    if (self) m_eventsRun = Events::SecondsSinceMidnight();
}

// --- the files added by hand
// -----------------------------------------------------------------------------------

QString Frm_ProjectManager::ReturnIndexFile() const {
    return m_history.First().isEmpty() ? Global::CurrentFile : m_history.First();
}

void Frm_ProjectManager::DeleteFileIndex() {
    m_history.Clear();
    // A file added by hand may have held the scan back; the new project is to be seen.
    Global::AutoScan = true;
    ActivateButtons();
}

void Frm_ProjectManager::LoadExtendedFiles() {
    m_project.Close();
    if (RuntimeExtension::FileExists(Global::CurrentFile)) {
        m_project.Load(ProjectFile::PathFor(ReturnIndexFile()));
    }
    FillExtendedFileList();
    if (!m_project.IsBroken()) {
        m_toldPath.clear();
    } else if (m_toldPath != m_project.Path()) {
        m_toldPath = m_project.Path(); // once, not at every scan
        TellLoadFailure();
    }
}

bool Frm_ProjectManager::SaveExtendedFiles() {
    return !RuntimeExtension::FileExists(Global::CurrentFile) || m_project.Save();
}

void Frm_ProjectManager::FillExtendedFileList() {
    std::vector<FileListRow> rows;
    for (const ExtendedFileRow& row : m_project.Rows()) rows.push_back(FileListRow::From(row));
    if (SelectedList == List::ExtendedFiles) ClearSelection();
    m_extendedFiles->Clear();
    m_extendedFiles->Add(std::move(rows));
}

// --- the selected row
// --------------------------------------------------------------------------------------------

void Frm_ProjectManager::Select(List list, int row) {
    const FileListRow& chosen = (list == List::Files ? m_files : m_extendedFiles)->Row(row);
    SelectedList = list;
    SelectedText = chosen.cells.constFirst();
    SelectedTag = chosen.tag;
    SelectedLinkedFrom = chosen.linkedFrom;
    SelectedLinkName = chosen.linkName;
    (list == List::Files ? Lvw_ExtendedFiles : Lvw_Files)->clearSelection();
    if (ScanFinished) ActivateButtons();
}

void Frm_ProjectManager::ClearSelection() {
    SelectedText.clear();
    SelectedTag.clear();
    SelectedLinkedFrom.clear();
    SelectedLinkName.clear();
    SelectedList = List::None;
}

void Frm_ProjectManager::ActivateButtons() {
    const bool chosen = ScanFinished && SelectedList != List::None;
    const bool file = chosen && SelectedTag != u"Error";
    m_back->setEnabled(ScanFinished && !m_history.IsEmpty());
    m_openFile->setEnabled(file);
    m_delete->setEnabled(file && SelectedTag != u"Extern");
    m_goTo->setEnabled(chosen && SelectedList == List::Files);
    m_new->setEnabled(ScanFinished);
}
