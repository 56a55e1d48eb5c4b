// SPDX-License-Identifier: MIT
#include "documents/code_access.h"

#include "documents/text_buffer.h"
#include "documents/undo.h"
#include "platform/literals.h"
#include "state/global.h"
#include "state/lists.h"
#include "state/neighbours.h"
#include "support/program_folder.h"
#include "support/scripted_dialogs.h"
#include "support/test_registry.h"

using namespace CodeAccess;

class CodeAccessTest : public QObject {
    Q_OBJECT

    std::unique_ptr<ProgramFolder> m_folder;
    TextBuffer m_box;

    void Show(const QString& text, qsizetype start = 0, qsizetype length = 0) {
        m_box.SetText(text);
        m_box.SetSelStart(start);
        m_box.SetSelLength(length);
    }

private slots:
    void init() {
        m_folder = std::make_unique<ProgramFolder>();
        QVERIFY(Lists::LoadTagList() && Lists::LoadNoCloseTags());
        Neighbours::TheCodeBox.AnsweredBy([this] { return &m_box; });
        Global::CodeWindowOpen = true;
        Undo::UndoClear();
    }
    void cleanup() { m_folder.reset(); }

    void readsTitles_data() {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("title");
        QTest::newRow("plain") << u"<title>Verein</title>"_s << u"Verein"_s;
        QTest::newRow("own case") << u"<HEAD><TITLE>Am BACH</TITLE>"_s << u"Am BACH"_s;
        QTest::newRow("no end") << u"<title>Verein"_s << QString();
        QTest::newRow("end first") << u"</title><title>x"_s << QString();
        QTest::newRow("none") << u"<h1>x</h1>"_s << QString();
    }
    void readsTitles() {
        QFETCH(QString, page);
        QTEST(HTMLAccess::TitleOf(page), "title");
    }

    void changesTheCaseOfTags_data() {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("lower");
        QTest::newRow("tags, not attributes") << u"<BODY BGCOLOR=\"#FFF\"><P ALIGN=LEFT>Text</P></BODY>"_s
                                              << u"<body BGCOLOR=\"#FFF\"><p ALIGN=LEFT>Text</p></body>"_s;
        QTest::newRow("slash without blank") << u"<BR/><BR />"_s << u"<BR/><br />"_s;
        QTest::newRow("unknown") << u"<GLITZER>"_s << u"<GLITZER>"_s;
        QTest::newRow("part of a known name") << u"<ABL><OPTIO>"_s << u"<abl><optio>"_s;
        QTest::newRow("a lone sign") << u"1 < 2 <B>x</B>"_s << u"1 < 2 <b>x</b>"_s;
        QTest::newRow("line break ends no name") << u"<IMG\r\nSRC=x>"_s << u"<IMG\r\nSRC=x>"_s;
        QTest::newRow("no end") << u"<B>x</B"_s << u"<b>x</B"_s;
        QTest::newRow("empty tag") << u"<><B>"_s << u"<><b>"_s;
        QTest::newRow("nothing") << QString() << QString();
    }
    void changesTheCaseOfTags() {
        QFETCH(QString, page);
        QTEST(LowerCaseTags(page), "lower");
    }

    void raisesTags() {
        QString page = u"<p class=\"a\">x</p>"_s;
        QCOMPARE(UpperCaseTags(page), u"<P class=\"a\">x</P>"_s);
        QCOMPARE(page, u"<P class=\"a\">x</P>"_s);
        QCOMPARE(Undo::UndoTouched, u"-"_s);
    }

    // "|" marks the caret.
    void closesTags_data() {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("after");
        QTest::newRow("nearest open tag") << u"<div><p>Text|"_s << u"<div><p>Text</p>|"_s;
        QTest::newRow("past tags without closing")
            << u"<p>a<br><img src=x>b|"_s << u"<p>a<br><img src=x>b</p>|"_s;
        QTest::newRow("attributes") << u"<td width=5>x|"_s << u"<td width=5>x</td>|"_s;
        QTest::newRow("inside a tag") << u"<a href|"_s << u"<a href|"_s;
        QTest::newRow("inside a tag that ends later") << u"<a href|>x"_s << u"<a href|>x"_s;
        QTest::newRow("behind a closing tag") << u"<p>x</p>|"_s << u"<p>x</p>|"_s;
        QTest::newRow("name cut by a line break")
            << u"<table\r\nborder=1>|"_s << u"<table\r\nborder=1></table>|"_s;
        QTest::newRow("name cut by a tab") << u"<table\tborder=1>|"_s << u"<table\tborder=1></table>|"_s;
        QTest::newRow("only tags without closing") << u"<br><br>|"_s << u"<br><br>|"_s;
        QTest::newRow("behind a comment") << u"<p>a<!-- b -->|"_s << u"<p>a<!-- b --></p>|"_s;
        QTest::newRow("behind a comment without blanks") << u"<p>a<!--b-->|"_s << u"<p>a<!--b--></p>|"_s;
        QTest::newRow("behind empty elements")
            << u"<card><do><go/><br/><prev/>|"_s << u"<card><do><go/><br/><prev/></do>|"_s;
        QTest::newRow("behind a drawing's parts")
            << u"<svg><rect/><glyph/><g/>|"_s << u"<svg><rect/><glyph/><g/></svg>|"_s;
        QTest::newRow("behind sections and server comments")
            << u"<script>/*<![CDATA[*/ a /*]]>*/<%-- b --%>|"_s
            << u"<script>/*<![CDATA[*/ a /*]]>*/<%-- b --%></script>|"_s;
        QTest::newRow("skipped behind an open tag") << u"<p <br>|"_s << u"<p <br>|"_s;
        QTest::newRow("at the start") << u"|<p>"_s << u"|<p>"_s;
        QTest::newRow("no tag") << u"Text|"_s << u"Text|"_s;
    }
    void closesTags() {
        QFETCH(QString, before);
        const qsizetype caret = before.indexOf(u'|');
        Show(before.remove(u'|'), caret);
        CloseOpenTag(double(caret));
        QString after = m_box.Text();
        QTEST(after.insert(m_box.SelStart(), u'|'), "after");
    }

    void calculates_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("sum");
        QTest::addColumn<double>("average");
        QTest::addColumn<double>("count");
        QTest::newRow("comma and point") << u"1,5 und 2.5"_s << 4.0 << 2.0 << 2.0;
        QTest::newRow("two points are no number") << u"1.2.3"_s << 0.0 << 0.0 << 1.0;
        QTest::newRow("empty") << QString() << 0.0 << 0.0 << 1.0;
        QTest::newRow("to the end") << u"7"_s << 7.0 << 7.0 << 1.0;
        QTest::newRow("rounded") << u"1 1 2"_s << 4.0 << 1.333 << 3.0;
        QTest::newRow("sentence") << u"Es sind 3, dann 4."_s << 7.0 << 3.5 << 2.0;
        QTest::newRow("prices") << u"Brot\t2,40 EUR\r\nMilch\t1,10 EUR"_s << 3.5 << 1.75 << 2.0;
        QTest::newRow("punctuation alone") << u"., ,."_s << 0.0 << 0.0 << 1.0;
        QTest::newRow("beyond all numbers") << QString(u"5 " + QString(400, u'9')) << 5.0 << 5.0 << 1.0;
        QTest::newRow("signs are no part") << u"5-3"_s << 8.0 << 4.0 << 2.0;
    }
    void calculates() {
        QFETCH(QString, text);
        QTEST(CalculateSelection(text, Calculation::Sum), "sum");
        QTEST(CalculateSelection(text, Calculation::Average), "average");
        QTEST(CalculateSelection(text, Calculation::Count), "count");
    }

    void prefixesNumbers() {
        Show(u"a 5 b 6 c 7 d"_s, 0, 13);
        ManipulateNumbers(u"1"_s);
        // the selection lags one insertion behind, which does not show here
        QCOMPARE(m_box.Text(), u"a 15 b 16 c 17 d"_s);
        QCOMPARE(m_box.SelStart(), 0);
        QCOMPARE(m_box.SelLength(), 15);
        Show(u"x 5 y"_s, 2, 1);
        ManipulateNumbers(u"1"_s);
        QCOMPARE(m_box.Text(), u"x 15 y"_s);
        Show(u"5 6"_s, 0, 3);
        ManipulateNumbers(u"100"_s); // finds its own digits, and ends all the same
        QVERIFY(m_box.Text().endsWith(u"5 6"));
        Show(u"5 6"_s, 0, 3);
        ManipulateNumbers(QString());
        QCOMPARE(m_box.Text(), u"5 6"_s);
        // line breaks stay as they are, also where the selection cuts them
        Show(u"a\r\n5\r\nb\r\n6\r\nc"_s, 2, 10);
        ManipulateNumbers(u"1"_s);
        QCOMPARE(m_box.Text(), u"a\r\n15\r\nb\r\n16\r\nc"_s);
        QCOMPARE(m_box.SelStart(), 2);
    }

    void listsFunctions_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("two") << u"function a() {}\r\nfunction b(x) {}"_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("twice") << u"function a() {}\r\nfunction a() {}"_s << QStringList{u"a"_s};
        QTest::newRow("brace in place of a bracket") << u"function a {"_s << QStringList{u"a "_s};
        QTest::newRow("over a line break")
            << u"function a\r\nb() {}\r\nfunction c()"_s << QStringList{u"c"_s};
        QTest::newRow("second keyword") << u"function function a()"_s << QStringList{u"a"_s};
        QTest::newRow("in a comment") << u"// a function is (\r\n"_s << QStringList{u"is "_s};
        QTest::newRow("without a name") << u"function (x) {}"_s << QStringList{QString()};
        QTest::newRow("none") << u"var x;"_s << QStringList{};
    }
    void listsFunctions() {
        QFETCH(QString, text);
        QTEST(ScanFunctions(text), "names");
    }

    void listsVariables_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("names");
        QTest::newRow("value") << u"var a = 5;\r\n"_s << QStringList{u"a"_s};
        QTest::newRow("without value") << u"var a;\r\nvar b;\r\n"_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("several") << u"var a, b = 5;"_s << QStringList{u"a"_s, u"b"_s};
        QTest::newRow("tabs") << u"var\ta;var b\t;\r\n"_s << QStringList{u"b"_s};
        QTest::newRow("twice") << u"var a;\r\nvar a = 3;"_s << QStringList{u"a"_s};
        QTest::newRow("semicolon in the last line") << u"var a; x"_s << QStringList{u"a"_s};
        QTest::newRow("no end") << u"var a"_s << QStringList{};
        QTest::newRow("none") << u"let a = 1;"_s << QStringList{};
    }
    void listsVariables() {
        QFETCH(QString, text);
        QTEST(ScanVariables(text), "names");
    }

    void goesToLinks() {
        Show(u"<a href=\"Seite.HTM\">x</a>"_s);
        bool front = false;
        Neighbours::ShowCodeWindow.AnsweredBy([&] { front = true; });
        GoToLink(u"seite.htm"_s);
        QCOMPARE(m_box.SelText(), u"Seite.HTM"_s);
        QVERIFY(front);
        ScriptedDialogs dialogs;
        dialogs.ExpectMessage(u"ProjektManager"_s, u"Der Link kann nicht gefunden werden."_s,
                              Dialogs::Answer::Ok, Dialogs::Icon::Exclamation);
        dialogs.ExpectMessage(u"Fehler"_s, u"Unerwarteter Fehler beim Durchsuchen des Textes."_s,
                              Dialogs::Answer::Ok, Dialogs::Icon::Critical);
        GoToLink(u"andere.htm"_s);
        GoToLink({});
    }

    void writesDigits() {
        QCOMPARE(RuntimeExtension::NumberToBinary(10), u"1010"_s);
        QCOMPARE(RuntimeExtension::NumberToBinary(0), QString());
        QCOMPARE(RuntimeExtension::NumberToBinary(-5), QString());
        QCOMPARE(RuntimeExtension::CommaToPoint(u"1,5,2"_s), u"1.5,2"_s);
        QCOMPARE(RuntimeExtension::FirstDigitPos(3, u"1a2"), 3);
        QCOMPARE(RuntimeExtension::FirstDigitPos(2, u"1a"), 0);
    }

    // Inputs on which a scan that starts over at each step would not end before the test's own time limit.
    void staysLinearOnHostileText() {
        constexpr int Size = 1'600'000;
        const auto repeated = [](const QString& piece) { return piece.repeated(Size / piece.size()); };
        for (const QString& piece : {u"<"_s, u"<b"_s, u"<br>"_s, u"<br "_s, u">"_s, u"function "_s, u"var "_s,
                                     u"1,"_s, u"1"_s, u"function a "_s, u"var a,"_s}) {
            const QString text = repeated(piece);
            QString page = text;
            LowerCaseTags(page);
            CalculateSelection(text, Calculation::Sum);
            ScanFunctions(text);
            ScanFunctions(text + u"(");
            ScanVariables(text);
            Show(text, text.size());
            CloseOpenTag(double(text.size()));
            Show(text + u'>', text.size() + 1);
            CloseOpenTag(double(text.size() + 1));
        }
    }
};

REGISTER_TEST_AS(CodeAccess, CodeAccessTest);
#include "code_access_test.moc"
