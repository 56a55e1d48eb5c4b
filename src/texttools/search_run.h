// SPDX-License-Identifier: MIT
#pragma once

#include "documents/code_box.h"

// A search through the code box that goes on from hit to hit: plain text, no patterns. Positions are
// one-based unless they are said to be offsets. The text may change between two steps: the search stays at
// its characters.
class SearchRun {
public:
    struct Wanted {
        QString text;
        QString replacement;
        bool matchCase = false;
    };
    enum class Range { WholeText, Selection };

    // Begins anew at the start of the range. A search in the selection begins one character before it and may
    // find a hit there, and a hit may reach beyond its end: both are meant.
    void Begin(const CodeBox& box, Range range);
    // The next search begins with a range of its own.
    void Forget() { m_position = 0; }
    // Whether a search has begun that can be gone on with.
    bool HasBegun() const { return m_position >= 1; }

    // Selects the next hit and returns whether there is one; the next search finds hits that overlap it. When
    // there is none, the search begins anew. Nothing is found for an empty text.
    bool FindNext(CodeBox& box, const Wanted& wanted);
    // Replaces the next hit, not the one that is selected, and returns whether there is one.
    bool ReplaceNext(CodeBox& box, const Wanted& wanted);
    // Replaces all hits of the range from its start, with one change of the box, and selects the range, which
    // has grown or shrunk with them. Returns their number.
    qsizetype ReplaceAll(CodeBox& box, const Wanted& wanted, Range range);

private:
    qsizetype Next(const CodeBox& box, const Wanted& wanted);
    void FollowChanges(const QString& text);
    void Take(const QString& text);
    QStringView Haystack(bool matchCase);

    qsizetype m_position = 0;   // where the next search begins; 0 while none has begun
    qsizetype m_rangeStart = 0; // offset
    qsizetype m_rangeEnd = 0;   // the last position at which a hit may begin
    bool m_whole = true;        // the range is the whole text, whatever becomes of it
    QString m_text;             // as of the last step; shared with the box
    QString m_upperText;
};
