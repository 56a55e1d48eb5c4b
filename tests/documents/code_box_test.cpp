// SPDX-License-Identifier: MIT
// One contract for every code box: told by the one on screen, and the one without agrees with it.
#include "documents/code_box.h"

#include "documents/txt_code.h"
#include "support/test.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QRandomGenerator>

class CodeBoxContract : public QObject {
    Q_OBJECT

private slots:
    void replacesAndSelects() {
        int changes = 0;
        Txt_Code box;
        box.events.change = [&] { ++changes; };
        box.SetText(u"eins\nzwei\rdrei"_s);
        QCOMPARE(box.Text(), u"eins\r\nzwei\r\ndrei"_s);
        QCOMPARE(changes, 1);
        box.SetSelStart(6);
        box.SetSelLength(4);
        QCOMPARE(box.SelText(), u"zwei"_s);
        box.SetSelText(u"2\n"_s);
        QCOMPARE(box.Text(), u"eins\r\n2\r\n\r\ndrei"_s);
        QCOMPARE(box.SelStart(), 9);
        QCOMPARE(box.SelLength(), 0);
        QCOMPARE(changes, 2);
        box.SetSelText({}); // nothing over nothing
        QCOMPARE(changes, 2);
        box.SetSelLength(2);
        box.SetSelText({});
        QCOMPARE(box.Text(), u"eins\r\n2\r\ndrei"_s);
        box.SetText(box.Text());
        QCOMPARE(changes, 4); // a whole text counts even if it is the same
        box.SetText({});
        QCOMPARE(box.Text(), QString());
        QVERIFY(!Attempt([&] { box.SetSelStart(-1); }));
        QVERIFY(!Attempt([&] { box.SetSelLength(-1); }));
        box.SetSelStart(99);
        QCOMPARE(box.SelStart(), 0);
    }

    void splitsALineBreak() {
        Txt_Code box;
        box.SetText(u"a\r\nb\r\nc"_s);
        box.SetSelStart(2); // between CR and LF
        box.SetSelLength(3);
        QCOMPARE(box.SelText(), u"\nb\r"_s);
        box.SetSelText(u"-"_s);
        QCOMPARE(box.Text(), u"a\r\n-\r\nc"_s);
        QCOMPARE(box.SelStart(), 4);
    }

    void keepsEveryCharacter() {
        Txt_Code box;
        QString odd = u"a\u00A0b\u2028c\u2029d\uFDD0e\uFDD1f\uFFFCg\t\u0001\uFEFF\U0001F600\u00ADz"_s;
        odd += QChar(0);
        odd += u"end";
        box.SetText(odd);
        QCOMPARE(box.Text(), odd);
        QCOMPARE(box.Text().constData(), box.Text().constData()); // reading copies nothing
        box.SetSelStart(odd.size());
        box.SetSelText(odd);
        QCOMPARE(box.Text(), QString(odd + odd));
        box.SetSelStart(0);
        box.SetSelLength(odd.size());
        QCOMPARE(box.SelText(), odd);
    }

    // Random edits end in the same text and the same selection in both boxes.
    void boxesAgree() {
        QRandomGenerator random(11);
        TextBuffer plain;
        Txt_Code screen;
        int plainChanges = 0;
        int screenChanges = 0;
        plain.change = [&] { ++plainChanges; };
        screen.events.change = [&] { ++screenChanges; };
        const QStringList pieces{u"a"_s,    u"\n"_s, u"\r\n"_s,          u"xyz"_s,
                                 QString(), u"\r"_s, u"ü\u2029\uFDD0"_s, u"b\nc\n"_s};
        for (int round = 0; round < 3000; ++round) {
            const int what = random.bounded(20);
            const qsizetype start = random.bounded(int(plain.Text().size()) + 1);
            const qsizetype length = random.bounded(6);
            const QString piece = pieces[random.bounded(pieces.size())];
            for (CodeBox* box : {static_cast<CodeBox*>(&plain), static_cast<CodeBox*>(&screen)}) {
                if (what == 0) {
                    box->SetText(piece.repeated(3) + box->Text().left(200));
                    continue;
                }
                box->SetSelStart(start);
                box->SetSelLength(length);
                box->SetSelText(piece);
            }
            QCOMPARE(screen.Text(), plain.Text());
            QCOMPARE(screen.SelStart(), plain.SelStart());
            QCOMPARE(screen.SelLength(), plain.SelLength());
            QCOMPARE(screenChanges, plainChanges);
        }
        QVERIFY(plain.Text().size() > 20);
    }

    void tellsVisualLines() {
        Txt_Code box;
        box.resize(400, 200);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        // how many columns fit is asked of the layout, which rounds in its own way
        box.SetText(QString(500, u'x'));
        const auto columns = int(box.LineIndex(1));
        QVERIFY(columns > 20);
        box.SetText(u"kurz\n"_s + QString(columns * 2 + 5, u'x') + u"\n");
        const qsizetype end = box.Text().size();
        QCOMPARE(box.LineFromChar(0), 0);
        QCOMPARE(box.LineFromChar(6 + columns + 1), 2);
        QCOMPARE(box.LineFromChar(end), 4); // behind the last line end; the long line counts as three
        QCOMPARE(box.LineIndex(4), end);
        QCOMPARE(box.LineIndex(2), 6 + columns);
        // a line separator is shown as a new line, also where it is far out of sight
        box.SetText(u"\n"_s.repeated(500) + u"a\u2028b\n"_s.repeated(100) + u"c");
        QCOMPARE(box.LineFromChar(box.Text().size()), 500 + 200);
        QCOMPARE(box.LineIndex(700), box.Text().size() - 1);
    }

    void numbersTheKeysOfTheNumberBlock() {
        Txt_Code box;
        QList<QPair<int, int>> keys;
        box.events.keyDown = [&](int key, int shift) { keys << qMakePair(key, shift); };
        box.SetText(u"x"_s);
        box.SetSelLength(1);
        const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers, QChar sign) {
            QKeyEvent event(QEvent::KeyPress, key, modifiers, sign);
            QCoreApplication::sendEvent(&box, &event);
        };
        using K = Qt::Key;
        // the comma stands on a German block
        for (const auto& [key, sign, number] :
             {std::tuple(K::Key_7, u'7', 103), std::tuple(K::Key_Asterisk, u'*', 106),
              std::tuple(K::Key_Plus, u'+', 107), std::tuple(K::Key_Minus, u'-', 109),
              std::tuple(K::Key_Period, u'.', 110), std::tuple(K::Key_Comma, u',', 110),
              std::tuple(K::Key_Slash, u'/', 111)}) {
            keys.clear();
            press(key, Qt::ControlModifier | Qt::KeypadModifier, sign);
            QCOMPARE(keys, (QList{qMakePair(number, 2)}));
            QCOMPARE(box.Text(), u"x"_s); // with Control they type nothing
        }
        press(K::Key_Plus, Qt::KeypadModifier, u'+');
        QCOMPARE(box.Text(), u"+"_s);
        QTest::keyClick(&box, Qt::Key_Period);
        QCOMPARE(keys.last().first, 190);
    }

    void takesWhatIsTypedAndPasted() {
        Txt_Code box;
        QStringList keys;
        box.events.keyDown = [&](int key, int shift) { keys << u"%1+%2"_s.arg(key).arg(shift); };
        box.show();
        QTest::keyClicks(&box, u"ab"_s);
        QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
        QTest::keyClick(&box, Qt::Key_Tab);
        QTest::keyClick(&box, Qt::Key_5, Qt::ControlModifier);
        QTest::keyClick(&box, Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(box.Text(), u"ab\r\n\t "_s);
        for (const QString& key : {u"13+1"_s, u"9+0"_s, u"53+2"_s, u"32+2"_s})
            QVERIFY2(keys.contains(key), qPrintable(key));
        QGuiApplication::clipboard()->setText(u"x\u00A0y\nz"_s);
        box.paste();
        QCOMPARE(box.Text(), u"ab\r\n\t x\u00A0y\r\nz"_s);
        box.selectAll();
        box.cut();
        QCOMPARE(QGuiApplication::clipboard()->text(), u"ab\n\t x\u00A0y\nz"_s);
        QCOMPARE(box.Text(), QString());
        box.undo();
        QCOMPARE(box.Text(), u"ab\r\n\t x\u00A0y\r\nz"_s);
    }
};

REGISTER_TEST_AS(CodeBox, CodeBoxContract);
#include "code_box_test.moc"
