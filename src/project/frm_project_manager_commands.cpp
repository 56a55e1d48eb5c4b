// SPDX-License-Identifier: MIT
// What the project window's buttons and rows do. Opening a file scans anew and lets events run, so behind it
// the window may be gone.
#include "documents/code_access.h"
#include "documents/document_commands.h"
#include "documents/new_documents.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "project/file_list_model.h"
#include "project/frm_project_manager.h"
#include "state/global.h"

#include <QAction>
#include <QPointer>
#include <QTimer>

namespace {

using Dialogs::Answer;
using Dialogs::Buttons;
using Dialogs::Icon;

const QString OpenTitle = QStringLiteral("Öffnen");
const QString SaveQuestion = QStringLiteral("Soll die aktuelle Datei gespeichert werden?");

const QString InsertFilter = QStringLiteral(
    "Alle unterstützten Dateien "
    "(*.gif;*.jpg;*.png;*.wbmp;*.htm;*.html;*.wml;*.txt;*.css;*.swf;*.js;*.vbs;*.zip)|"
    "*.gif;*.jpg;*.png;*.wbmp;*.htm;*.html;*.wml;*.txt;*.css;*.swf;*.js;*.vbs;*.zip|"
    "Bilder (*.gif;*.jpg;*.png;*.wbmp)|*.gif;*.jpg;*.png;*.wbmp|Internet-Seiten (*.htm;*.html)|*.htm;*.html|"
    "WAP-Seiten (*.wml)|*.wml|Textdateien (*.txt)|*.txt|StyleSheets (*.css)|*.css|ShockWaveFlash "
    "(*.swf)|*.swf|"
    "Scripte (*.js;*.vbs)|*.js;*.vbs|Archive (*.zip)|*.zip|Alle Dateien (*.*)|*.*");

// A question on a file names it: the row may have been chosen long ago.
QString WithPath(const QString& question, const QString& path) {
    return question + u"\r\n\r\n"_s + Files::ToSystem(path);
}

bool IsFile(const QString& tag) { return !tag.isEmpty() && tag != u"Error" && tag != u"Extern"; }

} // namespace

void Frm_ProjectManager::Later(void (Frm_ProjectManager::*routine)()) {
    QTimer::singleShot(0, qApp, [self = QPointer<Frm_ProjectManager>(this), routine] {
        if (self && self->m_open) (self->*routine)();
    });
}

// Whether the action may go on: the text is saved, or is to be lost.
bool Frm_ProjectManager::AskToSave(const QString& question) {
    if (!Global::DocChanged) return true;
    const QPointer<Frm_ProjectManager> self(this);
    const Answer answer =
        Dialogs::MsgBox({OpenTitle, question, Icon::Exclamation, Buttons::YesNoCancel, Answer::Yes});
    if (answer == Answer::Yes) {
        Documents::FileSaveWithoutManager();
        // text that could not be saved must not be replaced by another file
        return self && self->m_open && Global::SaveSucceeded;
    }
    return self && self->m_open && answer == Answer::No;
}

void Frm_ProjectManager::Push() {
    m_history.Push(Global::CurrentFile);
    ActivateButtons();
}

void Frm_ProjectManager::OpenFromList(QString path) {
    if (!AskToSave(SaveQuestion)) return;
    Push();
    Documents::OpenFile(path);
}

void Frm_ProjectManager::Lvw_Files_DblClick() {
    if (!ScanFinished || SelectedList != List::Files) return;
    if (SelectedTag == u"Extern") return Dialogs::OpenAddress(SelectedText);
    if (IsFile(SelectedTag) && SelectedTag != Global::CurrentFile) OpenFromList(SelectedTag);
}

// Such a file is no part of the link tree: while it is open, nothing is scanned.
void Frm_ProjectManager::Lvw_ExtendedFiles_DblClick() {
    if (!ScanFinished || SelectedList != List::ExtendedFiles) return;
    if (!IsFile(SelectedTag) || SelectedTag == Global::CurrentFile) return;
    const QString path = SelectedTag; // saving under a new name scans, which clears it
    if (!AskToSave(SaveQuestion)) return;
    if (Global::AutoScan) {
        if (RuntimeExtension::FileExists(Global::CurrentFile)) Push();
        m_files->Clear();
    }
    Global::AutoScan = false;
    Documents::OpenFile(path);
}

void Frm_ProjectManager::Back_Click() {
    if (!AskToSave(SaveQuestion)) return;
    Global::AutoScan = true;
    const QString page = m_history.TakeLast();
    ActivateButtons();
    if (!page.isEmpty()) Documents::OpenFile(page);
}

void Frm_ProjectManager::Open_Click() {
    if (SelectedTag == u"Extern") return Dialogs::OpenAddress(SelectedText);
    if (SelectedTag != Global::CurrentFile) OpenFromList(SelectedTag);
}

void Frm_ProjectManager::Delete_Click() {
    if (SelectedList == List::Files) {
        DeleteFile();
    } else {
        RemoveFromProject();
    }
}

void Frm_ProjectManager::RemoveFromProject() {
    const QString path = SelectedTag;
    const QString question =
        u"Möchten Sie diese Datei aus dem Projekt entfernen? Sie wird dabei nicht gelöscht."_s;
    const Answer answer =
        Dialogs::MsgBox({u"Entfernen"_s, WithPath(question, path), Icon::Exclamation, Buttons::YesNo});
    if (answer != Answer::Yes) return;
    m_project.Remove(path);
    if (!SaveExtendedFiles()) TellSaveFailure();
    FillExtendedFileList();
    ActivateButtons();
}

void Frm_ProjectManager::DeleteFile() {
    const QString path = SelectedTag;
    const QString question = u"Sind Sie sicher, dass Sie die Datei in den Papierkorb verschieben möchten?"_s;
    const Answer answer =
        Dialogs::MsgBox({u"Löschen"_s, WithPath(question, path), Icon::Exclamation, Buttons::YesNo});
    if (answer != Answer::Yes) return;
    if (Files::IsFullPath(path)) Files::MoveToTrash(path); // nothing else names a file
    SearchLinks();
}

void Frm_ProjectManager::GoTo_Click() {
    if (SelectedTag == Global::CurrentFile) {
        Dialogs::Tell(
            OpenTitle,
            u"In der Datei befindet sich kein Link zu dieser Seite, da die ausgewählte Seite die offene "
            "Datei ist."_s,
            Icon::Exclamation);
        return;
    }
    const QString link = SelectedLinkName; // opening a file scans anew and clears both
    const QString page = SelectedLinkedFrom;
    if (page != Global::CurrentFile) {
        if (!AskToSave(u"Dieser Link befindet sich in einer anderen Datei.\r"_s + SaveQuestion)) return;
        Push();
        Documents::OpenFile(page);
        if (Global::CurrentFile != page || !Global::CodeWindowOpen) return; // it could not be opened
    }
    CodeAccess::GoToLink(link);
}

void Frm_ProjectManager::New_Click() {
    const QString path = SelectedTag;
    if (!AskToSave(SaveQuestion)) return;
    Push();
    const QPointer<Frm_ProjectManager> self(this);
    if (IsFile(path)) Documents::OpenFile(path);
    if (self && self->m_open) Documents::CreateNewXHTMLFile();
}

void Frm_ProjectManager::NewMenu_Click() {
    const QString kind = m_newKind;
    if (kind == u"InsertFile") return InsertFile();
    if (!AskToSave(SaveQuestion)) return;
    Push();
    if (kind == u"XHTML") Documents::CreateNewXHTMLFile();
    if (kind == u"HTML") Documents::CreateNewHTMLFile();
    if (kind == u"WAP") Documents::CreateNewWMLFile();
    if (kind == u"Text") Documents::CreateNewTextFile();
}

void Frm_ProjectManager::InsertFile() {
    // an entry could be kept nowhere
    if (m_project.IsBroken()) return TellLoadFailure();
    if (m_project.GetState() == ProjectFile::State::Closed) {
        Dialogs::Tell(u"ProjektManager"_s,
                      u"Speichern Sie zuerst die Seite, zu der die Datei gehören soll."_s, Icon::Exclamation);
        return;
    }
    const QString path = Dialogs::OpenFileDialog(u"Projektdatei einfügen"_s, InsertFilter);
    if (path.isEmpty()) return;
    if (!Attempt([&] { m_project.Add(path); })) {
        Dialogs::Tell(
            u"ProjektManager"_s,
            u"Das Projekt enthält schon %1 Einträge. Weitere Dateien können nicht hinzugefügt werden."_s.arg(
                ProjectFile::Capacity),
            Icon::Exclamation);
        return;
    }
    if (!SaveExtendedFiles()) TellSaveFailure();
    FillExtendedFileList();
    ActivateButtons();
}

void Frm_ProjectManager::TellLoadFailure() const {
    const QString path = Files::ToSystem(m_project.Path());
    const QString text =
        m_project.GetState() == ProjectFile::State::TooLong
            ? u"Die Projektdatei '%1' enthält mehr als %2 Einträge und kann nicht geladen werden."_s.arg(
                  path, QString::number(ProjectFile::Capacity))
            : u"Die Projektdatei '%1' kann nicht gelesen werden. Sie bleibt unverändert."_s.arg(path);
    Dialogs::Tell(u"ProjektManager"_s, text, Icon::Critical);
}

void Frm_ProjectManager::TellSaveFailure() const {
    Dialogs::Tell(u"ProjektManager"_s,
                  u"Die Projektdatei '%1' kann nicht gespeichert werden. Stellen Sie sicher, dass sie nicht "
                  "schreibgeschützt ist."_s.arg(Files::ToSystem(m_project.Path())),
                  Icon::Critical);
}
