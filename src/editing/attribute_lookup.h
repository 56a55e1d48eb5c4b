// SPDX-License-Identifier: MIT
// What a right click in the code offers: attributes of a tag, or words for the selection.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace AttributeLookup {

struct Tag {
    qsizetype start = 0;       // one-based position of its "<"
    qsizetype nameLength = 0;  // of "<" and the name
    bool closedAtName = false; // the name ended at ">" and not at a blank
    QString name;              // without a slash at its end
};
// The tag that the caret (`selStart` from 0) stands in; nothing outside a tag.
std::optional<Tag> TagAt(const QString& text, qsizetype selStart);

// The attributes of a known tag; `attributes` is the joined attribute list. Empty for a tag without a block.
QStringList AttributesOf(const QString& attributes, const QString& name);

// Whether an entry is a heading of its block, which inserts nothing.
bool IsHeading(const QString& entry);

// Whether the word list knows `word`, in any case.
bool HasWords(const QString& word);
// The words that may replace `word`, in the case that it is written in.
QStringList WordsFor(const QString& word);

} // namespace AttributeLookup
