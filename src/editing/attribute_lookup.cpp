// SPDX-License-Identifier: MIT
#include "editing/attribute_lookup.h"

#include "documents/code_access.h"
#include "platform/text.h"
#include "state/global.h"
#include "state/lists.h"

namespace AttributeLookup {

std::optional<Tag> TagAt(const QString& text, qsizetype selStart) {
    Tag tag;
    for (qsizetype i = selStart; i >= 1 && tag.start == 0; --i) {
        if (text[i - 1] == u'>') return std::nullopt;
        if (text[i - 1] == u'<') tag.start = i;
    }
    if (tag.start == 0) return std::nullopt;
    for (qsizetype i = tag.start + 1; i <= text.size() && tag.nameLength == 0; ++i) {
        const QChar c = text[i - 1];
        if (c == u'<') return std::nullopt;
        if (c != u' ' && c != u'>') continue;
        tag.nameLength = i - tag.start;
        tag.closedAtName = c == u'>';
    }
    if (tag.nameLength == 0) return std::nullopt;
    tag.name = text.sliced(tag.start, tag.nameLength - 1);
    if (tag.name.endsWith(u'/')) {
        tag.name.chop(1);
        --tag.nameLength; // an attribute goes behind the name, before the slash
    }
    return tag;
}

QStringList AttributesOf(const QString& attributes, const QString& name) {
    if (!Lists::IsKnownTag(name)) return {};
    const qsizetype start = Lists::BlockStart(attributes, name);
    return start == 0 ? QStringList() : Lists::BlockEntries(attributes, start);
}

bool IsHeading(const QString& entry) { return entry.startsWith(u'<') || entry.startsWith(u'·'); }

namespace {
QString Delimited(const QString& word) { return u'ß' + Text::LowerCase(word) + u'ß'; }
} // namespace

bool HasWords(const QString& word) {
    return !word.isEmpty() && Text::LowerCase(Global::WordChangeList).contains(Delimited(word));
}

QStringList WordsFor(const QString& word) {
    const QString& list = Global::WordChangeList;
    const qsizetype hit = Text::LowerCase(list).indexOf(Delimited(word));
    if (hit < 0) return {};
    constexpr QStringView opener = u"<wß";
    const qsizetype begin = list.lastIndexOf(opener, hit) + opener.size();
    qsizetype end = list.indexOf(u"<e-", hit);
    if (end < 0) end = list.size();
    QStringList words;
    // Two commas in a row in the list file leave no word that could be chosen.
    for (const QString& entry : list.sliced(begin, end - begin).split(u'ß', Qt::SkipEmptyParts)) {
        QString shown = Lists::DecodeListToken(entry, u"ß"_s);
        if (word == Text::UpperCase(word)) {
            shown = CodeAccess::UpperCase(shown);
        } else if (word == Text::LowerCase(word)) {
            shown = CodeAccess::LowerCase(shown);
        }
        words << shown;
    }
    return words;
}

} // namespace AttributeLookup
