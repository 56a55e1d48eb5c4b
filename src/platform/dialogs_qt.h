// SPDX-License-Identifier: MIT
#pragma once

#include "platform/dialogs.h"

#include <functional>

class QWidget;

namespace Dialogs {

// The real dialogs of the desktop, modal to the active window.
class QtHandler : public Handler {
public:
    // `startFolder` names the folder (system form) that file dialogs begin in; an empty answer means the last
    // one. `programName` is the title of messages without one.
    QtHandler(std::function<QString()> startFolder, QString programName)
        : m_startFolder(std::move(startFolder)), m_programName(std::move(programName)) {}
    Answer Ask(const Message& message) override;
    QString AskText(const QString& prompt, const QString& title, const QString& preset) override;
    QString ChooseOpenFile(const FileQuestion& question) override;
    QString ChooseSaveFile(const FileQuestion& question) override;
    QString ChooseFolder(const QString& title) override;
    void Beep() override;
    void OpenAddress(const QString& address) override;

private:
    QString ChooseFile(const FileQuestion& question, bool save);
    QString StartFolder() const;

    std::function<QString()> m_startFolder;
    const QString m_programName;
    QString m_lastFolder; // system form
};

// The groups of a "label|pattern;pattern" filter as Qt's dialogs read them.
QStringList QtFilters(const QString& filter);

// The extension, with its dot, that a name without one gets in the group which the dialog calls `chosen`: the
// first of the group in `filter`; empty for all files.
QString ExtensionOfGroup(const QString& filter, const QString& chosen);

} // namespace Dialogs
