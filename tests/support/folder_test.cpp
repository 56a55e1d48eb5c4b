// SPDX-License-Identifier: MIT
#include "support/folder_test.h"

void FolderTest::Show(const QString& text, qsizetype start, qsizetype length) const {
    m_box->SetText(text);
    m_box->SetSelStart(start);
    m_box->SetSelLength(length);
}

void FolderTest::init() {
    m_folder = std::make_unique<ProgramFolder>(m_content);
    m_dialogs = std::make_unique<ScriptedDialogs>();
    m_box = std::make_unique<TextBuffer>();
    Neighbours::TheCodeBox.AnsweredBy([this] { return m_box.get(); });
}

void FolderTest::cleanup() {
    m_dialogs.reset();
    m_folder.reset();
}
