// SPDX-License-Identifier: MIT
#include "texttools/search_run.h"

#include "platform/text.h"

#include <algorithm>

void SearchRun::Begin(const CodeBox& box, Range range) {
    const bool whole = range == Range::WholeText;
    m_rangeStart = whole ? 0 : box.SelStart();
    m_rangeEnd = whole ? box.Text().size() : box.SelStart() + box.SelLength();
    m_position = m_rangeStart;
}

bool SearchRun::FindNext(CodeBox& box, const Wanted& wanted) {
    const qsizetype hit = Next(box, wanted);
    if (hit == 0) return false;
    box.SetSelStart(hit - 1);
    box.SetSelLength(wanted.text.size());
    m_position = hit + 1;
    return true;
}

bool SearchRun::ReplaceNext(CodeBox& box, const Wanted& wanted) {
    if (!FindNext(box, wanted)) return false;
    m_position += wanted.replacement.size() - 1;
    box.SetSelText(wanted.replacement);
    m_rangeEnd += wanted.replacement.size() - wanted.text.size();
    return true;
}

qsizetype SearchRun::ReplaceAll(CodeBox& box, const Wanted& wanted, Range range) {
    Begin(box, range);
    const QString text = box.Text();
    const qsizetype first = Next(box, wanted);
    qsizetype count = 0;
    if (first > 0) {
        const QString needle = wanted.matchCase ? wanted.text : Text::UpperCase(wanted.text);
        const QStringView haystack = Haystack(text, wanted.matchCase);
        QString replaced;
        qsizetype behind = first; // the part of the text from here on is not in `replaced` yet
        for (qsizetype hit = first; hit > 0 && hit <= m_rangeEnd;
             hit = Text::Find(haystack, needle, behind)) {
            replaced += Text::Middle(text, behind, hit - behind);
            replaced += wanted.replacement;
            behind = hit + needle.size();
            ++count;
        }
        box.SetSelStart(first - 1);
        box.SetSelLength(behind - first);
        box.SetSelText(replaced);
        m_rangeEnd += count * (wanted.replacement.size() - wanted.text.size());
    }
    m_position = m_rangeStart;
    box.SetSelStart(m_rangeStart);
    box.SetSelLength(std::max<qsizetype>(m_rangeEnd - m_rangeStart, 0));
    return count;
}

// Position of the next hit; at the end of the range 0, and the search stands at its start again.
qsizetype SearchRun::Next(const CodeBox& box, const Wanted& wanted) {
    const qsizetype start = std::max<qsizetype>(m_position, 1);
    qsizetype hit = 0;
    if (!wanted.text.isEmpty()) {
        const QString needle = wanted.matchCase ? wanted.text : Text::UpperCase(wanted.text);
        hit = Text::Find(Haystack(box.Text(), wanted.matchCase), needle, start);
    }
    if (hit > 0 && hit <= m_rangeEnd) return hit;
    m_position = m_rangeStart;
    return 0;
}

// The text, or its upper case, which is kept: from hit to hit the same text is searched.
QStringView SearchRun::Haystack(const QString& text, bool matchCase) {
    if (m_text.constData() != text.constData() || m_text.size() != text.size()) {
        m_text = text;
        m_upperText.clear();
    }
    if (matchCase) return m_text;
    if (m_upperText.isEmpty()) m_upperText = Text::UpperCase(m_text);
    return m_upperText;
}
