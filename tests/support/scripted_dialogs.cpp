// SPDX-License-Identifier: MIT
#include "support/scripted_dialogs.h"

#include "platform/literals.h"

#include <QTest>

ScriptedDialogs::ScriptedDialogs() : m_before(Dialogs::Install(this)) {}

ScriptedDialogs::~ScriptedDialogs() {
    Dialogs::Install(m_before);
    for (const Step& step : m_script) {
        QTest::qFail(
            qPrintable(u"expected but never asked: %1 '%2' %3"_s.arg(step.kind, step.title, step.text)),
            __FILE__, __LINE__);
    }
}

ScriptedDialogs::Step ScriptedDialogs::Take(const QString& kind, const QString& title, const QString& text) {
    const Step step = m_script.empty() ? Step{} : m_script.front();
    if (step.kind != kind || step.title != title || (kind == u"message" && step.text != text)) {
        QTest::qFail(qPrintable(u"unexpected %1 '%2' %3; the script says %4 '%5' %6"_s.arg(
                         kind, title, text, step.kind, step.title, step.text)),
                     __FILE__, __LINE__);
        return {};
    }
    m_script.pop_front();
    return step;
}

void ScriptedDialogs::ExpectUnsaved(const QString& title, Dialogs::Answer answer) {
    ExpectMessage(title, u"Die aktuelle Datei wurde noch nicht gespeichert. Möchten Sie das jetzt tun?"_s,
                  answer, Dialogs::Icon::Question);
}

void ScriptedDialogs::ExpectFailedSave() {
    ExpectMessage(u"Fehler"_s,
                  u"Fehler beim Speichern der Datei. Stellen Sie sicher, dass die Datei nicht "
                  "schreibgeschützt ist."_s,
                  Dialogs::Answer::Ok, Dialogs::Icon::Critical);
}

void ScriptedDialogs::ExpectFailedLoad() {
    ExpectMessage(u"Fehler"_s,
                  u"Fehler beim Laden der Datei. Stellen Sie sicher, dass die Datei existiert und nicht "
                  "geschützt ist."_s,
                  Dialogs::Answer::Ok, Dialogs::Icon::Critical);
}

Dialogs::Answer ScriptedDialogs::Ask(const Dialogs::Message& message) {
    lastMessage = message;
    const Step step = Take(u"message"_s, message.title, message.text);
    if (step.icon != Dialogs::Icon::None && step.icon != message.icon)
        QTest::qFail("the message has another icon", __FILE__, __LINE__);
    return step.button;
}

QString ScriptedDialogs::AskText(const QString& prompt, const QString& title, const QString&) {
    return Take(u"input"_s, title, prompt).answer;
}

QString ScriptedDialogs::ChooseOpenFile(const Dialogs::FileQuestion& question) {
    return Take(u"open"_s, question.title, {}).answer;
}

QString ScriptedDialogs::ChooseSaveFile(const Dialogs::FileQuestion& question) {
    return Take(u"save"_s, question.title, {}).answer;
}

QString ScriptedDialogs::ChooseFolder(const QString& title) { return Take(u"folder"_s, title, {}).answer; }

void ScriptedDialogs::Beep() { Take(u"beep"_s, {}, {}); }

void ScriptedDialogs::OpenAddress(const QString& address) { Take(u"address"_s, address, {}); }
