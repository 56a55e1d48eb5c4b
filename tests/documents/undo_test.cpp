// SPDX-License-Identifier: MIT
#include "documents/undo.h"

#include "documents/text_history.h"
#include "support/folder_test.h"

#include <QRandomGenerator>
#include <deque>

// A code box whose changes take undo copies as the document window's do.
class UndoTest : public FolderTest {
    Q_OBJECT

    void Type(const QString& key) {
        Undo::PushUndo(); // the key preview
        m_box->SetSelText(key);
    }

private slots:
    void init() override {
        FolderTest::init();
        m_box->change = [] {
            if (Global::SkipUndoOnChange) {
                Global::SkipUndoOnChange = false;
            } else {
                Undo::PushUndo();
            }
        };
        Global::CodeWindowOpen = true;
        Undo::UndoClear();
    }

    void bringsBackTheTextBeforeAKey() {
        m_box->SetText(u"seite"_s);
        Undo::UndoClear();
        QVERIFY(Undo::UndoTouched.isEmpty() && !Commands::StateOf(u"Menu_Edit_Undo"_s).enabled);
        m_box->SetSelStart(5);
        Type(u"x"_s);
        Type(u"y"_s);
        QCOMPARE(Undo::UndoRing(1), u"seitexy"_s);
        QCOMPARE(Undo::UndoRing(5), Undo::FreeMarker);
        QVERIFY(Commands::StateOf(u"ToolBar_Undo"_s).enabled);
        QVERIFY(!Commands::StateOf(u"ToolBar_Redo"_s).enabled);
        for (const QString& text : {u"seitex"_s, u"seitex"_s, u"seite"_s, u"seite"_s}) { // two steps a key
            Undo::UndoStep();
            QCOMPARE(m_box->Text(), text);
        }
        QCOMPARE(m_box->SelStart(), 5);
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
