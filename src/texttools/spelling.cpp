// SPDX-License-Identifier: MIT
#include "texttools/spelling.h"

#include "documents/code_access.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "platform/text.h"

#include <algorithm>

namespace Spelling {

namespace {

constexpr QStringView Punctuation = u".,:;-()!?$&/\\={}'\"";

// `piece` as it is looked up; empty when it is no word.
QString WordIn(QStringView piece) {
    if (std::ranges::any_of(piece, RuntimeExtension::IsDigit)) return {};
    QString word;
    word.reserve(piece.size());
    for (const QChar c : piece) {
        if (!Punctuation.contains(c)) word += c;
    }
    return word;
}

} // namespace

WordList::WordList(const QString& file) {
    const QStringList lines = Files::Lines(file);
    m_upperBound = lines.isEmpty() ? -1 : lines.constFirst().count(u' ');
    const QString upper = Text::UpperCase(file);
    m_words.reserve(m_upperBound + 1);
    qsizetype blank = upper.indexOf(u' ');
    while (blank >= 0) {
        const qsizetype next = upper.indexOf(u' ', blank + 1);
        if (next > blank + 1) m_words.insert(upper.sliced(blank + 1, next - blank - 1));
        blank = next;
    }
}

bool WordList::Has(QStringView word) const { return m_words.contains(Text::UpperCase(word)); }

Plain WithoutTags(const QString& page) {
    const QStringView source = page;
    QString kept;
    kept.reserve(page.size());
    qsizetype taken = 0; // `source` up to here is in `kept`, or gone
    // Each round looks from one character further on, in a text that has become shorter.
    for (qsizetype round = 0;; ++round) {
        const qsizetype from = taken + std::max<qsizetype>(round - kept.size(), 0);
        const qsizetype tag = from <= source.size() ? source.indexOf(u'<', from) : -1;
        if (tag < 0) break;
        kept += source.sliced(taken, tag - taken);
        const qsizetype end = source.indexOf(u'>', tag);
        if (end < 0) return {kept, false};
        taken = end + 1;
    }
    kept += source.sliced(taken);
    return {kept, true};
}

QStringList Unknown(const QString& text, const WordList& list, const std::function<bool(int)>& progress) {
    QString line = text;
    line.replace(Text::LineBreak.toString(), u" "_s).replace(u'\t', u' ');
    QStringList unknown;
    int percent = -1;
    qsizetype begin = 0;
    while (begin <= line.size()) {
        qsizetype end = line.indexOf(u' ', begin);
        if (end < 0) end = line.size();
        const QString word = WordIn(QStringView(line).sliced(begin, end - begin));
        if (!word.isEmpty() && !list.Has(word)) unknown.append(word);
        begin = end + 1;
        const int done = static_cast<int>(end * 100 / std::max<qsizetype>(line.size(), 1));
        if (progress && done != percent && !progress(percent = done)) break;
    }
    return unknown;
}

} // namespace Spelling
