// SPDX-License-Identifier: MIT
#include "debugger/html_check.h"
#include "report_text.h"
#include "support/test_registry.h"

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
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("rows");
        const auto row = [](const char* name, const QString& text, const QStringList& rows = {}) {
            QTest::newRow(name) << text << rows;
        };
        row("text alone", u"Er sagte > \"nein\"."_s);
        row("case is of no account", u"<B>x</b >"_s);
        row("no nesting rule", u"<b><a></b></a>"_s);
        row("the oldest open tag is closed", u"<b><b></b>"_s, {NotClosed(u"b"_s, 4)});
        row("reported as written", u"\r\n<B>"_s, {NotClosed(u"B"_s, 3)});
        row("closed too often", u"<b></b></B>"_s, {TooOften(u"/B"_s, 8)});
        row("closed before it is opened", u"</b><b>"_s, {TooOften(u"/b"_s, 1), NotClosed(u"b"_s, 5)});
        row("empty elements", u"<!DOCTYPE html><br/><br /><br><BR\r\nclear>"_s);
        row("closing of an empty element", u"</br>"_s, {TooOften(u"/br"_s, 1), NeedsNone(u"/br"_s, 1)});
        row("closing of one that stands open", u"<br></br>"_s, {NeedsNone(u"/br"_s, 5)});
        row("unknown", u"a<xy>"_s, {Unknown(u"xy"_s, 2), NotClosed(u"xy"_s, 2)});
        row("unknown and closed too often", u"</xy>"_s, {TooOften(u"/xy"_s, 1), Unknown(u"/xy"_s, 1)});
        row("closing form of the last known tag", u"<i></i>"_s, {Unknown(u"/i"_s, 4)});
        row("name up to white space", u"<p\r\nalign=left></p\r\n><p\talign=left></p\t>"_s);
        row("name of a line break first", u"<\r\np></p>"_s,
            {Unknown(u"\r\np"_s, 1), TooOften(u"/p"_s, 6), NotClosed(u"\r\np"_s, 1)});
        row("slash before a line break stays", u"<p/\r\n></p>"_s,
            {Unknown(u"p/"_s, 1), TooOften(u"/p"_s, 7), NotClosed(u"p/"_s, 1)});
        row("no end at the end of the page", u"<b></b><p"_s);
        row("ended by a blank alone", u"<p "_s, {NotClosed(u"p"_s, 1)});
        row("tag in a value", u"<a href=<xy>></a>"_s, {Unknown(u"xy"_s, 9), NotClosed(u"xy"_s, 9)});
        row("tag in a script", u"if (a<b )"_s, {NotClosed(u"b"_s, 6)});
        row("no name", u"<></>"_s, {Unknown(u""_s, 1), Unknown(u""_s, 3)});
        row("processing instruction", u"<?xml ?>"_s, {Unknown(u"?xml"_s, 1)});
        row("comments hide tags and quotation marks", u"<!-- <xy> \" --><b></b>"_s);
        row("shortest comment", u"<!--><b></b>"_s);
        row("comment without an end hides the rest", u"<b></b><!-- <xy> \""_s, {CommentNotClosed});
        row("comment closed too often", u"<!-- a --> b -->"_s, {CommentClosedTooOften});
        row("only the totals of comments count", u"--> <!--"_s);
        row("odd quotation marks", u"<a href=\"x></a>"_s, {OddQuotes});
        row("what stands before a comment stays open", u"\" <!-- \" --> \"\""_s, {OddQuotes});
        row("quotation marks right behind a comment", u"<!-- -->\"\""_s);
        row("a comment that opens and closes at once", u"<!--><!-->"_s);
        row("the name of blanked entries in a page", u"<<[nothing]-><b></b></<[NOTHING]->"_s,
            {Unknown(u"<[nothing]-"_s, 1), Unknown(u"/<[NOTHING]-"_s, 21)});
        row("an entry of their name", u"<<[NOTHING]->"_s, {Unknown(u"<[NOTHING]-"_s, 1)});
        row("but only as it is written", u"<<[nothing]->"_s,
            {Unknown(u"<[nothing]-"_s, 1), NotClosed(u"<[nothing]-"_s, 1)});
        row("their name finds one", u"<b></b></<[NOTHING]->"_s, {Unknown(u"/<[NOTHING]-"_s, 8)});
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
