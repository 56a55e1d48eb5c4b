// SPDX-License-Identifier: MIT
#include "debugger/html_check.h"
#include "report_text.h"
#include "support/test.h"

namespace {

// The last tag's closing form, "/i", counts as unknown: no delimiter follows it.
Debugger::Report Checked(const QString& text, int accuracy = 100) {
    static const Debugger::TagLists lists(u"-a-/a-b-/b-br-/br-p-/p-!DOCTYPE-/!DOCTYPE-i-/i",
                                          u"ßbrßß!doctypeßß?xmlß");
    Debugger::Report report;
    Debugger::CheckHTML(text, accuracy, lists, report);
    return report;
}

QString Row(const QString& message, const QString& name, int position) {
    return u"Error3|     "_s + message.arg(name) + u'|' + name + u'|' + QString::number(position);
}
QString Unknown(const QString& name, int position) { return Row(u"unbekannter Tag: <%1>"_s, name, position); }
QString TooOften(const QString& name, int position) {
    return Row(u"Der Tag <%1> wurde zu oft geschlossen"_s, name, position);
}
QString NeedsNone(const QString& name, int position) {
    return Row(u"Der Tag <%1> muss nicht geschlossen werden"_s, name, position);
}
QString NotClosed(const QString& name, int position) {
    return Row(u"Der Tag <%1> wurde nicht geschlossen."_s, name, position);
}
const QString OddQuotes =
    QStringLiteral("Error3|     Im Dokument befindet sich eine ungerade Anzahl von Anführungszeichen.");
const QString CommentClosedTooOften =
    QStringLiteral("Error3|     Mindestens ein Kommentar wurde zu oft geschlossen.");
const QString CommentNotClosed =
    QStringLiteral("Error3|     Mindestens ein Kommentar wurde nicht geschlossen.");
const QString UnknownFault = QStringLiteral("Error3|Der Code verursacht einen unbekannten Fehler.");

} // namespace

class HtmlCheck : public QObject {
    Q_OBJECT

private slots:
    void smallPages_data() {
        const auto page = Columns<QString, QStringList>("text", "rows");
        const auto row = [&](const char* name, const QString& text, const QStringList& rows = {}) {
            page(name, text, rows);
        };
        row("neither case nor nesting counts", "<B><a>x</b ></a>");
        row("the oldest open tag is closed", "<b><b></b>", {NotClosed("b", 4)});
        row("reported as written", "\r\n<B>", {NotClosed("B", 3)});
        row("closed too often", "<b></b></B>", {TooOften("/B", 8)});
        row("closed before it is opened", "</b><b>", {TooOften("/b", 1), NotClosed("b", 5)});
        row("empty elements", "<!DOCTYPE html><br/><br /><br><BR\r\nclear>");
        row("closing of an empty element", "</br>", {TooOften("/br", 1), NeedsNone("/br", 1)});
        row("closing of one that stands open", "<br></br>", {NeedsNone("/br", 5)});
        row("unknown and closed too often", "</xy>", {TooOften("/xy", 1), Unknown("/xy", 1)});
        row("closing form of the last known tag", "<i></i>", {Unknown("/i", 4)});
        row("name up to white space", "<p\r\nalign=left></p\r\n><p\talign=left></p\t>");
        row("name of a line break first", "<\r\np></p>",
            {Unknown("\r\np", 1), TooOften("/p", 6), NotClosed("\r\np", 1)});
        row("slash before a line break stays", "<p/\r\n></p>",
            {Unknown("p/", 1), TooOften("/p", 7), NotClosed("p/", 1)});
        row("no end at the end of the page", "<b></b><p");
        row("ended by a blank alone", "<p ", {NotClosed("p", 1)});
        row("tag in a value", "<a href=<xy>></a>", {Unknown("xy", 9), NotClosed("xy", 9)});
        row("no name", "<></>", {Unknown("", 1), Unknown("", 3)});
        row("processing instruction", "<?xml ?>", {Unknown("?xml", 1)});
        row("comments hide tags and quotation marks", "<!-- <xy> \" --><b></b>");
        row("comment without an end hides the rest", "<b></b><!-- <xy> \"", {CommentNotClosed});
        row("comment closed too often", "<!-- a --> b -->", {CommentClosedTooOften});
        row("only the totals of comments count", "--> <!--");
        row("odd quotation marks", "<a href=\"x></a>", {OddQuotes});
        row("what stands before a comment stays open", "\" <!-- \" --> \"\"", {OddQuotes});
        row("quotation marks right behind a comment", "<!-- -->\"\"");
        row("the name of blanked entries in a page", "<<[nothing]-><b></b></<[NOTHING]->",
            {Unknown("<[nothing]-", 1), Unknown("/<[NOTHING]-", 21)});
        row("an entry of their name", "<<[NOTHING]->", {Unknown("<[NOTHING]-", 1)});
        row("but only as it is written", "<<[nothing]->",
            {Unknown("<[nothing]-", 1), NotClosed("<[nothing]-", 1)});
        row("their name finds one", "<b></b></<[NOTHING]->", {Unknown("/<[NOTHING]-", 8)});
        row("a name over two entries", "<b-/b>", {NotClosed(u"b-/b"_s, 1)});
        row("a name with a delimiter", "<b->", {Unknown(u"b-"_s, 1), NotClosed(u"b-"_s, 1)});
        row("a part of an entry", "<!DOC>", {Unknown(u"!DOC"_s, 1), NotClosed(u"!DOC"_s, 1)});
        // the scan creeps up to a closing that it cannot count, and past it
        const QString most = u"-->"_s.repeated(32767);
        row("as many closings as can be counted", most, {CommentClosedTooOften});
        row("one more", most + u"-->", {UnknownFault, UnknownFault, CommentClosedTooOften});
        row("and as many openings", u"<!-->"_s.repeated(32768), {UnknownFault, CommentNotClosed});
    }
    void smallPages() {
        QFETCH(QString, text);
        QTEST(RowTexts(Checked(text)), "rows");
    }

    void longNamesAreCutInMessages() {
        const QString name(300, u'n');
        const QStringList rows = RowTexts(Checked(u'<' + name + u"></"_s + name + u'>'));
        // only 255 characters of the closing name are compared, so it closes nothing
        QCOMPARE(rows.size(), 4);
        QVERIFY(rows[1].contains(u"Der Tag </"_s + name.first(254) + u"> wurde zu oft geschlossen|/" + name));
        QCOMPARE(rows[3], NotClosed(name, 1));
        QCOMPARE(Checked(u'<' + name.first(255) + u"></"_s + name + u'>').counts.unclosedTags, 0);
    }

    void pagesUnderTheShippedLists_data() {
        const auto row = Columns<QString, QStringList>("page", "rows"); // without what all rows begin with
        row("hidden script", "<script>/*<![CDATA[*/\r\nif (a < b) c();\r\n/*]]>*/</script>", {});
        row("hidden style", "<style>/*<![CDATA[*/ p { } /*]]>*/</style>", {});
        row("twice hidden", "<script><!--//--><![CDATA[//><!--\r\nd\r\n//--><!]]></script>", {});
        row("server comment", "<%-- a --%><p>b</p>", {});
        row("comparison", "<script>if (a < b && c <d) e();</script>",
            {"unbekannter Tag: <d)>|d)|24", "Der Tag <d)> wurde nicht geschlossen.|d)|24"});
        row("empty WML elements", "<onevent><go href=\"#a\"/></onevent><do><prev/></do><p>a<br/></p>", {});
        row("an open card", "<wml><card><p>a</p></wml>", {"Der Tag <card> wurde nicht geschlossen.|card|6"});
        row("an element that may hold others", "<do><go href=\"a\"><postfield/></go></do>",
            {"Der Tag </go> muss nicht geschlossen werden|/go|30"});
        row("font", "<svg><font><font-face/><missing-glyph/><glyph/></font></svg>", {});
        row("formula", "<math><apply><plus/></apply></math>", {});
        row("names of no standard", "<piecewice>",
            {"unbekannter Tag: <piecewice>|piecewice|1",
             "Der Tag <piecewice> wurde nicht geschlossen.|piecewice|1"});
    }
    void pagesUnderTheShippedLists() {
        QFETCH(QString, page);
        const ProgramFolder folder;
        QVERIFY(Lists::LoadTagList() && Lists::LoadNoCloseTags());
        Debugger::Report report;
        Debugger::CheckHTML(page, 100, {Global::KnownTagString, Global::NoCloseTagString}, report);
        QTEST(RowTexts(report).replaceInStrings(u"Error3|     "_s, QString()), "rows");
    }

    // Nothing that depends on the whole page is reported then.
    void lowAccuracySkipsWhatStandsClose() {
        const QString near = u"<xx>"_s + QString(30, u'.') + u"<yy>"_s;
        const QString nearer = u"<xx>"_s + QString(29, u'.') + u"<yy>"_s;
        QCOMPARE(RowTexts(Checked(near + u"</b></br>\"<!--"_s, 70)),
                 (QStringList{Unknown(u"xx"_s, 1), Unknown(u"yy"_s, 35)}));
        QCOMPARE(RowTexts(Checked(nearer, 70)), QStringList{Unknown(u"xx"_s, 1)});
        QCOMPARE(Checked(nearer, 99).counts.unknownTags, 2);
        QCOMPARE(RowTexts(Checked(QString(100, u'.') + u"<xx>"_s, 1)), QStringList{Unknown(u"xx"_s, 101)});
    }

    void hostilePages() {
        const auto faults = [](const QString& text) { return Checked(text).counts.Total(); };
        QCOMPARE(faults(QString(300000, u'<')), 0);
        QCOMPARE(faults(QString(300001, u'"')), 1);
        QCOMPARE(faults(u"<!--"_s.repeated(75000)), 1);
        QCOMPARE(faults(u"<b>"_s.repeated(100000)), 100000);
        QCOMPARE(faults(u"<b>"_s.repeated(50000) + u"</b>"_s.repeated(50001)), 1);
        QCOMPARE(faults(u'<' + QString(300000, u'-') + u'>'), 3);
        QCOMPARE(faults(u'<' + u"br-/br-pß"_s.repeated(30000) + u'>'), 2); // a name of both delimiters
    }
};

REGISTER_TEST(HtmlCheck);
#include "html_check_test.moc"
