// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <deque>

// A stack of texts of which neighbours differ little: the newest stands whole, each older one as its
// difference to the next newer. So 64 copies of a large page cost little more than one.
class TextHistory {
public:
    int Count() const { return m_empty ? 0 : static_cast<int>(m_older.size()) + 1; }
    // Puts `text` on top and, beyond `depth` texts, drops the oldest.
    void Push(const QString& text, int depth);
    // Takes the newest away.
    void Pop();
    // The text at `index`, 0 the newest. Costs time proportional to the texts passed.
    QString At(int index) const;
    const QString& Newest() const { return m_newest; }
    // Doubles the oldest text at the end.
    void RepeatOldest();
    void Clear();

private:
    // How an older text comes from the next newer one: its first `prefix` and last `suffix` characters stay,
    // and `middle` stands between them.
    struct Difference {
        qsizetype prefix;
        qsizetype suffix;
        QString middle;
    };
    static Difference Between(const QString& newer, const QString& older);
    static QString Apply(const QString& newer, const Difference& difference);
    qsizetype OldestSize() const;

    bool m_empty = true;
    QString m_newest;
    std::deque<Difference> m_older;
};
