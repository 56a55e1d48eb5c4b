// SPDX-License-Identifier: MIT
#include "editing/edit_commands.h"

#include "documents/undo.h"
#include "editing/line_zoom.h"
#include "support/folder_test.h"

#include <QLocale>

using namespace EditCommands;

class EditCommandsTest : public FolderTest {
    Q_OBJECT

    void Select(const QString& text) { Show(text, 0, text.size()); }

private slots:
    void init() override {
        FolderTest::init();
        Global::CodeWindowOpen = true;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    }

    void changesTheSelection_data() {
        const auto row = Columns<QString, int, QString>("text", "command", "result");
        row("upper", "straße ü", 0, "STRAßE Ü");
        row("upper stays in the code page", "µƒÿ", 0, "µƒŸ");
        row("upper beyond the code page", "čaj", 0, "ČAJ");
        row("lower", "ÄB", 1, "äb");
        row("turn lines", "ab\r\ncd", 2, "dc\r\nba");
        row("turn a smiley", "a\U0001F600b", 2, "b\U0001F600a");
        row("hex", "255", 3, "FF");
        row("hex of a word", "abc", 3, "0");
        row("hex below zero", "-1", 3, "FFFFFFFF");
        row("octal", "64", 4, "100");
        row("binary", "10", 5, "1010");
        row("delete", "abc", 6, "");
        for (const auto& [base, digits] :
             {std::pair(3, u"3"_s), std::pair(4, u"3"_s), std::pair(5, u"11"_s)}) {
            QTest::addRow("a fraction, command %d", base) << u"2.7"_s << base << digits;
            QTest::addRow("no number can hold it, command %d", base)
                << QString(400, u'9') << base << QString(400, u'9');
        }
        row("too large", "99999999999999999999", 3, "99999999999999999999");
    }
    void changesTheSelection() {
        void (*commands[])() = {Menu_Edit_EditString_UCase,
                                Menu_Edit_EditString_LCase,
                                Menu_Edit_EditString_Turn,
                                Menu_Edit_ChangeDigitSystem_Hex,
                                Menu_Edit_ChangeDigitSystem_Okt,
                                Menu_Edit_ChangeDigitSystem_Bin,
                                Menu_Edit_Delete};
        QFETCH(QString, text);
        QFETCH(int, command);
        Show(u"<"_s + text + u">", 1, text.size());
        Undo::UndoClear();
        commands[command]();
        QFETCH(QString, result);
        QCOMPARE(m_box->Text(), QString(u"<" + result + u">"));
        QCOMPARE(Undo::UndoRing(1), QString(u"<" + text + u">")); // the copy from before
    }

    void changesTheCaseOfAnyCharacterInUtf8() {
        Global::DocumentFormat.encoding = CodePage::Encoding::Utf8;
        Select(u"µƒ"_s);
        Menu_Edit_EditString_UCase();
        QCOMPARE(m_box->Text(), u"\u039C\u0191"_s);
    }

    void tellsResults() {
        const QString code = u"Der ASCII-Code des markierten Zeichens ist: \r\n"_s;
        using Command = void (*)();
        for (const auto& [text, command, told] :
             {std::tuple(u"1,5 und 2.5"_s, Command(Menu_Edit_CalculateText_Total),
                         u"Die Summe der Zahlen ist: 4"_s),
              {u"1 1 2"_s, Menu_Edit_CalculateText_Average, u"Der Durchschnitt der Zahlen ist: 1,333"_s},
              {u"1 1 2"_s, Menu_Edit_CalculateText_Count, u"Die Anzahl der Zahlen ist: 3"_s},
              {u"€uro"_s, Menu_Edit_CalculateText_ASCII, code + u"128"_s},
              {u"\U0001F600"_s, Menu_Edit_CalculateText_ASCII, code + u"128512"_s}}) {
            m_dialogs->ExpectMessage(u"Aus Text berechnen"_s, told, Dialogs::Answer::Ok,
                                     Dialogs::Icon::Information);
            Select(text);
            command();
        }
        Select(QString());
        Menu_Edit_CalculateText_ASCII(); // silent
    }

    void insertsFileNames() {
        Global::CurrentFile = u"\\site\\seiten\\a.htm"_s;
        Select(QString());
        for (const QString& chosen : {u"\\site\\bilder\\x.gif"_s, QString()}) {
            m_dialogs->ExpectOpenFile(u"Dateiname einfügen"_s, chosen);
            Menu_Insert_FileName();
            QCOMPARE(m_box->Text(), u"../bilder/x.gif"_s);
        }
    }

    void insertsDateAndTime() {
        Select(QString());
        Menu_Insert_Date();
        QCOMPARE(m_box->Text(), QLocale().toString(QDate::currentDate(), QLocale::ShortFormat));
    }

    void zoomsTheLineAtTheCaret_data() {
        const auto row =
            Columns<QString, int, QString, QString, QString>("text", "caret", "line", "written", "result");
        const QString three = u"ab\r\ncd\r\nefg"_s;
        row("end of the first line", three, 2, "ab", "XYZ", "XYZ\r\ncd\r\nefg");
        row("inside a break", three, 3, "ab", "", "\r\ncd\r\nefg");
        row("start of a line", three, 4, "cd", "XYZ", "ab\r\nXYZ\r\nefg");
        row("a break splits", three, 5, "cd", "c\r\nd", "ab\r\nc\r\nd\r\nefg");
        row("last line stays one short", three, 9, "ef", "XYZ", "ab\r\ncd\r\nXYZg");
        row("end of the text", three, 11, "ef", "X", "ab\r\ncd\r\nXg");
        row("only character", "a", 0, "", "X", "Xa");
        row("empty text", "", 0, "", "X", "X");
        row("empty line", "a\r\n\r\nb", 3, "", "X", "a\r\nX\r\nb");
        row("empty last line", "ab\r\n", 4, "", "cd", "ab\r\ncd");
    }
    void zoomsTheLineAtTheCaret() {
        QFETCH(QString, text);
        QFETCH(int, caret);
        QFETCH(QString, written);
        Show(text, caret);
        Undo::UndoClear();
        QTEST(LineZoom::ReadCurrentLine(*m_box), "line");
        QTEST(m_box->SelText(), "line");
        QCOMPARE(m_box->Text(), text);
        LineZoom::SaveLine(*m_box, written);
        QTEST(m_box->Text(), "result");
        QCOMPARE(Undo::UndoRing(1), text);
    }
};

REGISTER_TEST_AS(EditCommands, EditCommandsTest);
#include "edit_commands_test.moc"
