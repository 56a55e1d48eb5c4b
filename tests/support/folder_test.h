// SPDX-License-Identifier: MIT
#pragma once

#include "support/test.h"

// A test whose functions each have a program folder, a script of dialogs and a code box without a screen.
class FolderTest : public QObject {
    Q_OBJECT

protected:
    explicit FolderTest(ProgramFolder::Content content = ProgramFolder::Content::Empty)
        : m_content(content) {}
    void Show(const QString& text, qsizetype start = 0, qsizetype length = 0) const;

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<ScriptedDialogs> m_dialogs;
    std::unique_ptr<TextBuffer> m_box;

protected slots:
    virtual void init();
    virtual void cleanup();

private:
    const ProgramFolder::Content m_content;
};
