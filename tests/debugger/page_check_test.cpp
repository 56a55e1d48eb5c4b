// SPDX-License-Identifier: MIT
#include "debugger/javascript_check.h"
#include "debugger/page_check.h"
#include "report_text.h"
#include "support/test_registry.h"

class PageCheck : public QObject {
    Q_OBJECT

private slots:
    void Reports_data();
    void Reports();
    void AccuracyOutsideItsRangeActsAsFull();
    void ScriptLines_data();
    void ScriptLines();
    void ScriptsHaveNoRules();
};

namespace {

const QString NoCaption = QStringLiteral("(stays)");
const QString HTMLHead = QStringLiteral("Info|HTML-Code wurde geprüft.");
const QString CSSHead = QStringLiteral("Info|CSS-Code wurde geprüft.");
const QString NothingFound = QStringLiteral("|     Es wurden keine Fehler gefunden.");
const QString NothingAtAll = QStringLiteral("Info|Im gesamten Dokument wurden keine Fehler gefunden.");
const QString Inaccurate = QStringLiteral("Alert|Die Debuggenauigkeit steht nicht auf 100%.");

Debugger::PageReport Checked(const QString& text, const Debugger::PageOptions& options) {
    static const Debugger::TagLists lists(u"-b-/b-p-/p-br-/br-x-/x", u"ßbrß");
    return Debugger::CheckPage(text, options, lists);
}

Debugger::PageOptions Options(const QString& extension, bool showReport = true, bool html = true,
                              bool css = true) {
    Debugger::PageOptions options;
    options.extension = extension;
    options.showReport = showReport;
    options.html = html;
    options.css = css;
    return options;
}

} // namespace

void PageCheck::Reports_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("switches"); // r: report, h: HTML, c: CSS
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QStringList>("rows");
    const QString clean = u"Debugger 3.2"_s;
    const QString faulty = u"<q><b></br>\"<p style=\"a:1;b:;\">"_s;
    const QStringList htmlRows = {
        u"Error3|     unbekannter Tag: <q>|q|1"_s,
        u"Error3|     Der Tag </br> wurde zu oft geschlossen|/br|7"_s,
        u"Error3|     Der Tag </br> muss nicht geschlossen werden|/br|7"_s,
        u"Error3|     Der Tag <q> wurde nicht geschlossen.|q|1"_s,
        u"Error3|     Der Tag <b> wurde nicht geschlossen.|b|4"_s,
        u"Error3|     Der Tag <p> wurde nicht geschlossen.|p|13"_s,
        u"Error3|     Im Dokument befindet sich eine ungerade Anzahl von Anführungszeichen."_s};
    const QStringList cssRows = {u"Alert|     Es wurde keine Einheit für den Wert '1' eingegeben.|1|24"_s,
                                 u"Error3|     Es ist kein Wert eingetragen.||28"_s};
    const QStringList summary = {u"Info|Im gesamten Dokument wurde(n) 9 Fehler gefunden."_s,
                                 u"|     Falsche oder unbekannte Tags: 1"_s,
                                 u"|     Nicht geschlossenen Tags: 3"_s,
                                 u"|     Falsch geschlossene Tags: 2"_s,
                                 u"|     Sonstige Fehler: 1"_s,
                                 u"|     CSS Fehler: 1"_s,
                                 u"|     CSS Warnungen: 1"_s};
    const auto row = [](const char* name, const QString& text, const QString& extension,
                        const QString& switches, const QString& caption, const QStringList& rows) {
        QTest::newRow(name) << text << extension << switches << caption << rows;
    };
    row("empty document", u""_s, u"none"_s, u"rhc"_s, clean,
        {HTMLHead, NothingFound, CSSHead, NothingFound, NothingAtAll});
    row("empty document without report", u""_s, u"none"_s, u"hc"_s, NoCaption, {});
    row("all faults", faulty, u"htm"_s, u"rhc"_s, u"Debugger 3.2 - 9 Fehler"_s,
        QStringList{HTMLHead} + htmlRows + QStringList{CSSHead} + cssRows + summary);
    row("all faults without report", faulty, u"htm"_s, u"hc"_s, NoCaption, htmlRows + cssRows);
    row("CSS off", u"<p></p><p style=\"a:1\"></p>"_s, u"htm"_s, u"rh"_s, clean,
        {HTMLHead, NothingFound, NothingAtAll});
    row("HTML off", u"<q>"_s, u"htm"_s, u"rc"_s, clean, {CSSHead, NothingFound, NothingAtAll});
    row("all off", u"<q>"_s, u"htm"_s, u"r"_s, clean,
        {u"Error3|Es ist keine Debugfunktion eingeschaltet."_s});
    row("style sheet", u"<q> a:1; "_s, u"CSS"_s, u"rhc"_s, u"Debugger 3.2 - 1 Fehler"_s,
        {CSSHead, u"Alert|     Es wurde keine Einheit für den Wert '1' eingegeben.|1|6"_s,
         u"Info|Im gesamten Dokument wurde(n) 1 Fehler gefunden."_s, u"|     CSS Warnungen: 1"_s});
    row("JavaScript", u"<q style=\"a:1\">"_s, u"js"_s, u"rhc"_s, clean, {NothingAtAll});
    row("VBScript", u"<q style=\"a:1\">"_s, u"VBS"_s, u"rhc"_s, clean, {NothingAtAll});
}

void PageCheck::Reports() {
    QFETCH(QString, text);
    QFETCH(QString, extension);
    QFETCH(QString, switches);
    QFETCH(QString, caption);
    QFETCH(QStringList, rows);
    const auto options =
        Options(extension, switches.contains(u'r'), switches.contains(u'h'), switches.contains(u'c'));
    const Debugger::PageReport report = Checked(text, options);
    QCOMPARE(RowTexts(report), rows);
    QCOMPARE(report.caption.value_or(NoCaption), caption);
}

void PageCheck::AccuracyOutsideItsRangeActsAsFull() {
    auto options = Options(u"htm"_s, false);
    for (const int full : {100, 0, -5, 101, 32767, -32768}) {
        options.accuracy = full;
        QCOMPARE(RowTexts(Checked(u"<b>"_s, options)),
                 QStringList{u"Error3|     Der Tag <b> wurde nicht geschlossen.|b|1"_s});
    }
    for (const int low : {1, 50, 99}) {
        options.accuracy = low;
        QCOMPARE(RowTexts(Checked(u"<b>"_s, options)), QStringList{Inaccurate});
    }
}

void PageCheck::ScriptLines_data() {
    QTest::addColumn<QString>("code");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("empty") << u""_s << QStringList{u""_s};
    QTest::newRow("lines") << u"a\r\n\r\nb"_s << QStringList{u"a"_s, u""_s, u"b"_s};
    QTest::newRow("comments are blanked")
        << u"a; // b\r\n//\r\nc"_s << QStringList{u"a;     "_s, u"  "_s, u"c"_s};
    QTest::newRow("also in a string") << u"a = \"http://b\";"_s << QStringList{u"a = \"http:     "_s};
}

void PageCheck::ScriptLines() {
    QFETCH(QString, code);
    QStringList lines;
    Debugger::WalkScriptLines(code, [&lines](QStringView line) { lines << line.toString(); });
    QTEST(lines, "lines");
}

void PageCheck::ScriptsHaveNoRules() {
    Debugger::Report report;
    Debugger::CheckJavaScriptSyntax(u"if (a { // b\r\n"_s, report);
    QVERIFY(report.rows.empty());
}

REGISTER_TEST(PageCheck);
#include "page_check_test.moc"
