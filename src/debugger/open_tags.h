// SPDX-License-Identifier: MIT
// The table of open tags. A closing tag blanks the oldest open one of its name, wherever it stands: the check
// knows no nesting, and is meant not to.
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>
#include <limits>
#include <vector>

namespace Debugger {

class OpenTags {
public:
    // What a closed entry is called from then on.
    static constexpr QStringView Blanked = u"<[NOTHING]-";

    struct Entry {
        size_t spelling = 0;    // the caller's number of the name as it is written
        qsizetype position = 0; // one-based, of the "<"
        bool blanked = false;
        size_t next = None; // the next open entry of the same name
    };

    OpenTags();
    // The number of a name, the same for every spelling in upper and lower case.
    size_t NameOf(QStringView name);
    // Adds an opening tag. `name` is the number of `written`, which is the name as it stands in the document.
    void Enter(size_t name, QStringView written, size_t spelling, qsizetype position);
    // Blanks the oldest entry of that name and returns whether there was one. Takes constant time.
    bool MarkTagClosed(size_t name);

    const std::vector<Entry>& Entries() const { return m_entries; }

private:
    static constexpr size_t None = std::numeric_limits<size_t>::max();
    static constexpr size_t BlankedName = 0;
    struct Queue {
        size_t oldest = None;
        size_t newest = None;
    };

    QHash<QString, size_t> m_names; // in lower case
    std::vector<Queue> m_open;      // by name
    std::vector<Entry> m_entries;   // in the order of the document
    size_t m_firstBlanked = None;   // the oldest entry that bears the name of blanked ones
};

} // namespace Debugger
