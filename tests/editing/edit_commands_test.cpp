// SPDX-License-Identifier: MIT
#include "editing/edit_commands.h"

#include "documents/text_buffer.h"
#include "documents/undo.h"
#include "editing/line_zoom.h"
#include "platform/clipboard.h"
#include "support/test.h"

#include <QLocale>

using namespace EditCommands;

class EditCommandsTest : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramFolder> m_folder;
    TextBuffer m_box;

    void Select(const QString& text, qsizetype start = 0, qsizetype length = -1) {
        m_box.SetText(text);
        m_box.SetSelStart(start);
        m_box.SetSelLength(length < 0 ? text.size() : length);
    }

private slots:
    void init() {
        m_folder = std::make_unique<ProgramFolder>(ProgramFolder::Content::Empty);
        Neighbours::TheCodeBox.AnsweredBy([this] { return &m_box; });
        Global::CodeWindowOpen = true;
        Clipboard::Install({});
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    }
    void cleanup() { m_folder.reset(); }

    void changesTheSelection_data() {
        const auto row = Columns<QString, int, QString>("text", "command", "result");
        row("upper", "straße ü", 0, "STRAßE Ü");
        row("upper stays in the code page", "µƒÿ", 0, "µƒŸ");
        row("upper beyond the code page", "čaj", 0, "ČAJ");
        row("lower", "ÄB", 1, "äb");
        row("turn", "abc", 2, "cba");
        row("turn lines", "ab\r\ncd", 2, "dc\r\nba");
        row("turn a smiley", "a\U0001F600b", 2, "b\U0001F600a");
        row("hex", "255", 3, "FF");
        row("hex of a length", "12px", 3, "C");
        row("hex of a word", "abc", 3, "0");
        row("hex below zero", "-1", 3, "FFFFFFFF");
        row("octal", "64", 4, "100");
        row("binary", "10", 5, "1010");
        for (const auto& [base, digits] :
             {std::pair(3, u"3"_s), std::pair(4, u"3"_s), std::pair(5, u"11"_s)}) {
            QTest::addRow("a fraction, command %d", base) << u"2.7"_s << base << digits;
            QTest::addRow("no number can hold it, command %d", base)
                << QString(400, u'9') << base << QString(400, u'9');
        }
        row("delete", "abc", 6, "");
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
        Select(u"<"_s + text + u">", 1, text.size());
        Undo::UndoClear();
        commands[command]();
        QFETCH(QString, result);
        QCOMPARE(m_box.Text(), QString(u"<" + result + u">"));
        QCOMPARE(Undo::UndoRing(1), QString(u"<" + text + u">")); // the copy from before
    }

    void changesTheCaseOfAnyCharacterInUtf8() {
        Global::DocumentFormat.encoding = CodePage::Encoding::Utf8;
        Select(u"µƒ"_s);
        Menu_Edit_EditString_UCase();
        QCOMPARE(m_box.Text(), u"\u039C\u0191"_s);
    }

    void usesTheClipboard() {
        Select(u"eins\r\nzwei"_s, 0, 6);
        Menu_Edit_Copy_Click();
        QCOMPARE(Clipboard::Text(), u"eins\r\n"_s);
        Menu_Edit_SelectAll();
        Menu_Edit_Cut_Click();
        Clipboard::SetText(u"a\nb"_s);
        Menu_Edit_Paste_Click();
        QCOMPARE(m_box.Text(), u"a\r\nb"_s);
    }

    void tellsResults() {
        const QString code = u"Der ASCII-Code des markierten Zeichens ist: \r\n"_s;
        using Command = void (*)();
        for (const auto& [text, command, told] :
             {std::tuple(u"1,5 und 2.5"_s, Command(Menu_Edit_CalculateText_Total),
                         u"Die Summe der Zahlen ist: 4"_s),
              std::tuple(u"1 1 2"_s, Command(Menu_Edit_CalculateText_Average),
                         u"Der Durchschnitt der Zahlen ist: 1,333"_s),
              std::tuple(u"1 1 2"_s, Command(Menu_Edit_CalculateText_Count),
                         u"Die Anzahl der Zahlen ist: 3"_s),
              std::tuple(u"€uro"_s, Command(Menu_Edit_CalculateText_ASCII), QString(code + u"128")),
              std::tuple(u"\U0001F600"_s, Command(Menu_Edit_CalculateText_ASCII),
                         QString(code + u"128512"))}) {
            ScriptedDialogs dialogs;
            dialogs.ExpectMessage(u"Aus Text berechnen"_s, told, Dialogs::Answer::Ok,
                                  Dialogs::Icon::Information);
            Select(text);
            command();
        }
        ScriptedDialogs dialogs;
        Select(QString());
        Menu_Edit_CalculateText_ASCII(); // silent
    }

    void insertsFileNames() {
        Global::CurrentFile = u"\\site\\seiten\\a.htm"_s;
        Select(QString());
        ScriptedDialogs dialogs;
        for (const QString& chosen : {u"\\site\\bilder\\x.gif"_s, QString()}) {
            dialogs.ExpectOpenFile(u"Dateiname einfügen"_s, chosen);
            Menu_Insert_FileName();
            QCOMPARE(m_box.Text(), u"../bilder/x.gif"_s);
        }
    }

    void insertsDateAndTime() {
        Select(QString());
        Menu_Insert_Date();
        QCOMPARE(m_box.Text(), QLocale().toString(QDate::currentDate(), QLocale::ShortFormat));
    }

    void selectsTheLineAtTheCaret_data() {
        const auto row = Columns<QString, int, QString, int>("text", "caret", "line", "start");
        const QString three = u"ab\r\ncd\r\nefg"_s;
        row("first line", three, 1, "ab", 0);
        row("end of the first line", three, 2, "ab", 0);
        row("inside a break", three, 3, "ab", 0);
        row("start of a line", three, 4, "cd", 4);
        row("last line stays one short", three, 9, "ef", 8);
        row("end of the text", three, 11, "ef", 8);
        row("only character", "a", 0, "", 0);
        row("empty text", "", 0, "", 0);
        row("empty line", "a\r\n\r\nb", 3, "", 3);
        row("empty last line", "ab\r\n", 4, "", 4);
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
        const auto row = Columns<QString, int, QString, QString>("text", "caret", "written", "result");
        row("another text", "ab\r\ncd\r\nef", 5, "XYZ", "ab\r\nXYZ\r\nef");
        row("nothing", "ab\r\ncd\r\nef", 5, "", "ab\r\n\r\nef");
        row("a break splits", "ab\r\ncd\r\nef", 5, "c\r\nd", "ab\r\nc\r\nd\r\nef");
        row("before the last character", "ab\r\ncd", 4, "X", "ab\r\nXd");
        row("empty last line", "ab\r\n", 4, "cd", "ab\r\ncd");
    }
    void writesTheLineBack() {
        QFETCH(QString, text);
        QFETCH(int, caret);
        QFETCH(QString, written);
        Undo::UndoClear();
        Select(text, caret, 0);
        LineZoom::ReadCurrentLine(m_box);
        LineZoom::SaveLine(m_box, written);
        QTEST(m_box.Text(), "result");
        QCOMPARE(Undo::UndoRing(1), text);
    }
};

REGISTER_TEST_AS(EditCommands, EditCommandsTest);
#include "edit_commands_test.moc"
