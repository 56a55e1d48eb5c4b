// SPDX-License-Identifier: MIT
// Completing the word at the caret by the words of the text.
#pragma once

#include <QString>
#include <QStringList>

namespace AutoWord {

// Whether a character counts as part of a word: code 65 to 122 or 192 to 255, brackets and the like included.
bool IsLetter(QChar character);

// Walks `text` from the one-based `start` in steps of +1 or -1 to the first character that is no letter, and
// returns its position; 0 when the end was passed. Throws RuntimeError when a walk backwards passes the
// text's start: that is how completion gives up on the first word of a document.
qsizetype SearchNoABC(QStringView text, qsizetype start, int step);

struct Completion {
    qsizetype start = 0; // SelStart of the word
    qsizetype end = 0;   // SelStart behind it
    QString word;
    QStringList candidates; // other words that begin like it, each once, in their order in the text
};
// The completion of the word that ends at `selStart` (from 0). Throws RuntimeError where there is no word to
// complete: at the start of the text, at its end, and before a letter.
Completion Complete(const QString& text, qsizetype selStart);

} // namespace AutoWord
