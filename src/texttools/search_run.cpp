// SPDX-License-Identifier: MIT
#include "texttools/search_run.h"

#include "platform/text.h"

#include <algorithm>

void SearchRun::Begin(const CodeBox& box, Range range) {
    Take(box.Text());
    m_whole = range == Range::WholeText;
    m_rangeStart = m_whole ? 0 : box.SelStart();
    m_rangeEnd = m_whole ? m_text.size() : box.SelStart() + box.SelLength();
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
    Take(box.Text());
    return true;
}

qsizetype SearchRun::ReplaceAll(CodeBox& box, const Wanted& wanted, Range range) {
    Begin(box, range);
    const QString text = m_text;
    const qsizetype first = Next(box, wanted);
    qsizetype count = 0;
    if (first > 0) {
        const QString needle = wanted.matchCase ? wanted.text : Text::UpperCase(wanted.text);
        const QStringView haystack = Haystack(wanted.matchCase);
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
        m_rangeEnd += count * (wanted.replacement.size() - wanted.text.size());
        box.SetSelText(replaced, m_rangeStart);
        Take(box.Text());
    }
    m_position = m_rangeStart;
    box.SetSelStart(m_rangeStart);
    box.SetSelLength(std::max<qsizetype>(m_rangeEnd - m_rangeStart, 0));
    return count;
}

// Position of the next hit; at the end of the range 0, and the search stands at its start again.
qsizetype SearchRun::Next(const CodeBox& box, const Wanted& wanted) {
    FollowChanges(box.Text());
    const qsizetype start = std::max<qsizetype>(m_position, 1);
    qsizetype hit = 0;
    if (!wanted.text.isEmpty()) {
        const QString needle = wanted.matchCase ? wanted.text : Text::UpperCase(wanted.text);
        hit = Text::Find(Haystack(wanted.matchCase), needle, start);
    }
    if (hit > 0 && hit <= m_rangeEnd) return hit;
    m_position = m_rangeStart;
    return 0;
}

// What has been typed or deleted since the last step moves the places behind it; a place within it goes to
// its beginning. So the search neither passes over a hit nor stops before the end of the text.
void SearchRun::FollowChanges(const QString& text) {
    if (m_text.constData() == text.constData() && m_text.size() == text.size()) return;
    const qsizetype same = Text::CommonPrefix(m_text, text);
    const qsizetype tail =
        Text::CommonSuffix(QStringView(m_text).sliced(same), QStringView(text).sliced(same));
    const auto moved = [&](qsizetype offset) {
        if (offset <= same) return offset;
        const bool behind = offset >= m_text.size() - tail;
        return behind ? offset + text.size() - m_text.size() : same;
    };
    if (m_position > 0) m_position = moved(m_position - 1) + 1;
    m_rangeStart = moved(m_rangeStart);
    m_rangeEnd = m_whole ? text.size() : moved(m_rangeEnd);
    Take(text);
}

void SearchRun::Take(const QString& text) {
    m_text = text;
    m_upperText.clear();
}

// The text, or its upper case, which is kept: from hit to hit the same text is searched.
QStringView SearchRun::Haystack(bool matchCase) {
    if (matchCase) return m_text;
    if (m_upperText.isEmpty()) m_upperText = Text::UpperCase(m_text);
    return m_upperText;
}
