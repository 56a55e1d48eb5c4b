// SPDX-License-Identifier: MIT
#include "documents/code_access.h"

#include "documents/paths.h"
#include "documents/undo.h"
#include "support/folder_test.h"

using namespace CodeAccess;
using namespace Global;

class CodeAccessTest : public FolderTest {
    Q_OBJECT

public:
    CodeAccessTest() : FolderTest(ProgramFolder::Content::Data) {}

private slots:
    void init() override {
        FolderTest::init();
        QVERIFY(Lists::LoadTagList() && Lists::LoadNoCloseTags());
        Global::CodeWindowOpen = true;
        Undo::UndoClear();
    }

    void readsTitles() {
        QCOMPARE(HTMLAccess::TitleOf(u"<HEAD><TITLE>Am BACH</TITLE>"_s), u"Am BACH"_s);
        for (const QString& page : {u"<title>Verein"_s, u"</title><title>x"_s, u"<h1>x</h1>"_s})
            QCOMPARE(HTMLAccess::TitleOf(page), QString());
    }

    void changesTheCaseOfTags() {
        for (const auto& [before, lower] :
             {std::pair(u"<BODY BGCOLOR=\"#FFF\"><P ALIGN=LEFT>Text</P></BODY>"_s,
                        u"<body BGCOLOR=\"#FFF\"><p ALIGN=LEFT>Text</p></body>"_s),
              {u"<BR/><BR />"_s, u"<BR/><br />"_s},       // slash without blank
              {u"<ABL><OPTIO>"_s, u"<abl><optio>"_s},     // part of a known name
              {u"<IMG\r\nSRC=x>"_s, u"<IMG\r\nSRC=x>"_s}, // a line break ends no name
              {u"<B>x</B"_s, u"<b>x</B"_s},
              {u"<><B>"_s, u"<><b>"_s}}) {
            QString page = before;
            QCOMPARE(LowerCaseTags(page), lower);
        }
        QString page = u"<p class=\"a\">x</p>"_s;
        QCOMPARE(UpperCaseTags(page), u"<P class=\"a\">x</P>"_s);
        QCOMPARE(Undo::UndoTouched, u"-"_s);
    }

    // "|" marks the caret.
    void closesTags_data() {
        const auto row = Columns<QString, QString>("before", "after");
        row("nearest open tag", "<div><p>Text|", "<div><p>Text</p>|");
        row("past tags without closing", "<p>a<br><img src=x>b|", "<p>a<br><img src=x>b</p>|");
        row("inside a tag that ends later", "<a href|>x", "<a href|>x");
        row("name cut by a line break", "<table\r\nborder=1>|", "<table\r\nborder=1></table>|");
        row("name cut by a tab", "<table\tborder=1>|", "<table\tborder=1></table>|");
        row("only tags without closing", "<br><br>|", "<br><br>|");
        row("behind a comment", "<p>a<!-- b -->|", "<p>a<!-- b --></p>|");
        row("behind a comment without blanks", "<p>a<!--b-->|", "<p>a<!--b--></p>|");
        row("behind empty elements", "<card><do><go/><br/><prev/>|", "<card><do><go/><br/><prev/></do>|");
        row("behind a drawing's parts", "<svg><rect/><glyph/><g/>|", "<svg><rect/><glyph/><g/></svg>|");
        row("behind sections and server comments", "<script>/*<![CDATA[*/ a /*]]>*/<%-- b --%>|",
            "<script>/*<![CDATA[*/ a /*]]>*/<%-- b --%></script>|");
        row("skipped behind an open tag", "<p <br>|", "<p <br>|");
        row("at the start", "|<p>", "|<p>");
    }
    void closesTags() {
        QFETCH(QString, before);
        const qsizetype caret = before.indexOf(u'|');
        Show(before.remove(u'|'), caret);
        CloseOpenTag(double(caret));
        QString after = m_box->Text();
        QTEST(after.insert(m_box->SelStart(), u'|'), "after");
    }

    void calculates() {
        for (const auto& [text, sum, average, count] : {std::tuple(u"1,5 und 2.5"_s, 4.0, 2.0, 2.0),
                                                        {u"1.2.3"_s, 0.0, 0.0, 1.0}, // no number
                                                        {u"1 1 2"_s, 4.0, 1.333, 3.0},
                                                        {u"5 "_s + QString(400, u'9'), 5.0, 5.0, 1.0},
                                                        {u"5-3"_s, 8.0, 4.0, 2.0}}) {
            QVERIFY2(CalculateSelection(text, Calculation::Sum) == sum, qPrintable(text));
            QVERIFY2(CalculateSelection(text, Calculation::Average) == average, qPrintable(text));
            QVERIFY2(CalculateSelection(text, Calculation::Count) == count, qPrintable(text));
        }
    }

    void prefixesNumbers() {
        Show(u"x 5 y"_s, 2, 1);
        ManipulateNumbers(u"1"_s);
        QCOMPARE(m_box->Text(), u"x 15 y"_s);
        // line breaks stay as they are, also where the selection cuts them
        Show(u"a\r\n5\r\nb\r\n6\r\nc"_s, 2, 10);
        ManipulateNumbers(u"1"_s);
        QCOMPARE(m_box->Text(), u"a\r\n15\r\nb\r\n16\r\nc"_s);
        QCOMPARE(m_box->SelStart(), 2);
        Show(u"5 6"_s, 0, 3);
        ManipulateNumbers(u"100"_s); // finds its own digits, and ends all the same
        QVERIFY(m_box->Text().endsWith(u"5 6"));
    }

    void listsNames_data() {
        const auto row = Columns<bool, QString, QStringList>("variables", "text", "names");
        row("two", false, "function a() {}\r\nfunction b(x) {}", {"a", "b"});
        row("twice", false, "function a() {}\r\nfunction a() {}", {"a"});
        row("brace in place of a bracket", false, "function a {", {"a "});
        row("over a line break", false, "function a\r\nb() {}\r\nfunction c()", {"c"});
        row("without a name", false, "function (x) {}", {""});
        row("value", true, "var a = 5;\r\n", {"a"});
        row("without value", true, "var a;\r\nvar b;\r\n", {"a", "b"});
        row("several", true, "var a, b = 5;", {"a", "b"});
        row("tabs", true, "var\ta;var b\t;\r\n", {"b"});
        row("variable twice", true, "var a;\r\nvar a = 3;", {"a"});
        row("semicolon in the last line", true, "var a; x", {"a"});
        row("no end", true, "var a", {});
    }
    void listsNames() {
        QFETCH(QString, text);
        QFETCH(bool, variables);
        QTEST(variables ? ScanVariables(text) : ScanFunctions(text), "names");
    }

    void goesToLinks() {
        Show(u"<a href=\"Seite.HTM\">x</a>"_s);
        bool front = false;
        Neighbours::ShowCodeWindow.AnsweredBy([&] { front = true; });
        GoToLink(u"seite.htm"_s);
        QCOMPARE(m_box->SelText(), u"Seite.HTM"_s);
        QVERIFY(front);
        m_dialogs->ExpectMessage(u"ProjektManager"_s, u"Der Link kann nicht gefunden werden."_s,
                                 Dialogs::Answer::Ok, Dialogs::Icon::Exclamation);
        m_dialogs->ExpectMessage(u"Fehler"_s, u"Unerwarteter Fehler beim Durchsuchen des Textes."_s,
                                 Dialogs::Answer::Ok, Dialogs::Icon::Critical);
        GoToLink(u"andere.htm"_s);
        GoToLink({});
    }

    void takesPathsApart() {
        QCOMPARE(FileNameOf(u"\\a/b\\c/d"_s), u"c/d"_s);
        QCOMPARE(FileNameOf(u"a/b.htm"_s), u"b.htm"_s);
        QCOMPARE(FileNameOf(u"b.htm"_s), u"b.htm"_s);
        QCOMPARE(ParentPath(u"\\a\\b.htm"_s), u"\\a"_s);
        QCOMPARE(ParentPath(u"\\b.htm"_s), u"\\b.htm"_s); // only from position 2 on
        QCOMPARE(StripExtension(u"a.b.htm"_s), u"a.b."_s);
        QCOMPARE(ExtensionOf(u"X.HTML"_s), u"htm"_s);
        QCOMPARE(ExtensionOf(u"X.HTML"_s, u"none"_s, 4), u"html"_s);
        QCOMPARE(ExtensionOf(u"name"_s), u"none"_s);
        QCOMPARE(ExtensionOf(u"name."_s), QString());
        QCOMPARE(CountOccurrences(u"aaaa", u"aa"), 2);
        QCOMPARE(CountOccurrences(u"a", u""), 0);
        QCOMPARE(CutBefore(u"abcXYZ"_s, u"xy"_s), u"abc"_s);
        QCOMPARE(CutBefore(u"abc"_s, u"x"_s), u"abc"_s);
    }

    void resolvesLinks() {
        QCOMPARE(ResolveLink(u"x/y.htm"_s, u"\\site\\a\\"_s), u"\\site\\a\\x\\y.htm"_s);
        QCOMPARE(ResolveLink(u"../y.htm"_s, u"\\site\\a\\"_s), u"\\site\\y.htm"_s);
        QCOMPARE(ResolveLink(u"../../b/y.htm"_s, u"\\site\\a\\c\\"_s), u"\\site\\b\\y.htm"_s);
        QCOMPARE(ResolveLink(u"a/../y.htm"_s, u"\\s\\"_s),
                 u"\\s\\a\\..\\y.htm"_s); // only leading steps count
    }

    void seesPathsFromAFile() {
        for (const auto& [target, base, relative] :
             {std::tuple(u"\\s\\b.gif"_s, u"\\s\\a.htm"_s, u"b.gif"_s),
              {u"\\s\\p\\b.gif"_s, u"\\s\\a.htm"_s, u"p/b.gif"_s},
              {u"\\s\\b\\x.htm"_s, u"\\s\\d\\page.htm"_s, u"../b/x.htm"_s},
              {u"\\s\\ab\\x.htm"_s, u"\\s\\a\\p.htm"_s, u"../ab/x.htm"_s}, // names that begin alike
              {u"\\s\\p\\x.gif"_s, u"\\s\\p\\"_s, u"x.gif"_s},
              {u"\\s\\x.gif"_s, u""_s, u"/s/x.gif"_s},
              {u"\\s\\"_s + QString(300, u'x'), u"\\s\\d\\p.htm"_s, u"../"_s + QString(255, u'x')}})
            QCOMPARE(RelativePathOf(target, base), relative);
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
