// SPDX-License-Identifier: MIT
// Questions to the user. They stand behind one handler, which the start sets to real dialogs and tests
// replace.
#pragma once

#include <QString>
#include <QStringList>

namespace Dialogs {

enum class Icon { None, Critical, Question, Exclamation, Information };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

struct Message {
    QString title;
    QString text;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
    Answer preset = Answer::Yes; // the default button of a question
};

struct FileQuestion {
    QString title;
    // "label|pattern;pattern|label|pattern ...", first group preset
    QString filter;
    QString name = {}; // of the file, preset when saving
};

class Handler {
public:
    virtual ~Handler() = default;
    virtual Answer Ask(const Message& message) = 0;
    // The text that the user enters; empty when he cancels.
    virtual QString AskText(const QString& prompt, const QString& title, const QString& preset) = 0;
    // The chosen path in the program's form; empty when the user cancels.
    virtual QString ChooseOpenFile(const FileQuestion& question) = 0;
    virtual QString ChooseSaveFile(const FileQuestion& question) = 0;
    virtual QString ChooseFolder(const QString& title) = 0;
    virtual void Beep() = 0;
    // Opens an address, a mail link or a file with the program that the system has for it.
    virtual void OpenAddress(const QString& address) = 0;
};

// Sets the handler, which must outlive its use, and returns the one before. Without a handler every question
// is answered as if cancelled, every message as read.
Handler* Install(Handler* handler);

Answer MsgBox(const Message& message);
// A message with the Ok button.
void Tell(const QString& title, const QString& text, Icon icon);
QString InputBox(const QString& prompt, const QString& title, const QString& preset = {});
QString OpenFileDialog(const QString& title, const QString& filter);
// `name` (may be empty) is the file's name, without a folder, that is preset.
QString SaveFileDialog(const QString& title, const QString& filter, const QString& name = {});
QString FolderDialog(const QString& title);
// Whether the chosen `path` may be written: where a file of that name can be read it asks, with the icon and
// the default button that the command has.
bool MayOverwrite(const QString& path, Icon icon, Answer preset);
void Beep();
void OpenAddress(const QString& address);

} // namespace Dialogs
