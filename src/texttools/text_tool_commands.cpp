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

Dialogs::Answer AskForCopy(const QString& text) {
    return Dialogs::MsgBox(
        {u"Code verschlüsseln"_s, text, Dialogs::Icon::Exclamation, Dialogs::Buttons::YesNoCancel});
}

// Whether the document has a file and nothing in it is unsaved.
bool Save() {
    Documents::Menu_File_Save_Click();
    return !Global::CurrentFile.isEmpty() && !Global::DocChanged;
}

} // namespace

void WireTextTools() {
    Neighbours::UpdateClassList.AnsweredBy([] {
        if (Loaded<Frm_FormatSubClass>()) Shared<Frm_FormatSubClass>().UpdateClassList();
    });
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
    if (answer == Dialogs::Answer::Yes) Documents::SaveBackUp();
    if (answer != Dialogs::Answer::Cancel) CodeAccess::ScrambleCode();
}

} // namespace TextTools
