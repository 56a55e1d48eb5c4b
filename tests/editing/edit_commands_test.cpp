// SPDX-License-Identifier: MIT
#include "editing/edit_commands.h"

#include "documents/text_buffer.h"
#include "documents/undo.h"
#include "platform/clipboard.h"
#include "platform/literals.h"
#include "state/global.h"
#include "state/lists.h"
#include "state/neighbours.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

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
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("command");
        QTest::addColumn<QString>("result");
        QTest::newRow("upper") << u"straße ü"_s << 0 << u"STRAßE Ü"_s;
        QTest::newRow("upper stays in the code page") << u"µƒÿ"_s << 0 << u"µƒŸ"_s;
        QTest::newRow("upper beyond the code page") << u"čaj"_s << 0 << u"ČAJ"_s;
        QTest::newRow("lower") << u"ÄB"_s << 1 << u"äb"_s;
        QTest::newRow("turn") << u"abc"_s << 2 << u"cba"_s;
        QTest::newRow("turn lines") << u"ab\r\ncd"_s << 2 << u"dc\r\nba"_s;
        QTest::newRow("turn empty lines") << u"a\r\n\r\nb"_s << 2 << u"b\r\n\r\na"_s;
        QTest::newRow("turn a colour") << u"#12AB34"_s << 2 << u"43BA21#"_s;
        QTest::newRow("turn a smiley") << u"a\U0001F600b"_s << 2 << u"b\U0001F600a"_s;
        QTest::newRow("hex") << u"255"_s << 3 << u"FF"_s;
        QTest::newRow("hex of a length") << u"12px"_s << 3 << u"C"_s;
        QTest::newRow("hex of a word") << u"abc"_s << 3 << u"0"_s;
        QTest::newRow("hex below zero") << u"-1"_s << 3 << u"FFFFFFFF"_s;
        QTest::newRow("octal") << u"64"_s << 4 << u"100"_s;
        QTest::newRow("binary") << u"10"_s << 5 << u"1010"_s;
        QTest::newRow("binary of a word") << u"abc"_s << 5 << u"0"_s;
        for (const auto& [base, digits] :
             {std::pair(3, u"3"_s), std::pair(4, u"3"_s), std::pair(5, u"11"_s)}) {
            QTest::addRow("a fraction, command %d", base) << u"2.7"_s << base << digits;
            QTest::addRow("no number can hold it, command %d", base)
                << QString(400, u'9') << base << QString(400, u'9');
        }
        QTest::newRow("delete") << u"abc"_s << 6 << QString();
        QTest::newRow("too large") << u"99999999999999999999"_s << 3 << u"99999999999999999999"_s;
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
        QCOMPARE(m_box.Text(), QString());
        Clipboard::SetText(u"a\nb"_s);
        Menu_Edit_Paste_Click();
        QCOMPARE(m_box.Text(), u"a\r\nb"_s);
    }

    void tellsResults() {
        ScriptedDialogs dialogs;
        const QString title = u"Aus Text berechnen"_s;
        const auto expect = [&](const QString& text) {
            dialogs.ExpectMessage(title, text, Dialogs::Answer::Ok, Dialogs::Icon::Information);
        };
        Select(u"1,5 und 2.5"_s);
        expect(u"Die Summe der Zahlen ist: 4"_s);
        Menu_Edit_CalculateText_Total();
        Select(u"1 1 2"_s);
        expect(u"Der Durchschnitt der Zahlen ist: 1,333"_s);
        Menu_Edit_CalculateText_Average();
        expect(u"Die Anzahl der Zahlen ist: 3"_s);
        Menu_Edit_CalculateText_Count();
        Select(u"€uro"_s);
        expect(u"Der ASCII-Code des markierten Zeichens ist: \r\n128"_s);
        Menu_Edit_CalculateText_ASCII();
        Select(u"\U0001F600"_s);
        expect(u"Der ASCII-Code des markierten Zeichens ist: \r\n128512"_s);
        Menu_Edit_CalculateText_ASCII();
        Select(QString());
        Menu_Edit_CalculateText_ASCII(); // silent
    }

    void insertsFileNames() {
        Global::CurrentFile = u"\\site\\seiten\\a.htm"_s;
        Select(QString());
        ScriptedDialogs dialogs;
        dialogs.ExpectOpenFile(u"Dateiname einfügen"_s, u"\\site\\bilder\\x.gif"_s);
        Menu_Insert_FileName();
        QCOMPARE(m_box.Text(), u"../bilder/x.gif"_s);
        Global::CurrentFile.clear();
        Select(QString());
        dialogs.ExpectOpenFile(u"Dateiname einfügen"_s, u"\\site\\x.gif"_s);
        Menu_Insert_FileName();
        QCOMPARE(m_box.Text(), u"/site/x.gif"_s);
        dialogs.ExpectOpenFile(u"Dateiname einfügen"_s, {});
        Menu_Insert_FileName();
        QCOMPARE(m_box.Text(), u"/site/x.gif"_s);
    }

    void insertsDateAndTime() {
        Select(QString());
        Menu_Insert_Date();
        QCOMPARE(m_box.Text(), QLocale().toString(QDate::currentDate(), QLocale::ShortFormat));
    }

    void changesTagsOfThePage() {
        m_folder->Write(u"taglist.lst"_s, "p\r\n!x");
        QVERIFY(Lists::LoadTagList());
        Select(u"<P>x</P>"_s, 3, 0);
        Menu_Tools_LCaseTags();
        QCOMPARE(m_box.Text(), u"<p>x</p>"_s);
        QCOMPARE(m_box.SelStart(), 3);
        Menu_Tools_UCaseTags();
        QCOMPARE(m_box.Text(), u"<P>x</P>"_s);
    }
};

REGISTER_TEST_AS(EditCommands, EditCommandsTest);
#include "edit_commands_test.moc"
