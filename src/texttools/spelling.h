// SPDX-License-Identifier: MIT
// The words of a page that a plain list of words lacks.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <functional>

namespace Spelling {

// A list of words as its file holds it: parted by single blanks, all in the first line.
class WordList {
public:
    explicit WordList(const QString& file = {});
    // Words of the first line, less one: the count is the upper bound of their array, and is shown as such.
    qsizetype UpperBound() const { return m_upperBound; }
    // Whether the word, in any case, stands between two blanks. The first and the last word of the file do
    // not.
    bool Has(QStringView word) const;

private:
    QSet<QString> m_words; // in upper case
    qsizetype m_upperBound = 0;
};

struct Plain {
    QString text;
    bool whole = true; // false: a "<" has no ">"; the text ends before it
};
// The page without what stands between "<" and ">". A tag that has slipped before the place of the search, as
// do those at the very start of a page, stays: that is meant.
Plain WithoutTags(const QString& page);

// The words of `text` that the list lacks, in their order, each as often as it stands there. Punctuation is
// taken out of a word; one with a digit is no word. `progress` gets the share that is done, in percent, and
// ends the work by returning false.
QStringList Unknown(const QString& text, const WordList& list, const std::function<bool(int)>& progress = {});

} // namespace Spelling
