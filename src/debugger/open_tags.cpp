// SPDX-License-Identifier: MIT
#include "debugger/open_tags.h"

#include "platform/text.h"

#include <algorithm>

namespace Debugger {

OpenTags::OpenTags() { NameOf(Blanked); }

size_t OpenTags::NameOf(QStringView name) {
    const QString lower = Text::LowerCase(name);
    const auto known = m_names.constFind(lower);
    if (known != m_names.constEnd()) return *known;
    m_names.insert(lower, m_open.size());
    m_open.emplace_back();
    return m_open.size() - 1;
}

void OpenTags::Enter(size_t name, QStringView written, size_t spelling, qsizetype position) {
    const size_t entry = m_entries.size();
    m_entries.push_back({spelling, position, false, None});
    if (name == BlankedName) {
        // A page that uses this name itself: its tag cannot be told from a blanked entry.
        m_firstBlanked = std::min(m_firstBlanked, entry);
        m_entries.back().blanked = written == Blanked;
        return;
    }
    Queue& queue = m_open[name];
    if (queue.oldest == None) {
        queue.oldest = entry;
    } else {
        m_entries[queue.newest].next = entry;
    }
    queue.newest = entry;
}

bool OpenTags::MarkTagClosed(size_t name) {
    const size_t entry = name == BlankedName ? m_firstBlanked : m_open[name].oldest;
    if (entry == None) return false;
    if (name != BlankedName) m_open[name].oldest = m_entries[entry].next;
    m_entries[entry].blanked = true;
    m_firstBlanked = std::min(m_firstBlanked, entry);
    return true;
}

} // namespace Debugger
