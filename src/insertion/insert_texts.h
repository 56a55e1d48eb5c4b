// SPDX-License-Identifier: MIT
// The texts that the list, meta tag, script and style dialogs put together.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace InsertTexts {

// A list with one entry. `start` is left out when it is empty, and is not checked.
QString List(bool ordered, const QString& type, const QString& start);

// An entry of a check list: a name, and a value behind its first ":".
struct Entry {
    QString text;
    QString Name() const { return text.section(u':', 0, 0); }
    QString Value() const { return text.section(u':', 1); }
    void SetValue(const QString& value) { text = Name() + u':' + value; }
};
// A meta tag for each entry.
QString MetaTags(const QList<Entry>& entries, const QString& docType);

// A script tag with an empty line in a comment. The caret is put BehindScript characters before its end, in
// the line break of the empty line: the number is meant, for both languages.
QString Script(const QString& language);
inline constexpr qsizetype BehindScript = 45;

// A style tag with an empty line in a comment. The caret belongs BehindStyle characters before its end.
QString StyleTag();
inline constexpr qsizetype BehindStyle = 20;

enum class RuleForm { Rule, Lines, OneLine };
// A style rule of the object, or its declarations alone. `entries` are "name" or "name:value".
QString StyleRule(const QString& object, const QStringList& entries, RuleForm form);

} // namespace InsertTexts
