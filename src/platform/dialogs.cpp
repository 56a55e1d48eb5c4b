// SPDX-License-Identifier: MIT
#include "platform/dialogs.h"

#include "platform/files.h"
#include "platform/literals.h"

#include <utility>

namespace Dialogs {

namespace {
Handler*& Current() {
    static Handler* handler = nullptr;
    return handler;
}
} // namespace

Handler* Install(Handler* handler) { return std::exchange(Current(), handler); }

Answer MsgBox(const Message& message) {
    if (Current()) return Current()->Ask(message);
    return message.buttons == Buttons::Ok      ? Answer::Ok
           : message.buttons == Buttons::YesNo ? Answer::No
                                               : Answer::Cancel;
}

void Tell(const QString& title, const QString& text, Icon icon) { MsgBox({title, text, icon}); }

QString InputBox(const QString& prompt, const QString& title, const QString& preset) {
    return Current() ? Current()->AskText(prompt, title, preset) : QString();
}

QString OpenFileDialog(const QString& title, const QString& filter) {
    return Current() ? Current()->ChooseOpenFile({title, filter}) : QString();
}

QString SaveFileDialog(const QString& title, const QString& filter, const QString& name) {
    return Current() ? Current()->ChooseSaveFile({title, filter, name}) : QString();
}

QString FolderDialog(const QString& title) { return Current() ? Current()->ChooseFolder(title) : QString(); }

bool MayOverwrite(const QString& path, Icon icon, Answer preset) {
    if (!Files::CanRead(path)) return true;
    return MsgBox({u"Speichern"_s,
                   u"Eine Datei mit diesem Namen existiert bereits.\rSoll sie überschrieben werden?"_s, icon,
                   Buttons::YesNo, preset}) == Answer::Yes;
}

void Beep() {
    if (Current()) Current()->Beep();
}

void OpenAddress(const QString& address) {
    if (Current()) Current()->OpenAddress(address);
}

} // namespace Dialogs
