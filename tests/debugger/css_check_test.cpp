// SPDX-License-Identifier: MIT
#include "debugger/css_check.h"
#include "debugger/style_check.h"
#include "report_text.h"
#include "support/program_folder.h"
#include "support/test_registry.h"

#include <QFile>

class CssCheck : public QObject {
    Q_OBJECT

private slots:
    void Blocks_data();
    void Blocks();
    void PositionsCountFromTheOffset();
    void PagesWithStyles_data();
    void PagesWithStyles();
    void LowAccuracySkipsBlocks();
    void StyleSheetWithoutItsLastCharacter();
    void WarningsEndAtSixteenBits();
    void HostileSheets_data();
    void HostileSheets();
    void ShippedDesignsHaveNoRow();
};

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

QStringList Rows(const QString& css, qsizetype offset = 1) {
    Debugger::Report report;
    Debugger::CheckCSSSyntax(css, Debugger::StyleMode::Head, offset, report);
    return RowTexts(report);
}

QStringList PageRows(const QString& page, int accuracy = 100) {
    Debugger::Report report;
    Debugger::CheckPageStyles(page, accuracy, report);
    return RowTexts(report);
}

} // namespace

void CssCheck::Blocks_data() {
    QTest::addColumn<QString>("css");
    QTest::addColumn<QStringList>("rows");
    const auto row = [](const char* name, const QString& css, const QStringList& rows = {}) {
        QTest::newRow(name) << css << rows;
    };
    row("empty", u""_s);
    row("no colon", u"a{color}"_s);
    row("tidy", u"a{color:red;}"_s);
    row("no semicolon in an attribute", u"color:red"_s);
    row("blank before the value", u"a{color: red;}"_s, {Blank(u" red"_s, 8)});
    row("no value", u"a{color:;}"_s, {Missing(u""_s, 8)});
    row("blanks for a value", u"a{color:   ;}"_s, {Missing(u"   "_s, 8)});
    row("one blank for a value", u"a{color: ;}"_s, {Missing(u" "_s, 8)});

    row("bare number", u"a{width:12;}"_s, {Unit(u"12"_s, 8)});
    row("bare negative number", u"a{margin:-5;}"_s, {Unit(u"-5"_s, 9)});
    row("bare fraction", u"a{margin:0.5;}"_s, {Unit(u"0.5"_s, 9)});
    row("bare number of seven digits", u"a:1234567;"_s, {Unit(u"1234567"_s, 2)});
    row("zero", u"a{width:0;}"_s);
    row("with a unit", u"a:12px;b:1.5em;c:-3pt;d:.5em;"_s);
    row("a zero at the end of a fraction", u"a:1.50;"_s);
    row("a number among others", u"a:1 2;b:+5;c:05;"_s);
    row("bare number behind a blank", u"a: 12;"_s, {Blank(u" 12"_s, 2)});
    row("more digits than are printed", u"a:12345678;"_s);

    row("selector with a colon", u"a:hover{color:red;}"_s);
    row("semicolon missing", u"a{color:red margin:0;}"_s, {Semicolon(8)});
    row("semicolon missing twice", u"a{b:c d:e f:g;}"_s, {Semicolon(4), Semicolon(8)});
    row("last semicolon missing", u"a{color:red}"_s);
    row("last semicolon missing before a rule", u"a{color:red} b{margin:0;}"_s);
    row("last semicolon missing in two rules", u"a{b:c} d{e:f} g{h:i;}"_s, {Fault});
    row("nested rules", u"@media x{a{b:c}d{e:f}}"_s, {Fault});
    row("the answer of the round before stays", u"a{b:c d:e;f:g{h}i;"_s,
        {Semicolon(4), Fault, Semicolon(12)});

    row("doubled semicolon", u"a:b;;c:d"_s, {Fault});
    row("doubled semicolon judges the old value again", u"a:1;;c:d"_s,
        {Unit(u"1"_s, 2), Fault, Unit(u"1"_s, 7)});
    row("semicolon before any value", u";a:b"_s, {Fault, Missing(u""_s, 3)});
    row("doubled semicolon behind an overrun", u"a:b c:d;;;e:f"_s, {Fault, Fault});

    row("comment", u"/* a:1; */ x{c:d;}"_s);
    row("the character behind a comment is lost", u"/**/:1 a:2;"_s, {Unit(u"2"_s, 9)});
    row("shortest comment", u"/*/a:1;"_s, {Unit(u"1"_s, 5)});
    row("a comment begins right behind another one", u"/**/x/* a:1; */b:2;"_s,
        {Unit(u"1"_s, 10), Unit(u"2"_s, 17)});
    row("comment without an end", u"a:1;/* b:2;"_s, {Unit(u"1"_s, 2)});
}

void CssCheck::Blocks() {
    QFETCH(QString, css);
    QFETCH(QStringList, rows);
    QCOMPARE(Rows(css), rows);
}

void CssCheck::PositionsCountFromTheOffset() {
    QCOMPARE(Rows(u"a:1;"_s, 100), QStringList{Unit(u"1"_s, 101)});
}

void CssCheck::PagesWithStyles_data() {
    QTest::addColumn<QString>("page");
    QTest::addColumn<QStringList>("rows");
    const auto row = [](const char* name, const QString& page, const QStringList& rows = {}) {
        QTest::newRow(name) << page << rows;
    };
    const QString fault = u"Error3|Der Code verursacht einen unbekannten Fehler."_s;
    row("none", u"<p>a:1;</p>"_s);
    row("element", u"<style>a:1;b:2; </style>c:3;"_s, {Unit(u"1"_s, 9), Unit(u"2"_s, 13)});
    row("element in mixed case with attributes", u"<Style type=\"a:b\">a:1; </sTYLE>"_s, {Unit(u"1"_s, 20)});
    row("last character left out", u"<style>a:12</style>"_s, {Unit(u"1"_s, 9)});
    row("attribute", u"<p style=\"a:1\">"_s, {Unit(u"1"_s, 12)});
    row("attributes and elements in turn", u"<p STYLE=\"a:1\"><style>b:2; </style><p style=\"c:3\">"_s,
        {Unit(u"1"_s, 12), Unit(u"2"_s, 24), Unit(u"3"_s, 47)});
    row("empty attribute reaches to the next quotation mark", u"<p style=\"\" id=\"x\">"_s);
    row("and what stands before that mark is its value", u"<p style=\"\" x:1;id=\"\">"_s, {Unit(u"1"_s, 14)});
    row("element without an end", u"<style>a:1; <p style=\"b:2\">"_s, {Unit(u"2"_s, 24)});
    row("attribute without an end", u"<p style=\"a:1>"_s);
    row("empty element", u"<style></style><p style=\"b:2\">"_s, {fault, Unit(u"2"_s, 27)});
    row("no end of the opening tag: all from the top", u"a:1; <style </style"_s, {Unit(u"1"_s, 2)});
    // The second block ends where the first one did; the scan must not go round for ever.
    row("unfinished markup at the end", u"<style>a:1; </style> <style </style"_s, {Unit(u"1"_s, 9)});
}

void CssCheck::PagesWithStyles() {
    QFETCH(QString, page);
    QFETCH(QStringList, rows);
    QCOMPARE(PageRows(page), rows);
}

void CssCheck::LowAccuracySkipsBlocks() {
    const QString page = u"<p style=\"a:1\"><p style=\"b:2\">"_s;
    QCOMPARE(PageRows(page, 100).size(), 2);
    QCOMPARE(PageRows(page, 70), QStringList{Unit(u"1"_s, 12)});
    // Markup without an end moves the scan on by whole steps, not to where it stands.
    const QString endless = QString(9, u'.') + u"<style>"_s + QString(17, u'.') + u"style=\"b:2\">"_s;
    QCOMPARE(PageRows(endless, 70), QStringList{Unit(u"2"_s, 42)});
    // Unfinished markup leads the scan back to the top, and this time it meets the element that it had
    // skipped.
    const QString unfinished =
        u"x</style><p style=\"b:2\">.......<style>a:1; </style>........<style </style"_s;
    QCOMPARE(PageRows(unfinished, 70), (QStringList{Unit(u"2"_s, 21), Unit(u"1"_s, 40)}));
}

void CssCheck::StyleSheetWithoutItsLastCharacter() {
    Debugger::Report report;
    Debugger::CheckStyleSheet(u"a:12", report);
    Debugger::CheckStyleSheet(u"", report);
    QCOMPARE(RowTexts(report), QStringList{Unit(u"1"_s, 2)});
}

// Each warning that cannot be counted any more is a fault of the check, and has its row nevertheless.
void CssCheck::WarningsEndAtSixteenBits() {
    Debugger::Report report;
    Debugger::CheckCSSSyntax(u"a:1;"_s.repeated(32768), Debugger::StyleMode::Head, 1, report);
    QCOMPARE(report.counts.cssWarnings, 32767);
    QCOMPARE(RowTexts(report).mid(32766), (QStringList{Unit(u"1"_s, 131066), Fault, Unit(u"1"_s, 131070)}));
    report = {};
    Debugger::CheckCSSSyntax(u"a:;"_s.repeated(32768), Debugger::StyleMode::Head, 1, report);
    QCOMPARE(report.counts.cssErrors, 32768);
    QCOMPARE(report.rows.size(), size_t(32768));
}

void CssCheck::HostileSheets_data() {
    QTest::addColumn<QString>("css");
    QTest::addColumn<int>("rows");
    QTest::newRow("no semicolon") << u"a{b:c}"_s.repeated(50000) << 49999;
    QTest::newRow("colons alone") << u"a{"_s + u"b:c "_s.repeated(75000) << 74999;
    QTest::newRow("semicolons before a colon") << u"a:b"_s + QString(100000, u';') + u":c"_s << 99999;
    QTest::newRow("a long value judged again and again")
        << u"a: "_s + QString(100000, u'1') + QString(50000, u';') + u":c"_s << 1 + 2 * 49999 + 50000 - 32767;
    QTest::newRow("comment without an end") << u"/*"_s + u"a:1;/*"_s.repeated(50000) << 0;
}

void CssCheck::HostileSheets() {
    QFETCH(QString, css);
    QFETCH(int, rows);
    Debugger::Report report;
    Debugger::CheckCSSSyntax(css, Debugger::StyleMode::Head, 1, report);
    QCOMPARE(report.rows.size(), static_cast<size_t>(rows));
}

void CssCheck::ShippedDesignsHaveNoRow() {
    for (int number = 1; number <= 8; ++number) {
        QFile file(SourceFile(u"data/defstyle%1.css"_s.arg(number)));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
        const QByteArray sheet = file.readAll();
        QCOMPARE(Rows(QString::fromLatin1(sheet)), QStringList());
        QCOMPARE(sheet.count('\n'), sheet.count("\r\n"));
    }
}

REGISTER_TEST(CssCheck);
#include "css_check_test.moc"
