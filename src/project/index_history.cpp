// SPDX-License-Identifier: MIT
#include "project/index_history.h"

void IndexHistory::Push(const QString& page) {
    if (page.isEmpty()) return;
    if (m_count == Capacity) --m_count;
    m_pages.resize(m_count);
    m_pages.append(page);
    ++m_count;
}

QString IndexHistory::TakeLast() {
    if (m_count == 0) return {};
    --m_count;
    return m_pages.at(m_count);
}

void IndexHistory::Clear() {
    m_pages.clear();
    m_count = 0;
}
