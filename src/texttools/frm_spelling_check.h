// SPDX-License-Identifier: MIT
#pragma once

#include "platform/window.h"
#include "texttools/spelling.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QListWidget;

// Shows the words of the document that the word file lacks, and adds them to it.
class Frm_SpellingCheck : public QDialog, public SharedWindow {
    Q_OBJECT

public:
    Frm_SpellingCheck();
    void OnLoad() override;
    void reject() override; // Esc and the frame's X end a running check, too

private:
    void Check();
    void AddAll();

    Spelling::WordList m_list;
    bool m_left = false;
    bool m_checking = false; // letting events run lets its user press the buttons
    QLineEdit* const Txt_WordsFile;
    QLabel* const Lbl_WordCount;
    QListWidget* const Lst_Words;
};
