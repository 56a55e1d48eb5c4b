// SPDX-License-Identifier: MIT
// How the program goes down.
#include "documents/document_commands.h"
#include "documents/recovery.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "shell/frm_main.h"
#include "state/global.h"
#include "state/settings.h"
#include "state/windows.h"

#include <QCloseEvent>

void Frm_Main::closeEvent(QCloseEvent* event) {
    if (m_loading) { // the load runs on to its end, unseen
        m_closeWanted = true;
        hide();
        event->ignore();
        return;
    }
    event->setAccepted(Exit());
}

bool Frm_Main::Exit() {
    if (m_ending) return true;
    m_ending = true;
    // each keeps its place as it goes, for the settings to write
    for (const QString& tool : {u"Frm_Color"_s, u"Frm_KCC"_s, u"Frm_TagTools"_s, u"Frm_Events"_s,
                                u"Frm_Characters"_s, u"Frm_FormatSubClass"_s, u"Frm_Navigation"_s}) {
        Windows::Unload(tool);
    }
    bool write = true;
    if (Global::DocChanged) {
        const auto answer = Dialogs::MsgBox(
            {u"Beenden"_s, u"Die aktuelle Datei wurde noch nicht gespeichert. Möchten Sie das jetzt tun?"_s,
             Dialogs::Icon::Question, Dialogs::Buttons::YesNo});
        if (answer == Dialogs::Answer::Yes) {
            Documents::Menu_File_Save_Click();
            write = Global::SaveSucceeded;
            // A save that fails does not hold the program back: the text can be had back at the next start.
            // Only a text of which not even that copy can be written keeps it open.
            if (!write && !Recovery::Write()) {
                Dialogs::Tell(u"Beenden"_s,
                              u"Auch eine Sicherungskopie des Textes kann nicht geschrieben werden. Das "
                              u"Programm bleibt "
                              u"geöffnet, damit der Text nicht verloren geht."_s,
                              Dialogs::Icon::Exclamation);
                m_ending = false;
                return false;
            }
        } else {
            Recovery::Settle();
        }
    }
    if (write) Settings::WriteSettings();
    hide();
    Global::DocOpen = false; // work on the document that runs under this call ends, and makes nothing anew
    const QString scratch = Files::ProgramDirectory() + u"\\tmp"_s;
    if (Files::FolderExists(scratch)) Files::MoveToTrash(scratch);
    for (const QString& name : Files::List(Files::ProgramDirectory(), {u"temp.*"_s})) {
        Files::Remove(Files::ProgramDirectory() + u'\\' + name);
    }
    Program::End();
    return true;
}
