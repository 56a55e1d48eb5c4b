// SPDX-License-Identifier: MIT
// How the program goes down.
#include "documents/document_commands.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "shell/frm_main.h"
#include "shell/global.h"
#include "shell/settings.h"

#include <QCloseEvent>

void Frm_Main::closeEvent(QCloseEvent* event) {
    event->accept();
    Exit();
}

void Frm_Main::Exit() {
    if (m_ending) return;
    m_ending = true;
    for (const QString& tool : {u"Frm_Color"_s, u"Frm_KCC"_s, u"Frm_TagTools"_s})
        Neighbours::UnloadWindow(tool);
    bool write = true;
    if (Global::DocChanged) {
        const auto answer = Dialogs::MsgBox(
            {u"Beenden"_s, u"Die aktuelle Datei wurde noch nicht gespeichert. Möchten Sie das jetzt tun?"_s,
             Dialogs::Icon::Question, Dialogs::Buttons::YesNo});
        if (answer == Dialogs::Answer::Yes) {
            Documents::Menu_File_Save_Click();
            write = Global::SaveSucceeded;
            // There is no way back, but the text that could not be saved can be had back at the next start.
            if (!write) Documents::WriteRecoveryFile();
        }
    }
    if (write) Settings::WriteSettings();
    hide();
    const QString scratch = Files::ProgramDirectory() + u"\\tmp"_s;
    if (Files::FolderExists(scratch)) Files::MoveToTrash(scratch);
    for (const QString& name : Files::List(Files::ProgramDirectory(), {u"temp.*"_s})) {
        Files::Remove(Files::ProgramDirectory() + u'\\' + name);
    }
    Program::End();
}
