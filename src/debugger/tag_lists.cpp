// SPDX-License-Identifier: MIT
#include "debugger/tag_lists.h"

#include "platform/text.h"

namespace Debugger {

DelimitedNames::DelimitedNames(QStringView list, QChar delimiter)
    : m_list(Text::LowerCase(list)), m_delimiter(delimiter) {
    const QStringView text = m_list;
    qsizetype start = text.indexOf(delimiter) + 1;
    if (start == 0) return;
    QHash<QStringView, qsizetype> last;
    for (qsizetype end = text.indexOf(delimiter, start); end >= 0; end = text.indexOf(delimiter, start)) {
        const QStringView piece = text.sliced(start, end - start);
        const auto place = static_cast<qsizetype>(m_places.size());
        m_places.push_back({start, None});
        const auto before = last.constFind(piece);
        if (before == last.constEnd()) {
            m_first.insert(piece, place);
        } else {
            m_places[static_cast<size_t>(*before)].nextSame = place;
        }
        last.insert(piece, place);
        start = end + 1;
    }
}

bool DelimitedNames::Contains(QStringView name) const {
    const qsizetype inner = name.indexOf(m_delimiter);
    qsizetype at = m_first.value(inner < 0 ? name : name.first(inner), None);
    if (inner < 0) return at != None;
    const QStringView text = m_list;
    while (at != None) {
        const Place place = m_places[static_cast<size_t>(at)];
        const QStringView rest = text.sliced(place.start);
        if (rest.startsWith(name) && rest.size() > name.size() && rest[name.size()] == m_delimiter)
            return true;
        at = place.nextSame;
    }
    return false;
}

} // namespace Debugger
