// SPDX-License-Identifier: MIT
#include "editing/auto_word.h"

#include "platform/text.h"

#include <QSet>

namespace AutoWord {

bool IsLetter(QChar character) {
    const char16_t code = character.unicode();
    return (code >= 192 && code <= 255) || (code >= 65 && code <= 122);
}

qsizetype SearchNoABC(QStringView text, qsizetype start, int step) {
    for (qsizetype i = start; step < 0 || i <= text.size(); i += step) {
        if (i < 1 || i > text.size()) throw RuntimeError("word: no character there");
        if (!IsLetter(text[i - 1])) return i;
    }
    return 0;
}

Completion Complete(const QString& text, qsizetype selStart) {
    Completion found;
    found.start = SearchNoABC(text, selStart, -1);
    found.end = selStart;
    const QStringView around = Text::Middle(text, found.start + 1, selStart - found.start + 1);
    // no character that ends the word gives a length below 0
    found.word = Text::Left(around, SearchNoABC(around, 1, 1) - 1).toString();

    const QString upper = Text::UpperCase(text);
    const QString word = Text::UpperCase(found.word);
    QSet<QString> seen{word};
    Text::Finder words(upper, word);
    for (qsizetype i = 1; i <= text.size();) {
        const qsizetype hit = words.From(i);
        if (hit == 0) break;
        qsizetype end = SearchNoABC(text, hit, 1);
        if (end == 0) end = text.size();
        const QString candidate = upper.sliced(hit - 1, end - hit);
        if (hit == 1) throw RuntimeError("word: nothing before the text's start");
        // An occurrence at the very end of the text lacks its last letter. It is offered all the same, but
        // what is no longer than the word, or empty, continues nothing.
        const bool continues = candidate.size() > word.size();
        if (continues && !IsLetter(text[hit - 2]) && !seen.contains(candidate)) {
            seen.insert(candidate);
            found.candidates << text.sliced(hit - 1, end - hit);
        }
        i = end + 1;
    }
    return found;
}

} // namespace AutoWord
