// SPDX-License-Identifier: MIT
// What tests in the main window share: the whole program in a folder of its own, asking a script.
#pragma once

#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "platform/literals.h"
#include "shell/frm_main.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "support/driver.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

class MainWindowTest : public QObject {
protected:
    static constexpr int Patience = 30000; // milliseconds; the first page has to start the web engine

    static Txt_Code& Box() { return *Shared<Frm_Code>().TextBox; }

    void MakeFolder() {
        m_folder = std::make_unique<ProgramFolder>();
        m_dialogs = std::make_unique<ScriptedDialogs>();
    }
    // No window opens by itself from then on.
    void StartProgram() {
        m_program = std::make_unique<Driver::RunningProgram>();
        Global::AutoDebug = Global::AutoProjectManager = Global::AutoPreView = false;
    }
    void End() {
        m_program.reset();
        m_dialogs.reset();
        m_folder.reset();
    }

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<ScriptedDialogs> m_dialogs;
    std::unique_ptr<Driver::RunningProgram> m_program;
};
