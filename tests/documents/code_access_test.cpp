// SPDX-License-Identifier: MIT
#include "documents/code_access.h"

#include "documents/text_buffer.h"
#include "documents/undo.h"
#include "state/lists.h"
#include "support/test.h"

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

    void readsTitles() {
        QCOMPARE(HTMLAccess::TitleOf(u"<HEAD><TITLE>Am BACH</TITLE>"_s), u"Am BACH"_s);
        for (const QString& page : {u"<title>Verein"_s, u"</title><title>x"_s, u"<h1>x</h1>"_s})
            QCOMPARE(HTMLAccess::TitleOf(page), QString());
    }

    void changesTheCaseOfTags_data() {
        const auto row = Columns<QString, QString>("page", "lower");
        row("tags, not attributes", "<BODY BGCOLOR=\"#FFF\"><P ALIGN=LEFT>Text</P></BODY>",
            "<body BGCOLOR=\"#FFF\"><p ALIGN=LEFT>Text</p></body>");
        row("slash without blank", "<BR/><BR />", "<BR/><br />");
        row("part of a known name", "<ABL><OPTIO>", "<abl><optio>");
        row("line break ends no name", "<IMG\r\nSRC=x>", "<IMG\r\nSRC=x>");
        row("no end", "<B>x</B", "<b>x</B");
        row("empty tag", "<><B>", "<><b>");
    }
    void changesTheCaseOfTags() {
        QFETCH(QString, page);
        QTEST(LowerCaseTags(page), "lower");
        page = u"<p class=\"a\">x</p>"_s;
        QCOMPARE(UpperCaseTags(page), u"<P class=\"a\">x</P>"_s);
        QCOMPARE(Undo::UndoTouched, u"-"_s);
    }

    // "|" marks the caret.
    void closesTags_data() {
        const auto row = Columns<QString, QString>("before", "after");
        row("nearest open tag", "<div><p>Text|", "<div><p>Text</p>|");
        row("past tags without closing", "<p>a<br><img src=x>b|", "<p>a<br><img src=x>b</p>|");
        row("inside a tag", "<a href|", "<a href|");
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
        QString after = m_box.Text();
        QTEST(after.insert(m_box.SelStart(), u'|'), "after");
    }

    void calculates_data() {
        const auto row = Columns<QString, double, double, double>("text", "sum", "average", "count");
        row("comma and point", "1,5 und 2.5", 4.0, 2.0, 2.0);
        row("two points are no number", "1.2.3", 0.0, 0.0, 1.0);
        row("rounded", "1 1 2", 4.0, 1.333, 3.0);
        row("prices", "Brot\t2,40 EUR\r\nMilch\t1,10 EUR", 3.5, 1.75, 2.0);
        row("beyond all numbers", QString(u"5 " + QString(400, u'9')), 5.0, 5.0, 1.0);
        row("signs are no part", "5-3", 8.0, 4.0, 2.0);
    }
    void calculates() {
        QFETCH(QString, text);
        QTEST(CalculateSelection(text, Calculation::Sum), "sum");
        QTEST(CalculateSelection(text, Calculation::Average), "average");
        QTEST(CalculateSelection(text, Calculation::Count), "count");
    }

    void prefixesNumbers() {
        Show(u"x 5 y"_s, 2, 1);
        ManipulateNumbers(u"1"_s);
        QCOMPARE(m_box.Text(), u"x 15 y"_s);
        // line breaks stay as they are, also where the selection cuts them
        Show(u"a\r\n5\r\nb\r\n6\r\nc"_s, 2, 10);
        ManipulateNumbers(u"1"_s);
        QCOMPARE(m_box.Text(), u"a\r\n15\r\nb\r\n16\r\nc"_s);
        QCOMPARE(m_box.SelStart(), 2);
        Show(u"5 6"_s, 0, 3);
        ManipulateNumbers(u"100"_s); // finds its own digits, and ends all the same
        QVERIFY(m_box.Text().endsWith(u"5 6"));
    }

    void listsNames_data() {
        const auto row = Columns<bool, QString, QStringList>("variables", "text", "names");
        row("two", false, "function a() {}\r\nfunction b(x) {}", {"a", "b"});
        row("twice", false, "function a() {}\r\nfunction a() {}", {"a"});
        row("brace in place of a bracket", false, "function a {", {"a "});
        row("over a line break", false, "function a\r\nb() {}\r\nfunction c()", {"c"});
        row("second keyword", false, "function function a()", {"a"});
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
