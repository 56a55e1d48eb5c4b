// SPDX-License-Identifier: MIT
#include "support/program_test.h"

#include "state/global.h"

void ProgramTest::init() {
    m_folder = std::make_unique<ProgramFolder>();
    m_dialogs = std::make_unique<ScriptedDialogs>();
    m_program = std::make_unique<Driver::RunningProgram>();
    Global::AutoDebug = Global::AutoProjectManager = false;
}

void ProgramTest::cleanup() {
    m_program.reset();
    m_dialogs.reset();
    m_folder.reset();
}
