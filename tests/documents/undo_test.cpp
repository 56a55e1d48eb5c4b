// SPDX-License-Identifier: MIT
#include "documents/undo.h"

#include "documents/text_buffer.h"
#include "documents/text_history.h"
#include "platform/literals.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "support/program_folder.h"
#include "support/test_registry.h"

#include <QRandomGenerator>
#include <deque>

// A code box whose changes take undo copies as the document window's do.
class UndoTest : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<TextBuffer> m_box;

    void Type(const QString& key) {
        Undo::PushUndo(); // the key preview
        m_box->SetSelText(key);
    }

private slots:
    void init() {
        m_folder = std::make_unique<ProgramFolder>(ProgramFolder::Content::Empty);
        m_box = std::make_unique<TextBuffer>();
        m_box->change = [] {
            if (Global::SkipUndoOnChange) {
                Global::SkipUndoOnChange = false;
            } else {
                Undo::PushUndo();
            }
        };
        Neighbours::TheCodeBox.AnsweredBy([this] { return m_box.get(); });
        Global::CodeWindowOpen = true;
        Undo::UndoClear();
    }
    void cleanup() { m_folder.reset(); }

    void bringsBackTheTextBeforeAKey() {
        m_box->SetText(u"seite"_s);
        Undo::UndoClear();
        QVERIFY(Undo::UndoTouched.isEmpty());
        QVERIFY(!Commands::StateOf(u"Menu_Edit_Undo"_s).enabled);
        m_box->SetSelStart(5);
        Type(u"x"_s);
        QCOMPARE(Undo::UndoRing(1), u"seitex"_s);
        QCOMPARE(Undo::UndoRing(2), u"seite"_s);
        QCOMPARE(Undo::UndoRing(3), Undo::FreeMarker);
        QVERIFY(Commands::StateOf(u"ToolBar_Undo"_s).enabled);
        QVERIFY(!Commands::StateOf(u"ToolBar_Redo"_s).enabled);
        Undo::UndoStep();
        QCOMPARE(m_box->Text(), u"seite"_s);
        QCOMPARE(m_box->SelStart(), 5);
        Undo::UndoStep(); // the oldest copy stays
        QCOMPARE(m_box->Text(), u"seite"_s);
    }

    void takesTwoStepsAKey() {
        m_box->SetText(QString());
        Undo::UndoClear();
        for (const QString& key : {u"a"_s, u"b"_s, u"c"_s}) Type(key);
        QStringList seen;
        for (int i = 0; i < 5; ++i) {
            Undo::UndoStep();
            seen << m_box->Text();
        }
        QCOMPARE(seen, (QStringList{u"ab"_s, u"ab"_s, u"a"_s, u"a"_s, QString()}));
    }

    void reachesBack32Keys() {
        m_box->SetText(u"-"_s);
        Undo::UndoClear();
        m_box->SetSelStart(1);
        for (int i = 0; i < 40; ++i) Type(u"x"_s);
        for (int i = 0; i < 200; ++i) Undo::UndoStep();
        QCOMPARE(m_box->Text().size(), 1 + 40 - 32);
    }

    void redoesOnlyWithAFullRing() {
        m_box->SetText(u"1"_s);
        Commands::SetEnabled(u"Menu_Edit_Redo"_s, true);
        Undo::RedoStep();
        QCOMPARE(m_box->Text(), u"1"_s);
        QVERIFY(!Commands::StateOf(u"Menu_Edit_Redo"_s).enabled);
        Undo::UndoClear();
        for (int i = 1; i <= 64; ++i) m_box->SetText(QString::number(i));
        QCOMPARE(Undo::UndoRing(64), u"1"_s);
        Undo::RedoStep();
        QCOMPARE(m_box->Text(), u"1"_s); // the oldest copy
        QCOMPARE(Undo::UndoRing(1), u"64"_s);
        QCOMPARE(Undo::UndoRing(2), u"1"_s);
        QCOMPARE(Undo::UndoRing(3), u"64"_s);
    }

    void doublesTheOldestCopy() {
        for (int i = 1; i <= 70; ++i) m_box->SetText(QString::number(i));
        Undo::UndoStep();
        QCOMPARE(Undo::UndoRing(64), u"7"_s);
        QCOMPARE(Undo::UndoRing(63), u"7"_s);
        QCOMPARE(m_box->Text(), u"69"_s);
    }

    // The compact history gives back the very texts that went in, whatever they look like.
    void keepsTextsExactly() {
        QRandomGenerator random(3);
        TextHistory history;
        std::deque<QString> plain;
        QString text;
        for (int round = 0; round < 2000; ++round) {
            const int at = random.bounded(int(text.size()) + 1);
            const int cut = random.bounded(4);
            text = text.first(at) + QString(random.bounded(4), QChar(u'a' + random.bounded(3))) +
                   text.sliced(std::min<qsizetype>(at + cut, text.size()));
            history.Push(text, 64);
            plain.push_front(text);
            if (plain.size() > 64) plain.pop_back();
            if (random.bounded(5) == 0) {
                history.Pop();
                plain.pop_front();
                if (!plain.empty()) text = plain.front();
            }
            QCOMPARE(history.Count(), int(plain.size()));
            const int probe = plain.empty() ? 0 : random.bounded(int(plain.size()));
            if (!plain.empty()) QCOMPARE(history.At(probe), plain[size_t(probe)]);
        }
    }
};

REGISTER_TEST_AS(Undo, UndoTest);
#include "undo_test.moc"
