// SPDX-License-Identifier: MIT
#pragma once

#include "documents/frm_code.h"
#include "support/driver.h"
#include "support/test.h"

// A test whose functions each have the whole program running, in a folder and with a script of their own.
// No window opens unasked.
class ProgramTest : public QObject {
    Q_OBJECT

protected:
    static Txt_Code& Box() { return *Shared<Frm_Code>().TextBox; }

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<ScriptedDialogs> m_dialogs;
    std::unique_ptr<Driver::RunningProgram> m_program;

protected slots:
    void init();
    void cleanup();
};
