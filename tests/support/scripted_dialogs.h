// SPDX-License-Identifier: MIT
#pragma once

#include "platform/dialogs.h"

#include <deque>
#include <functional>

// Answers the program's questions from a script and fails the test on any question that was not expected. The
// expected ones that never came fail it at the end.
class ScriptedDialogs : public Dialogs::Handler {
public:
    ScriptedDialogs();
    ~ScriptedDialogs() override;

    void ExpectMessage(const QString& title, const QString& text,
                       Dialogs::Answer answer = Dialogs::Answer::Ok,
                       Dialogs::Icon icon = Dialogs::Icon::None) { // Icon::None: any
        m_script.push_back({"message", title, text, {}, answer, icon});
    }
    void ExpectText(const QString& title, const QString& answer) { Expect("input", title, answer); }
    void ExpectOpenFile(const QString& title, const QString& path) { Expect("open", title, path); }
    void ExpectSaveFile(const QString& title, const QString& path) { Expect("save", title, path); }
    void ExpectBeep() { Expect("beep", {}, {}); }
    void ExpectAddress(const QString& address) { Expect("address", address, {}); }
    // What is said of a text that is not saved, and where a file cannot be written or read.
    void ExpectUnsaved(const QString& title, Dialogs::Answer answer);
    void ExpectFailedSave();
    void ExpectFailedLoad();
    // Whether all expected questions have come.
    bool Finished() const { return m_script.empty(); }

    Dialogs::Answer Ask(const Dialogs::Message& message) override;
    QString AskText(const QString& prompt, const QString& title, const QString& preset) override;
    QString ChooseOpenFile(const Dialogs::FileQuestion& question) override;
    QString ChooseSaveFile(const Dialogs::FileQuestion& question) override;
    QString ChooseFolder(const QString& title) override;
    void Beep() override;
    void OpenAddress(const QString& address) override;

    Dialogs::Message lastMessage;

private:
    struct Step {
        QString kind;
        QString title;
        QString text;
        QString answer;
        Dialogs::Answer button = Dialogs::Answer::Ok;
        Dialogs::Icon icon = Dialogs::Icon::None;
    };
    void Expect(const QString& kind, const QString& title, const QString& answer) {
        m_script.push_back({kind, title, {}, answer});
    }
    Step Take(const QString& kind, const QString& title, const QString& text);

    std::deque<Step> m_script;
    Dialogs::Handler* m_before;
};
