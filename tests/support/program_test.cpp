// SPDX-License-Identifier: MIT
#include "support/program_test.h"

void ProgramTest::StartProgram() {
    m_program = std::make_unique<Driver::RunningProgram>();
    Global::AutoDebug = Global::AutoProjectManager = Global::AutoPreView = false;
}

void ProgramTest::init() {
    FolderTest::init();
    StartProgram();
}

void ProgramTest::cleanup() {
    m_program.reset();
    FolderTest::cleanup();
}
