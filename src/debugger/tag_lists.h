// SPDX-License-Identifier: MIT
// Lookups in the delimited list strings, fast enough to be asked for every tag of a page.
#pragma once

#include <QHash>
#include <QString>
#include <QStringView>
#include <vector>

namespace Debugger {

// Answers whether a delimiter, a name and a delimiter stand in a row in a list string, without regard to
// case. This is a search for text, not for entries, and meant so: a name may span several entries ("a-/a" in
// "-a-/a-b-/b"), and what no delimiter follows is not found.
class DelimitedNames {
public:
    DelimitedNames() = default;
    DelimitedNames(QStringView list, QChar delimiter);
    // `name` must be in lower case.
    bool Contains(QStringView name) const;

private:
    static constexpr qsizetype None = -1;
    struct Place {
        qsizetype start = 0;       // where the piece begins in m_list
        qsizetype nextSame = None; // the next place of the same piece
    };

    QString m_list; // in lower case; never changed, for the keys of m_first look into it
    QChar m_delimiter;
    QHash<QStringView, qsizetype> m_first; // piece between two delimiters -> its first place
    std::vector<Place> m_places;
};

// The two lists of the HTML check, prepared from KnownTagString and NoCloseTagString.
struct TagLists {
    TagLists() = default;
    TagLists(QStringView knownTagString, QStringView noCloseTagString)
        : known(knownTagString, u'-'), noClosing(noCloseTagString, u'ß') {}

    DelimitedNames known;
    DelimitedNames noClosing;
};

} // namespace Debugger
