// SPDX-License-Identifier: MIT
// Which object stands before the dot that has just been typed, and what members it has.
#pragma once

#include <QList>
#include <QString>

namespace ScriptMembers {

// The object's name as the list of script objects has it: the name before the dot itself, or the type that
// the text creates it with (name = new Type(...)). Empty when there is none. `selStart` from 0, behind the
// dot; `objects` is the joined list.
QString ObjectBeforeDot(const QString& text, qsizetype selStart, const QString& objects);

struct Member {
    enum class Kind { Attribute, Function, Object };
    QString name;
    Kind kind;
};
QList<Member> MembersOf(const QString& objects, const QString& name);

} // namespace ScriptMembers
