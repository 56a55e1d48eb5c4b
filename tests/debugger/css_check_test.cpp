// SPDX-License-Identifier: MIT
#include "debugger/css_check.h"
#include "debugger/style_check.h"
#include "report_text.h"
#include "support/program_folder.h"
#include "support/test_registry.h"

#include <QFile>

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
        QTest::addColumn<QString>("css");
        QTest::addColumn<QStringList>("rows");
        const auto row = [](const char* name, const QString& css, const QStringList& rows = {}) {
            QTest::newRow(name) << css << rows;
        };
        row("no colon", u"a{color}"_s);
        row("tidy", u"a:hover{color:red;}"_s);
        row("no semicolon in an attribute", u"color:red"_s);
        row("blank before the value", u"a{color: red;}"_s, {Blank(u" red"_s, 8)});
        row("no value", u"a{color:;}"_s, {Missing(u""_s, 8)});
        row("blanks for a value", u"a{color:   ;}"_s, {Missing(u"   "_s, 8)});
        row("bare number", u"a{width:12;}"_s, {Unit(u"12"_s, 8)});
        row("bare negative number", u"a{margin:-5;}"_s, {Unit(u"-5"_s, 9)});
        row("bare fraction", u"a{margin:0.5;}"_s, {Unit(u"0.5"_s, 9)});
        row("bare number of seven digits", u"a:1234567;"_s, {Unit(u"1234567"_s, 2)});
        row("bare number behind a blank", u"a: 12;"_s, {Blank(u" 12"_s, 2)});
        row("no bare numbers", u"a:12px;b:1.5em;c:-3pt;d:.5em;e:0;f:1.50;g:1 2;h:+5;i:05;j:12345678;"_s);
        row("semicolon missing", u"a{color:red margin:0;}"_s, {Semicolon(8)});
        row("semicolon missing twice", u"a{b:c d:e f:g;}"_s, {Semicolon(4), Semicolon(8)});
        row("last semicolon missing", u"a{color:red}"_s);
        row("last semicolon missing before a rule", u"a{color:red} b{margin:0;}"_s);
        row("last semicolon missing in two rules", u"a{b:c} d{e:f} g{h:i;}"_s, {Fault});
        row("nested rules", u"@media x{a{b:c}d{e:f}}"_s, {Fault});
        row("the answer of the round before", u"a{b:c d:e;f:g{h}i;"_s, {Semicolon(4), Fault, Semicolon(12)});
        row("doubled semicolon", u"a:b;;c:d"_s, {Fault});
        row("the old value again", u"a:1;;c:d"_s, {Unit(u"1"_s, 2), Fault, Unit(u"1"_s, 7)});
        row("semicolon before any value", u";a:b"_s, {Fault, Missing(u""_s, 3)});
        row("doubled semicolon behind an overrun", u"a:b c:d;;;e:f"_s, {Fault, Fault});
        row("comment", u"/* a:1; */ x{c:d;}"_s);
        row("the character behind a comment is lost", u"/**/:1 a:2;"_s, {Unit(u"2"_s, 9)});
        row("shortest comment", u"/*/a:1;"_s, {Unit(u"1"_s, 5)});
        row("a comment right behind another", u"/**/x/* a:1; */b:2;"_s, {Unit(u"1"_s, 10), Unit(u"2"_s, 17)});
        row("comment without an end", u"a:1;/* b:2;"_s, {Unit(u"1"_s, 2)});
    }
    void blocks() {
        QFETCH(QString, css);
        QTEST(RowTexts(Checked(css)), "rows");
    }

    void pagesWithStyles_data() {
        QTest::addColumn<QString>("page");
        QTest::addColumn<int>("accuracy");
        QTest::addColumn<QStringList>("rows");
        const auto low = [](const char* name, const QString& page, const QStringList& rows) {
            QTest::newRow(name) << page << 70 << rows;
        };
        const auto row = [](const char* name, const QString& page, const QStringList& rows = {}) {
            QTest::newRow(name) << page << 100 << rows;
        };
        const QString fault = u"Error3|Der Code verursacht einen unbekannten Fehler."_s;
        row("none", u"<p>a:1;</p>"_s);
        row("element", u"<style>a:1;b:2; </style>c:3;"_s, {Unit(u"1"_s, 9), Unit(u"2"_s, 13)});
        row("mixed case with attributes", u"<Style type=\"a:b\">a:1; </sTYLE>"_s, {Unit(u"1"_s, 20)});
        row("last character left out", u"<style>a:12</style>"_s, {Unit(u"1"_s, 9)});
        row("both in turn", u"<p STYLE=\"a:1\"><style>b:2; </style><p style=\"c:3\">"_s,
            {Unit(u"1"_s, 12), Unit(u"2"_s, 24), Unit(u"3"_s, 47)});
        row("empty attribute reaches to the next quotation mark", u"<p style=\"\" id=\"x\">"_s);
        row("what stands before it is its value", u"<p style=\"\" x:1;id=\"\">"_s, {Unit(u"1"_s, 14)});
        row("element without an end", u"<style>a:1; <p style=\"b:2\">"_s, {Unit(u"2"_s, 24)});
        row("attribute without an end", u"<p style=\"a:1>"_s);
        row("empty element", u"<style></style><p style=\"b:2\">"_s, {fault, Unit(u"2"_s, 27)});
        row("no end of the opening tag: all from the top", u"a:1; <style </style"_s, {Unit(u"1"_s, 2)});
        // The second block ends where the first one did; the scan must not go round for ever.
        row("unfinished at the end", u"<style>a:1; </style> <style </style"_s, {Unit(u"1"_s, 9)});
        low("low accuracy skips blocks", u"<p style=\"a:1\"><p style=\"b:2\">"_s, {Unit(u"1"_s, 12)});
        // Markup without an end moves the scan on by whole steps, not to where it stands.
        low("endless", u".........<style>.................style=\"b:2\">"_s, {Unit(u"2"_s, 42)});
        // It leads the scan back to the top, and this time it meets the element that it had skipped.
        low("unfinished", u"x</style><p style=\"b:2\">.......<style>a:1; </style>........<style </style"_s,
            {Unit(u"2"_s, 21), Unit(u"1"_s, 40)});
    }
    void pagesWithStyles() {
        QFETCH(QString, page);
        QFETCH(int, accuracy);
        Debugger::Report report;
        Debugger::CheckPageStyles(page, accuracy, report);
        QTEST(RowTexts(report), "rows");
    }

    // Each warning that cannot be counted any more is a fault of the check, and has its row nevertheless.
    void warningsEndAtSixteenBits() {
        const Debugger::Report warnings = Checked(u"a:1;"_s.repeated(32768));
        QCOMPARE(warnings.counts.cssWarnings, 32767);
        QCOMPARE(RowTexts(warnings).mid(32766),
                 (QStringList{Unit(u"1"_s, 131066), Fault, Unit(u"1"_s, 131070)}));
        QCOMPARE(Checked(u"a:;"_s.repeated(32768)).counts.cssErrors, 32768);
    }

    void hostileSheets() {
        const auto rows = [](const QString& css) { return static_cast<int>(Checked(css).rows.size()); };
        QCOMPARE(rows(u"a{b:c}"_s.repeated(50000)), 49999);
        QCOMPARE(rows(u"a{"_s + u"b:c "_s.repeated(75000)), 74999);
        QCOMPARE(rows(u"a:b"_s + QString(100000, u';') + u":c"_s), 99999);
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
