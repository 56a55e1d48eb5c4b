// SPDX-License-Identifier: MIT
#include "debugger/css_check.h"
#include "debugger/style_check.h"
#include "report_text.h"
#include "support/test.h"

namespace {

QString Unit(const QString& value, int position) {
    return u"Alert|     Es wurde keine Einheit für den Wert '%1' eingegeben.|%1|%2"_s.arg(value).arg(
        position);
}
QString Blank(const QString& value, int position) {
    return u"Alert|     Zwischen dem Doppelpunkt und dem Wert '%1' steht ein Leerzeichen.|%1|%2"_s.arg(value)
        .arg(position);
}
QString Missing(const QString& value, int position) {
    return u"Error3|     Es ist kein Wert eingetragen.|%1|%2"_s.arg(value).arg(position);
}
QString Semicolon(int position) {
    return u"Error3|     Am Ende eines Wertes steht kein Semikolon.|_|%1"_s.arg(position);
}
const QString Fault = QStringLiteral("Error3|     Der Code verursacht einen unbekannten Fehler.");

Debugger::Report Checked(const QString& css) {
    Debugger::Report report;
    Debugger::CheckCSSSyntax(css, Debugger::StyleMode::Head, 1, report);
    return report;
}

} // namespace

class CssCheck : public QObject {
    Q_OBJECT

private slots:
    void blocks_data() {
        const auto row = Columns<QString, QStringList>("css", "rows");
        row("no colon", "a{color}", {});
        row("blank before the value", "a{color: red;}", {Blank(" red", 8)});
        row("no value", "a{color:;}", {Missing("", 8)});
        row("blanks for a value", "a{color:   ;}", {Missing("   ", 8)});
        row("bare negative number", "a{margin:-5;}", {Unit("-5", 9)});
        row("bare fraction", "a{margin:0.5;}", {Unit("0.5", 9)});
        row("bare number of seven digits", "a:1234567;", {Unit("1234567", 2)});
        row("bare number behind a blank", "a: 12;", {Blank(" 12", 2)});
        row("no bare numbers", "a:12px;b:1.5em;c:-3pt;d:.5em;e:0;f:1.50;g:1 2;h:+5;i:05;j:12345678;", {});
        row("semicolon missing twice", "a{b:c d:e f:g;}", {Semicolon(4), Semicolon(8)});
        row("last semicolon missing before a rule", "a{color:red} b{margin:0;}", {});
        row("nested rules", "@media x{a{b:c}d{e:f}}", {Fault});
        row("the answer of the round before", "a{b:c d:e;f:g{h}i;", {Semicolon(4), Fault, Semicolon(12)});
        row("the old value again", "a:1;;c:d", {Unit("1", 2), Fault, Unit("1", 7)});
        row("semicolon before any value", ";a:b", {Fault, Missing("", 3)});
        row("doubled semicolon behind an overrun", "a:b c:d;;;e:f", {Fault, Fault});
        row("comment", "/* a:1; */ x{c:d;}", {});
        row("the character behind a comment is lost", "/**/:1 a:2;", {Unit("2", 9)});
        row("shortest comment", "/*/a:1;", {Unit("1", 5)});
        row("a comment right behind another", "/**/x/* a:1; */b:2;", {Unit("1", 10), Unit("2", 17)});
        row("comment without an end", "a:1;/* b:2;", {Unit("1", 2)});
    }
    void blocks() {
        QFETCH(QString, css);
        QTEST(RowTexts(Checked(css)), "rows");
    }

    void pagesWithStyles_data() {
        const auto page = Columns<QString, int, QStringList>("page", "accuracy", "rows");
        const auto row = [&](const char* name, const QString& text, const QStringList& rows = {}) {
            page(name, text, 100, rows);
        };
        const QString fault = u"Error3|Der Code verursacht einen unbekannten Fehler."_s;
        row("mixed case with attributes", "<Style type=\"a:b\">a:1; </sTYLE>", {Unit("1", 20)});
        row("last character left out", "<style>a:12</style>", {Unit("1", 9)});
        row("both in turn", "<p STYLE=\"a:1\"><style>b:2; </style><p style=\"c:3\">",
            {Unit("1", 12), Unit("2", 24), Unit("3", 47)});
        row("empty attribute reaches to the next quotation mark", "<p style=\"\" id=\"x\">");
        row("what stands before it is its value", "<p style=\"\" x:1;id=\"\">", {Unit("1", 14)});
        row("element without an end", "<style>a:1; <p style=\"b:2\">", {Unit("2", 24)});
        row("attribute without an end", "<p style=\"a:1>");
        row("empty element", "<style></style><p style=\"b:2\">", {fault, Unit("2", 27)});
        row("no end of the opening tag: all from the top", "a:1; <style </style", {Unit("1", 2)});
        // The second block ends where the first one did; the scan must not go round for ever.
        row("unfinished at the end", "<style>a:1; </style> <style </style", {Unit("1", 9)});
        page("low accuracy skips blocks", "<p style=\"a:1\"><p style=\"b:2\">", 70, {Unit("1", 12)});
        // Markup without an end moves the scan on by whole steps, not to where it stands.
        page("endless", ".........<style>.................style=\"b:2\">", 70, {Unit("2", 42)});
        // It leads the scan back to the top, and this time it meets the element that it had skipped.
        page("unfinished", "x</style><p style=\"b:2\">.......<style>a:1; </style>........<style </style", 70,
             {Unit("2", 21), Unit("1", 40)});
    }
    void pagesWithStyles() {
        QFETCH(QString, page);
        QFETCH(int, accuracy);
        Debugger::Report report;
        Debugger::CheckPageStyles(page, accuracy, report);
        QTEST(RowTexts(report), "rows");
    }

    void hostileSheets() {
        const auto rows = [](const QString& css) { return static_cast<int>(Checked(css).rows.size()); };
        QCOMPARE(rows(u"a{b:c}"_s.repeated(50000)), 49999);
        QCOMPARE(rows(u"a{"_s + u"b:c "_s.repeated(75000)), 74999);
        QCOMPARE(rows(u"a:b"_s + QString(100000, u';') + u":c"_s), 99999);
        QCOMPARE(Checked(u"a:;"_s.repeated(32768)).counts.cssErrors, 32768);
        const Debugger::Report warnings = Checked(u"a:1;"_s.repeated(32768)); // whose count ends at 16 bits
        QCOMPARE(RowTexts(warnings).mid(32766),
                 QStringList({Unit(u"1"_s, 131066), Fault, Unit(u"1"_s, 131070)}));
        // a long value judged again and again
        QCOMPARE(rows(u"a: "_s + QString(100000, u'1') + QString(50000, u';') + u":c"_s),
                 1 + 2 * 49999 + 50000 - 32767);
        QCOMPARE(rows(u"/*"_s + u"a:1;/*"_s.repeated(50000)), 0);
    }

    void shippedDesignsHaveNoRow() {
        for (int number = 1; number <= 8; ++number) {
            QFile file(SourceFile(u"data/defstyle%1.css"_s.arg(number)));
            QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
            const QByteArray sheet = file.readAll();
            QCOMPARE(RowTexts(Checked(QString::fromLatin1(sheet))), QStringList());
            QCOMPARE(sheet.count('\n'), sheet.count("\r\n"));
        }
    }
};

REGISTER_TEST(CssCheck);
#include "css_check_test.moc"
