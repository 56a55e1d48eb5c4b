// SPDX-License-Identifier: MIT
#include "editing/script_members.h"

#include "documents/paths.h"
#include "platform/text.h"
#include "state/lists.h"

namespace ScriptMembers {

QString ObjectBeforeDot(const QString& text, qsizetype selStart, const QString& objects) {
    QString object;
    Attempt([&] {
        qsizetype before = Text::FindBack(text, u".", selStart - 1);
        for (const QStringView stop : {u"(", u")", u" ", u";", u"=", u"\t", u"\r\n"}) {
            const qsizetype at = Text::FindBack(text, stop, selStart - 1);
            if (at > before || before == 0) before = at;
        }
        QString name = Text::Middle(text, before + 1, selStart - before - 1).toString();
        if (name.startsWith(u'\n')) name.remove(0, 1);
        name = Global::CutBefore(name, u"["_s);
        if (name.isEmpty())
            return; // a dot behind nothing asks for no members, though "--" may stand in the list
        if (Lists::BlockStart(objects, name) != 0) {
            object = name;
            return;
        }
        constexpr qsizetype CreationLength = 7; // of " = new" and a blank
        const qsizetype creation = Text::Find(text, QString(name + u" = new"));
        if (creation == 0) return;
        const qsizetype type = creation + name.size() + CreationLength;
        qsizetype end = Text::Find(text, u"(", creation);
        if (end == 0) end = text.size();
        object = Text::Middle(text, type, end - type).toString();
    });
    return object;
}

QList<Member> MembersOf(const QString& objects, const QString& name) {
    QList<Member> members;
    const qsizetype start = name.isEmpty() ? 0 : Lists::BlockStart(objects, name);
    if (start == 0) return members;
    for (const QString& entry : Lists::BlockEntries(objects, start)) {
        if (entry.isEmpty()) continue; // two commas in a row leave no entry that could be chosen
        const Member::Kind kind = entry[0] == u'#'   ? Member::Kind::Attribute
                                  : entry[0] == u'*' ? Member::Kind::Function
                                                     : Member::Kind::Object;
        members.append({entry.sliced(1), kind});
    }
    return members;
}

} // namespace ScriptMembers
