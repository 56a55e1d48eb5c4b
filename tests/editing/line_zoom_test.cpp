// SPDX-License-Identifier: MIT
#include "editing/line_zoom.h"

#include "documents/text_buffer.h"
#include "documents/undo.h"
#include "platform/literals.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "support/program_folder.h"
#include "support/test_registry.h"

class LineZoomTest : public QObject {
    Q_OBJECT

private slots:
    void selectsTheLineAtTheCaret_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("caret");
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("start");
        const QString three = u"ab\r\ncd\r\nefg"_s;
        QTest::newRow("very start") << three << 0 << u"ab"_s << 0;
        QTest::newRow("first line") << three << 1 << u"ab"_s << 0;
        QTest::newRow("end of the first line") << three << 2 << u"ab"_s << 0;
        QTest::newRow("inside a break") << three << 3 << u"ab"_s << 0;
        QTest::newRow("start of a line") << three << 4 << u"cd"_s << 4;
        QTest::newRow("end of a line") << three << 6 << u"cd"_s << 4;
        QTest::newRow("last line stays one short") << three << 9 << u"ef"_s << 8;
        QTest::newRow("end of the text") << three << 11 << u"ef"_s << 8;
        QTest::newRow("only line") << u"abc"_s << 2 << u"ab"_s << 0;
        QTest::newRow("only character") << u"a"_s << 0 << QString() << 0;
        QTest::newRow("empty text") << QString() << 0 << QString() << 0;
        QTest::newRow("empty first line") << u"\r\nabc"_s << 0 << QString() << 0;
        QTest::newRow("empty line") << u"a\r\n\r\nb"_s << 3 << QString() << 3;
        QTest::newRow("empty last line") << u"ab\r\n"_s << 4 << QString() << 4;
    }
    void selectsTheLineAtTheCaret() {
        QFETCH(QString, text);
        QFETCH(int, caret);
        TextBuffer box(text);
        box.SetSelStart(caret);
        QTEST(LineZoom::ReadCurrentLine(box), "line");
        QTEST(int(box.SelStart()), "start");
        QTEST(box.SelText(), "line");
        QCOMPARE(box.Text(), text);
    }

    void writesTheLineBack_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("caret");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("result");
        QTest::newRow("another text") << u"ab\r\ncd\r\nef"_s << 5 << u"XYZ"_s << u"ab\r\nXYZ\r\nef"_s;
        QTest::newRow("nothing") << u"ab\r\ncd\r\nef"_s << 5 << QString() << u"ab\r\n\r\nef"_s;
        QTest::newRow("a break splits") << u"ab\r\ncd\r\nef"_s << 5 << u"c\r\nd"_s << u"ab\r\nc\r\nd\r\nef"_s;
        QTest::newRow("before the last character") << u"ab\r\ncd"_s << 4 << u"X"_s << u"ab\r\nXd"_s;
        QTest::newRow("empty last line") << u"ab\r\n"_s << 4 << u"cd"_s << u"ab\r\ncd"_s;
    }
    void writesTheLineBack() {
        QFETCH(QString, text);
        QFETCH(int, caret);
        QFETCH(QString, written);
        ProgramFolder folder(ProgramFolder::Content::Empty);
        Undo::UndoClear();
        TextBuffer box(text);
        Neighbours::TheCodeBox.AnsweredBy([&box] { return &box; });
        Global::CodeWindowOpen = true;
        box.SetSelStart(caret);
        LineZoom::ReadCurrentLine(box);
        LineZoom::SaveLine(box, written);
        QTEST(box.Text(), "result");
        QCOMPARE(Undo::UndoRing(1), text);
        Undo::UndoClear();
    }

    // Closing without a change is a change all the same.
    void unchangedLineFiresChange() {
        TextBuffer box(u"ab\r\ncd\r\n"_s);
        int changes = 0;
        box.change = [&changes] { ++changes; };
        LineZoom::SaveLine(box, LineZoom::ReadCurrentLine(box));
        QCOMPARE(changes, 1);
        QCOMPARE(box.Text(), u"ab\r\ncd\r\n"_s);
    }
};

REGISTER_TEST_AS(LineZoom, LineZoomTest);
#include "line_zoom_test.moc"
