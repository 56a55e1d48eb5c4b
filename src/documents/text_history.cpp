// SPDX-License-Identifier: MIT
#include "documents/text_history.h"

#include "platform/text.h"

#include <algorithm>

TextHistory::Difference TextHistory::Between(const QString& newer, const QString& older) {
    const qsizetype shorter = std::min(newer.size(), older.size());
    if (newer.constData() == older.constData() && newer.size() == older.size()) return {shorter, 0, {}};
    const qsizetype prefix = Text::CommonPrefix(newer, older);
    const qsizetype suffix =
        Text::CommonSuffix(QStringView(newer).sliced(prefix), QStringView(older).sliced(prefix));
    return {prefix, suffix, older.sliced(prefix, older.size() - prefix - suffix)};
}

QString TextHistory::Apply(const QString& newer, const Difference& difference) {
    if (difference.middle.isEmpty() && difference.prefix + difference.suffix == newer.size()) return newer;
    const QStringView view(newer);
    QString older;
    older.reserve(difference.prefix + difference.middle.size() + difference.suffix);
    return older.append(view.first(difference.prefix))
        .append(difference.middle)
        .append(view.last(difference.suffix));
}

void TextHistory::Push(const QString& text, int depth) {
    if (!m_empty) m_older.push_front(Between(text, m_newest));
    m_newest = text;
    m_empty = false;
    while (Count() > depth) m_older.pop_back();
}

void TextHistory::Pop() {
    if (m_older.empty()) {
        Clear();
        return;
    }
    m_newest = Apply(m_newest, m_older.front());
    m_older.pop_front();
}

QString TextHistory::At(int index) const {
    QString text = m_newest;
    for (int i = 0; i < index; ++i) text = Apply(text, m_older[static_cast<size_t>(i)]);
    return text;
}

// Read from the last difference alone: an undo step asks for it once the history is full.
qsizetype TextHistory::OldestSize() const {
    if (m_older.empty()) return m_newest.size();
    const Difference& last = m_older.back();
    return last.prefix + last.middle.size() + last.suffix;
}

void TextHistory::RepeatOldest() {
    if (!m_empty) m_older.push_back({OldestSize(), 0, {}});
}

void TextHistory::Clear() {
    m_newest.clear();
    m_older.clear();
    m_empty = true;
}
