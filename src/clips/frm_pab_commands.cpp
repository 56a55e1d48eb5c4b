// SPDX-License-Identifier: MIT
// What the library's window does to the site, the page and the library.
#include "clips/clip_folder.h"
#include "clips/clip_root.h"
#include "clips/clip_tag.h"
#include "clips/clip_view.h"
#include "clips/frm_pab.h"
#include "clips/frm_pab_preview.h"
#include "clips/picture_reader.h"
#include "documents/insertion_point.h"
#include "documents/paths.h"
#include "platform/dialogs.h"
#include "platform/file_copy.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/modal.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QApplication>

using Dialogs::Icon;

namespace {

void TellFailedCopy() {
    Dialogs::Tell(
        u"Fehler"_s,
        u"Fehler beim Speichern der Datei. Stellen Sie sicher, dass die Datei nicht schreibgeschützt "
        u"ist."_s,
        Icon::Critical);
}

bool Confirms(const QString& question) {
    return Dialogs::MsgBox({u"Löschen"_s, question, Icon::Exclamation, Dialogs::Buttons::YesNo}) ==
           Dialogs::Answer::Yes;
}

bool MayOverwrite(const QString& from, const QString& to) {
    return Files::IsSameFile(from, to) || Dialogs::MayOverwrite(to, Icon::Exclamation, Dialogs::Answer::Yes);
}

} // namespace

void Frm_PAB::View() {
    if (SelectedClip.isEmpty()) return;
    if (Shared<Frm_PABPreView>().LoadImage(SelectedClip)) ShowModal<Frm_PABPreView>();
    Unload<Frm_PABPreView>();
}

// A library for who has none; false where it cannot be made or found.
bool Frm_PAB::MakeRoot() {
    if (!ClipsMissing) return true;
    if (!Files::MakeFolder(Files::ProgramDirectory() + u'\\' + Clips::LibraryName)) {
        TellFailedCopy();
        return false;
    }
    Locate();
    return !ClipsMissing;
}

void Frm_PAB::ImportClipFile() {
    if (!MakeRoot()) return;
    const QString from = Dialogs::OpenFileDialog(
        u"Neue Datei"_s, u"Bilder (*.gif;*.jpg)|*.gif;*.jpg|Alle Dateien (*.*)|*.*"_s);
    if (from.isEmpty()) return;
    const QString to = Clips::PathIn(Clips::PathIn(ClipRoot, SelectedFolder), Global::FileNameOf(from));
    if (!MayOverwrite(from, to)) return;
    if (!Clips::CopyClip(from, to)) return TellFailedCopy();
    ShowFolderClips(SelectedFolder);
}

void Frm_PAB::CreateClipFolder() {
    const QString name = Dialogs::InputBox(u"Geben Sie einen Namen für den Ordner ein:"_s, u"Neuer Ordner"_s,
                                           u"Neuer Ordner"_s);
    if (name.isEmpty() || !MakeRoot()) return;
    const QString folder = Clips::PathIn(ClipRoot, name);
    const auto tell = [](const QString& text) { Dialogs::Tell(u"Neuer Ordner"_s, text, Icon::Exclamation); };
    if (!Clips::IsFolderName(name)) return tell(u"Dieser Name ist für einen Ordner nicht möglich."_s);
    if (Files::FolderExists(folder)) return tell(u"Einen Ordner mit diesem Namen gibt es schon."_s);
    if (!Files::MakeFolder(folder)) {
        return tell(
            u"Der Ordner kann nicht angelegt werden. Stellen Sie sicher, dass die Bildersammlung nicht "
            u"schreibgeschützt ist."_s);
    }
    ListClipFolders();
}

void Frm_PAB::KillFile() {
    if (SelectedClip.isEmpty()) return;
    if (!Confirms(u"Sind Sie sicher, dass Sie die Datei in den Papierkorb verschieben möchten?"_s)) return;
    if (!Files::MoveToTrashOnly(SelectedClip) && Files::CanRead(SelectedClip)) {
        Dialogs::Tell(u"Löschen"_s,
                      u"Die Datei kann nicht in den Papierkorb verschoben werden. Sie bleibt in der "
                      u"Bildersammlung."_s,
                      Icon::Critical);
    }
    ShowFolderClips(SelectedFolder);
}

void Frm_PAB::KillFolder() {
    if (SelectedFolder.isEmpty()) return;
    if (!Confirms(u"Sind Sie sicher, dass Sie den gesamten Ordner unwiderruflich löschen möchten?"_s)) {
        return;
    }
    if (!Clips::RemoveClipFolder(Clips::PathIn(ClipRoot, SelectedFolder))) {
        Dialogs::Tell(
            u"Löschen"_s,
            u"Der Ordner kann nicht gelöscht werden.\rWarscheinlich ist der Ordner oder eine Datei mit "
            u"einem Schreibschutz versehen.\rSie können den Ordner auch im Explorer löschen."_s,
            Icon::Critical);
    }
    ListClipFolders();
    ShowFolderClips({});
}

void Frm_PAB::InsertClip(const QString& path, Mode mode) {
    if (path.isEmpty() || !Global::CodeWindowOpen) return;
    const QString ending = Global::ExtensionOf(path);
    const QString chosen = Dialogs::SaveFileDialog(
        u"Grafik speichern unter"_s, u"PageArtBox (*.%1)|*.%1"_s.arg(ending), Global::FileNameOf(path));
    if (chosen.isEmpty()) return;
    if (!Dialogs::MayOverwrite(chosen, Icon::Exclamation, Dialogs::Answer::Yes)) return;
    if (!Clips::CopyClip(path, chosen)) return TellFailedCopy();
    if (Global::AssistantOpen) Neighbours::RunAnimation(0, {});
    const QString address = Global::RelativePathOf(chosen, Clips::BaseOf(Global::CurrentFile));
    // what is on the sheet has been read already
    QSize size = path == SelectedClip ? Pic_ViewScreen->SizeOf(Pic_ViewScreen->Chosen()) : QSize();
    if (mode == Mode::ImgTag && !size.isValid()) size = Pictures::SizeOf(path);
    const QString text =
        mode == Mode::FileName ? address : Clips::ImageTag(address, size, Global::DocType == u"XHTML");
    if (InsertionPoint::Insert(text) && parentWidget()) parentWidget()->activateWindow();
}
