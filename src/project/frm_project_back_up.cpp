// SPDX-License-Identifier: MIT
#include "project/frm_project_back_up.h"

#include "platform/events.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/modal.h"
#include "project/file_list_model.h"
#include "project/folder_chooser.h"
#include "project/frm_page_info.h"
#include "project/site_copy.h"
#include "project/site_list.h"
#include "state/busy.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int NameWidth = 170;     // pixels
constexpr QSize FrameSize(20, 40); // of the window, pixels

// The folder of the last backup, for as long as the program runs.
QString lastDestination;

} // namespace

Frm_ProjectBackUp::Frm_ProjectBackUp()
    : ToolDialog(
          u"Frm_ProjectBackUp"_s, u"ProjektBackup"_s,
          u"Dieses Tool speichert alle Dateien, die von dieser Seite gebraucht werden in einem beliebigen "
          "Verzeichnis. Wenn Sie die Seite komplett speichern möchten, sollten Sie die Index-Datei des "
          "Projektes öffnen und dann ein ProjektBackup erstellen. Sollte das Programm länger keine Dateien "
          "finden, schließen Sie vorsichtshalber die Vorschau und starten sie das ProjektBackup erneut."_s),
      m_files(new FileListModel({u"Datei"_s, u"Verzeichnis"_s, u"Dateityp"_s}, this)),
      m_folder(new FolderChooser(u"Speicherort:"_s)) {
    SetHeading(u"project_backup", u"ProjektBackup erstellen..."_s);
    auto* Lvw_Files = new QTreeView;
    Lvw_Files->setObjectName(u"Lvw_Files"_s);
    Lvw_Files->setModel(m_files);
    Lvw_Files->setRootIsDecorated(false);
    Lvw_Files->setUniformRowHeights(true);
    Lvw_Files->header()->setStretchLastSection(false);
    Lvw_Files->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    Lvw_Files->header()->resizeSection(0, NameWidth);
    auto* files = new QWidget;
    auto* list = new QVBoxLayout(files);
    list->setContentsMargins({});
    list->addWidget(LabelFor(Lvw_Files, u"Label2_1"_s, u"Dateien:"_s));
    list->addWidget(Lvw_Files, 1);
    auto* halves = new QSplitter;
    halves->setChildrenCollapsible(false);
    halves->addWidget(m_folder);
    halves->addWidget(files);
    halves->setStretchFactor(0, 2);
    halves->setStretchFactor(1, 3);
    Content()->addWidget(halves, 1);
    m_save = AddControl(0, u"&Speichern"_s, [this] { CopyProjectFiles(); });
    AddControl(1, u"A&bbrechen"_s, [this] { reject(); });
    m_info = AddControl(2, u"&Info..."_s, [this] { ShowInfo(); });
    Open(false);
    for (const QString& folder :
         {lastDestination, Files::FromSystem(QDir::homePath()), Files::FromSystem(QDir::rootPath())}) {
        if (folder.isEmpty() || !Files::FolderExists(folder)) continue;
        m_folder->SetPath(folder);
        break;
    }
    resize(QSize(800, 500).boundedTo(screen()->availableSize() - FrameSize));
}

void Frm_ProjectBackUp::OnUnload() {
    if (Global::AssistantOpen) Neighbours::RunAnimation(0, {});
}

void Frm_ProjectBackUp::reject() {
    m_left = true;
    Leave();
}

void Frm_ProjectBackUp::showEvent(QShowEvent* event) {
    ToolDialog::showEvent(event);
    if (!event->spontaneous()) QTimer::singleShot(0, this, &Frm_ProjectBackUp::StartCheck);
}

void Frm_ProjectBackUp::Open(bool open) {
    m_save->setEnabled(open);
    m_info->setEnabled(open);
}

void Frm_ProjectBackUp::StartCheck() {
    const QPointer<Frm_ProjectBackUp> alive(this); // letting events run may end this window
    m_root = Global::CurrentFile;
    SiteScan::Result site = FillWithSite(*m_files, [&] { return alive && !m_left; });
    if (!alive || m_left) return;
    m_site = std::move(site);
    Open(true);
}

void Frm_ProjectBackUp::CopyProjectFiles() {
    const QPointer<Frm_ProjectBackUp> alive(this);
    Open(false);
    lastDestination = m_folder->Path();
    SiteCopy::Result result;
    {
        Busy busy;
        Events::Pace pace;
        const auto count = static_cast<qsizetype>(m_site.files.size());
        result = SiteCopy::CopyFiles(m_site.files, m_root, lastDestination,
                                     {[&](qsizetype number) { busy.Progress(number, count); },
                                      [&] {
                                          if (pace.IsDue()) pace.LetEventsRun();
                                          return alive && !m_left;
                                      }});
    }
    if (!alive || m_left) return;
    result.missed += m_site.leftOut;
    const QString report = SiteCopy::Report(result);
    Leave();
    if (report.isEmpty()) return;
    Neighbours::SetStatusPanel(Neighbours::WorkPanel, report);
    if (Global::AssistantOpen) Neighbours::RunAnimation(1, report);
}

void Frm_ProjectBackUp::ShowInfo() {
    Shared<Frm_PageInfo>().Add(m_site.sums);
    ShowModal<Frm_PageInfo>();
}
