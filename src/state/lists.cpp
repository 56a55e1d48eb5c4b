// SPDX-License-Identifier: MIT
#include "state/lists.h"

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/text.h"
#include "state/global.h"

namespace Lists {

namespace {

const QString BlockEnd = QStringLiteral("<e-");

std::optional<QString> ReadList(const QString& fileName) {
    return Files::ReadProgramText(Files::ProgramFile(fileName));
}

} // namespace

void TokenReader::SkipBlankLines() {
    for (qsizetype at = m_at; at < m_text.size(); ++at) {
        const QChar c = m_text.at(at);
        if (c == u'\r' || c == u'\n') {
            m_at = at + 1;
        } else if (c != u' ') {
            return;
        }
    }
}

std::optional<QString> TokenReader::Next() {
    const auto isLineEnd = [](QChar c) { return c == u'\r' || c == u'\n'; };
    const auto skipBlanks = [this] {
        while (m_at < m_text.size() && m_text.at(m_at) == u' ') ++m_at;
    };
    skipBlanks();
    if (m_at >= m_text.size()) return std::nullopt;
    QString token;
    if (m_text[m_at] == u'"') {
        const qsizetype begin = ++m_at;
        while (m_at < m_text.size() && m_text[m_at] != u'"') ++m_at;
        token = m_text.sliced(begin, m_at - begin);
        while (m_at < m_text.size() && m_text[m_at] != u',' && !isLineEnd(m_text[m_at])) ++m_at;
    } else {
        const qsizetype begin = m_at;
        while (m_at < m_text.size() && m_text[m_at] != u',' && !isLineEnd(m_text[m_at])) ++m_at;
        token = m_text.sliced(begin, m_at - begin);
    }
    // The separator: a comma, and the line end with or without one, also behind blanks.
    if (m_at < m_text.size() && m_text[m_at] == u',') {
        ++m_at;
        skipBlanks();
    }
    if (m_at < m_text.size() && m_text[m_at] == u'\r') ++m_at;
    if (m_at < m_text.size() && m_text[m_at] == u'\n') ++m_at;
    return token;
}

void TellBroken(const QString& fileName) {
    Dialogs::Tell(u"Fehler"_s,
                  u"Die Datei '%1' kann nicht gefunden werden oder enthält einen Fehler."_s.arg(fileName),
                  Dialogs::Icon::Critical);
}

bool LoadTagList() {
    Global::KnownTagString.clear();
    const auto text = ReadList(u"taglist.lst"_s);
    if (!text) return false;
    for (const QString& line : Files::Lines(*text)) Global::KnownTagString += u'-' + line + u"-/"_s + line;
    return true;
}

bool LoadNoCloseTags() {
    const auto text = ReadList(u"attribute.lst"_s);
    if (!text) return false;
    TokenReader reader(*text);
    while (const auto opener = reader.Next()) {
        if (*opener != u"<n-noclosetags-") continue;
        Global::NoCloseTagString.clear();
        for (;;) {
            const auto name = reader.Next();
            if (!name) return false; // the block runs into the end of the file
            if (*name == BlockEnd) break;
            Global::NoCloseTagString += u'ß' + *name + u'ß';
        }
    }
    return true;
}

bool LoadWordChange() {
    Global::WordChangeList.clear();
    const auto text = ReadList(u"wordchange.lst"_s);
    if (!text) return false;
    TokenReader reader(*text);
    while (const auto opener = reader.Next()) {
        if (*opener != u"<w-") continue;
        auto word = reader.Next();
        if (!word) return false;
        Global::WordChangeList += u"<wß"_s;
        // The first token is a word whatever it reads; a block that runs into the end of the file is closed.
        do {
            Global::WordChangeList += *word + u'ß';
            word = reader.Next();
        } while (word && *word != BlockEnd);
        Global::WordChangeList += u"<e- "_s;
    }
    return true;
}

void LoadEventNames() {
    Global::EventNameList.fill({});
    const auto text = ReadList(u"attribute.lst"_s);
    if (!text) return;
    TokenReader reader(*text);
    auto token = reader.Next();
    while (token && *token != u"<s-events-") token = reader.Next();
    Global::EventNameList[0] = u"0"_s;
    if (!token) return;
    size_t count = 0;
    for (token = reader.Next(); token && *token != BlockEnd; token = reader.Next()) {
        if (count + 1 == Global::EventNameList.size()) return;
        Global::EventNameList[++count] = *token;
        Global::EventNameList[0] = QString::number(count);
    }
}

QStringList MetaTagNames() {
    QStringList names;
    const auto text = ReadList(u"attribute.lst"_s);
    if (!text) return names;
    TokenReader reader(*text);
    auto token = reader.Next();
    while (token && *token != u"<m-metatags-") token = reader.Next();
    if (!token) return names;
    for (token = reader.Next(); token && *token != BlockEnd; token = reader.Next()) names << *token;
    return names;
}

bool IsKnownTag(const QString& name) {
    return Text::UpperCase(Global::KnownTagString).contains(u'-' + Text::UpperCase(name) + u'-');
}

bool NeedsNoClosing(const QString& name) {
    return Text::UpperCase(Global::NoCloseTagString).contains(u'ß' + Text::UpperCase(name) + u'ß');
}

std::optional<QString> ReadLinesJoined(const QString& fileName) {
    const auto text = ReadList(fileName);
    if (!text) return std::nullopt;
    QString joined;
    joined.reserve(text->size());
    for (const QString& line : Files::Lines(*text)) joined.append(line).append(u' ');
    return joined;
}

QString ReadScriptObjects() {
    const auto text = ReadList(u"attribute.lst"_s);
    QString joined;
    if (!text) return joined;
    for (const QString& line : Files::Lines(*text)) {
        if (line.startsWith(u"<js-")) joined.append(line).append(u' ');
    }
    return joined;
}

qsizetype BlockStart(const QString& text, const QString& name) {
    const QString marker = u'-' + Text::UpperCase(name) + u'-';
    const qsizetype at = Text::Find(Text::UpperCase(text), marker);
    return at == 0 ? 0 : at + marker.size() + 1;
}

QStringList BlockEntries(const QString& text, qsizetype start) {
    QStringList entries;
    const qsizetype end = Text::Find(text, BlockEnd, start);
    for (;;) {
        const qsizetype comma = Text::Find(text, u",", start);
        if (comma == 0 || (end != 0 && end < comma)) return entries;
        entries << Text::Middle(text, start, comma - start).toString();
        start = comma + 2;
    }
}

std::optional<QString> HelpText(const QString& help, const QString& name) {
    const QString upper = Text::UpperCase(help);
    const QString opener = u"<H-" + Text::UpperCase(name) + u'-';
    const qsizetype entry = Text::Find(upper, opener);
    if (entry == 0) return std::nullopt;
    const qsizetype blank = Text::Find(upper, u" ", entry);
    const qsizetype end = Text::Find(upper, u"<E-", entry);
    if (blank == 0 || end <= blank) return std::nullopt;
    return help.sliced(blank, end - blank - 1);
}

QString DecodeListToken(QString text, const QString& token) {
    constexpr qsizetype LongestRest = 255;
    if (token != u"#mns#") return text;
    for (qsizetype at = text.indexOf(token); at >= 0; at = text.indexOf(token)) {
        text = text.first(at) + u'-' + text.sliced(at + token.size()).left(LongestRest);
    }
    return text;
}

} // namespace Lists
