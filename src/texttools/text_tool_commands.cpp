// SPDX-License-Identifier: MIT
#include "texttools/text_tool_commands.h"

#include "documents/document_commands.h"
#include "platform/dialogs.h"
#include "platform/literals.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "texttools/code_packing.h"
#include "texttools/frm_format_sub_class.h"

namespace TextTools {

namespace {

const QString Title = QStringLiteral("Code verschlüsseln");

Dialogs::Answer AskForCopy(const QString& text) {
    return Dialogs::MsgBox({Title, text, Dialogs::Icon::Exclamation, Dialogs::Buttons::YesNoCancel});
}

// Whether the text was saved and is still the one that is open: a save may refresh the project view, which
// lets events run.
bool Save() {
    Documents::Menu_File_Save_Click();
    return Global::SaveSucceeded && Global::CurrentFile == Global::LastFile;
}

} // namespace

void WireTextTools() {
    Neighbours::UpdateClassList.AnsweredBy([] {
        if (Loaded<Frm_FormatSubClass>()) Shared<Frm_FormatSubClass>().UpdateClassList();
    });
}

bool MakeBackUp(const QString& title) {
    if (Documents::SaveBackUp()) return true;
    return Dialogs::MsgBox(
               {title,
                u"Die Sicherheitskopie konnte nicht geschrieben werden. Möchten Sie trotzdem fortfahren?"_s,
                Dialogs::Icon::Exclamation, Dialogs::Buttons::YesNo, Dialogs::Answer::No}) ==
           Dialogs::Answer::Yes;
}

void Menu_Tools_MadCode() {
    if (Global::AssistantOpen) {
        Neighbours::RunAnimation(
            1, u"Sie können jetzt den Text der aktuellen Datei verschlüsseln. Bei dem Vorgang werden "
               "Kommentare, Tabulatoren, Leerzeichen und Zeilenumbrüche entfernt. Die Seite wird aber "
               "trotzdem noch normal angezeigt. Sie sollten aber doch ein Backup erstellen, da bei der "
               "Codierung auch Fehler entstehen können."_s);
    }
    if (Global::CurrentFile.isEmpty()) {
        const auto answer = AskForCopy(
            u"Die aktuelle Datei wurde noch nicht gespeichert. Sie sollten sie\r\nspeichern, da Sie "
            "sonst keine Originalversion der Datei haben.\r\nMöchten Sie das jetzt tun?"_s);
        if (answer == Dialogs::Answer::Yes && !Save()) return;
        if (answer != Dialogs::Answer::Cancel) CodeAccess::ScrambleCode();
        return;
    }
    const auto answer = AskForCopy(
        u"Sie sollten von der aktuellen Datei ein Backup erstellen, um bei\r\neinem Codierungsfehler "
        "die Daten wiederherstellen zu können.\r\nMöchten Sie das jetzt tun?"_s);
    if (answer == Dialogs::Answer::Yes && !MakeBackUp(Title)) return;
    if (answer != Dialogs::Answer::Cancel) CodeAccess::ScrambleCode();
}

} // namespace TextTools
