// SPDX-License-Identifier: MIT
#pragma once

#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "documents/new_documents.h"
#include "shell/frm_main.h"
#include "shell/status_bar.h"
#include "shell/wiring.h"
#include "support/driver.h"
#include "support/folder_test.h"

// A test whose functions each have the whole program running, in a folder and with a script of their own.
// No window opens unasked. A class that has to prepare the folder first has an init() of its own.
class ProgramTest : public FolderTest {
    Q_OBJECT

public:
    ProgramTest() : FolderTest(ProgramFolder::Content::Data) {}

protected:
    static constexpr int Patience = 30000; // milliseconds; the first page has to start the web engine
    static Txt_Code& Box() { return *Shared<Frm_Code>().TextBox; }
    static void Select(qsizetype start, qsizetype length = 0) {
        Box().SetSelStart(start);
        Box().SetSelLength(length);
    }
    void StartProgram();

    std::unique_ptr<Driver::RunningProgram> m_program;

protected slots:
    void init() override;
    void cleanup() override;
};
