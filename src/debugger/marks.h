// SPDX-License-Identifier: MIT
// Places of interest that one pass over a text has collected.
#pragma once

#include <QtGlobal>
#include <vector>

namespace Debugger {

using Marks = std::vector<qsizetype>; // one-based positions, ascending

// Answers "the first mark at or behind a position". It walks from its last answer, so a row of questions
// whose positions grow costs no more than one pass over the marks; a smaller position is answered too, at the
// cost of the way back.
class MarkCursor {
public:
    // `marks` must outlive the cursor.
    explicit MarkCursor(const Marks& marks) : m_marks(marks) {}

    // 0 when there is none.
    qsizetype From(qsizetype position) {
        while (m_next > 0 && m_marks[m_next - 1] >= position) --m_next;
        while (m_next < m_marks.size() && m_marks[m_next] < position) ++m_next;
        return m_next < m_marks.size() ? m_marks[m_next] : 0;
    }

private:
    const Marks& m_marks;
    size_t m_next = 0;
};

} // namespace Debugger
