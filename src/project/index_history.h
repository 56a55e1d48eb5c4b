// SPDX-License-Identifier: MIT
// The pages that were left by navigating in the project window, and the project's index page.
#pragma once

#include <QString>
#include <QStringList>

class IndexHistory {
public:
    static constexpr qsizetype Capacity = 32767;

    // Remembers a page that is being left. A document without a name is passed over, since there is no way
    // back to it; in a full history the last page gives way.
    void Push(const QString& page);
    // The page left last; empty without any. It is the project's index page for as long as it is the first
    // one, also when it has been gone back to.
    QString TakeLast();
    void Clear();

    bool IsEmpty() const { return m_count == 0; }
    qsizetype Count() const { return m_count; }
    // The first page ever pushed since Clear(); empty without any.
    QString First() const { return m_pages.value(0); }

private:
    QStringList m_pages; // what lies behind m_count was gone back to
    qsizetype m_count = 0;
};
