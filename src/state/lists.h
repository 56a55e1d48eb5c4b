// SPDX-License-Identifier: MIT
// The list files of the program and their lookups.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace Lists {

// Loaders of the start. Each answers whether its file could be read; the start tells a failure and ends.
bool LoadTagList();
bool LoadNoCloseTags();
bool LoadWordChange();
// Never fails: a list without events is empty, and of more than 100 events the first 100 are kept.
void LoadEventNames();

// The names of the meta tags in attribute.lst; those before the end of a file that breaks off.
QStringList MetaTagNames();

// The message for one of the list files that is missing or broken.
void TellBroken(const QString& fileName);

// Reads a file's tokens: one ends at a comma or a line end, leading blanks are dropped, and one in double
// quotes keeps its commas and loses the quotes. A line end behind a comma adds no empty token.
class TokenReader {
public:
    explicit TokenReader(QString text) : m_text(std::move(text)) {}
    std::optional<QString> Next(); // nothing at the end of the file
    // Steps over line ends and blanks in front of the next token, which would be empty ones.
    void SkipBlankLines();

private:
    QString m_text;
    qsizetype m_at = 0;
};

// Whether `name` ("b", "/b") is a known tag, in any case.
bool IsKnownTag(const QString& name);
// Whether the tag `name` needs no closing tag, in any case.
bool NeedsNoClosing(const QString& name);

// Every line of a list file with a blank behind it; nothing when the file cannot be read.
std::optional<QString> ReadLinesJoined(const QString& fileName);
// The same, of the lines alone that describe script objects.
QString ReadScriptObjects();

// One-based position where the entries of the block `name` begin in `text`: behind the first "-" name "-" in
// any case and one further character. 0 when there is none.
qsizetype BlockStart(const QString& text, const QString& name);
// The entries of the block from `start` on; the last one counts only if a comma ends it.
QStringList BlockEntries(const QString& text, qsizetype start);

// The help text of the tag `name` in the joined help file, in its own case; nothing without an entry.
std::optional<QString> HelpText(const QString& help, const QString& name);

// Replaces `token` in `text` by what it stands for. The one token that stands for something is "#mns#", a
// minus sign; no other may be passed that occurs in the text.
QString DecodeListToken(QString text, const QString& token);

} // namespace Lists
