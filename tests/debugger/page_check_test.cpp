// SPDX-License-Identifier: MIT
#include "debugger/javascript_check.h"
#include "debugger/page_check.h"
#include "debugger/report_model.h"
#include "debugger/row_text.h"
#include "report_text.h"
#include "support/test.h"

#include <QAbstractItemModelTester>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace Debugger;

class PageCheck : public QObject {
    Q_OBJECT

private slots:
    void reports_data() {
        // switches: r: report, h: HTML, c: CSS, and the accuracy; rows: a fault by its icon alone
        const auto row = Columns<QString, QString, QString, QString, QStringList>(
            "text", "extension", "switches", "caption", "rows");
        const QString none = u"(stays)"_s;
        const QString clean = u"Debugger 3.2"_s;
        const QString htmlHead = u"Info|HTML-Code wurde geprüft."_s;
        const QString cssHead = u"Info|CSS-Code wurde geprüft."_s;
        const QString nothing = u"|     Es wurden keine Fehler gefunden."_s;
        const QString nothingAtAll = u"Info|Im gesamten Dokument wurden keine Fehler gefunden."_s;
        const QString faulty = u"<q><b></br>\"<p style=\"a:1;b:;\">"_s;
        const QStringList htmlRows = QStringList(7, u"Error3"_s);
        const QStringList cssRows = {u"Alert"_s, u"Error3"_s};
        const QStringList summary = {u"Info|Im gesamten Dokument wurde(n) 9 Fehler gefunden."_s,
                                     u"|     Falsche oder unbekannte Tags: 1"_s,
                                     u"|     Nicht geschlossenen Tags: 3"_s,
                                     u"|     Falsch geschlossene Tags: 2"_s,
                                     u"|     Sonstige Fehler: 1"_s,
                                     u"|     CSS Fehler: 1"_s,
                                     u"|     CSS Warnungen: 1"_s};
        row("empty document", u""_s, "none", "rhc 100", clean,
            {htmlHead, nothing, cssHead, nothing, nothingAtAll});
        row("all faults", faulty, "htm", "rhc 100", u"Debugger 3.2 - 9 Fehler"_s,
            QStringList{htmlHead} + htmlRows + QStringList{cssHead} + cssRows + summary);
        row("all faults without report", faulty, "htm", "hc 100", none, htmlRows + cssRows);
        row("CSS off", u"<p></p><p style=\"a:1\"></p>"_s, "htm", "rh 100", clean,
            {htmlHead, nothing, nothingAtAll});
        row("HTML off", u"<q>"_s, "htm", "rc 100", clean, {cssHead, nothing, nothingAtAll});
        row("all off", u"<q>"_s, "htm", "r 100", clean,
            {u"Error3|Es ist keine Debugfunktion eingeschaltet."_s});
        // its last character is left out
        row("style sheet", u"<q> a:12"_s, "CSS", "rhc 100", u"Debugger 3.2 - 1 Fehler"_s,
            {cssHead, u"Alert"_s, u"Info|Im gesamten Dokument wurde(n) 1 Fehler gefunden."_s,
             u"|     CSS Warnungen: 1"_s});
        row("empty style sheet", u""_s, "css", "hc 100", none, {});
        row("JavaScript", u"<q style=\"a:1\">"_s, "js", "rhc 100", clean, {nothingAtAll});
        row("VBScript", u"<q style=\"a:1\">"_s, "VBS", "rhc 100", clean, {nothingAtAll});
        // what is no accuracy acts as the full one
        for (const char* full : {"h 0", "h -5", "h 101", "h -32768"})
            row(full, u"<b>"_s, "htm", full, none, {u"Error3"_s});
        for (const char* low : {"h 1", "h 99"})
            row(low, u"<b>"_s, "htm", low, none, {u"Alert|Die Debuggenauigkeit steht nicht auf 100%."_s});
    }
    void reports() {
        QFETCH(QString, text);
        QFETCH(QString, extension);
        QFETCH(QString, switches);
        static const Debugger::TagLists lists(u"-b-/b-p-/p-br-/br-x-/x", u"ßbrß");
        Debugger::PageOptions options;
        options.extension = extension;
        options.showReport = switches.contains(u'r');
        options.html = switches.contains(u'h');
        options.css = switches.contains(u'c');
        options.accuracy = switches.section(u' ', 1).toInt();
        const Debugger::PageReport report = Debugger::CheckPage(text, options, lists);
        const QStringList rows =
            RowTexts(report).replaceInStrings(QRegularExpression(u"^(Error3|Alert)\\|     .*"_s), u"\\1"_s);
        QTEST(rows, "rows");
        QTEST(report.caption.value_or(u"(stays)"_s), "caption");
    }

    void scriptLinesComeWithoutTheirComments() {
        QStringList lines;
        Debugger::WalkScriptLines(u"a; // b\r\n//\r\n\r\nc = \"http://d\""_s,
                                  [&lines](QStringView line) { lines << line.toString(); });
        QCOMPARE(lines, (QStringList{u"a;     "_s, u"  "_s, u""_s, u"c = \"http:    "_s}));
    }

    void showsAnyTextInOneLine() {
        QCOMPARE(OneLine(u"     <\r\nb\tc\nd\u2028e>", 100), u"     < b c d e>"_s);
        QCOMPARE(OneLine(u"abcdef", 6), u"abcdef"_s);
        QCOMPARE(OneLine(u"abcdef", 5), u"abcde…"_s);
    }

    // What begins like markup would be read as such.
    void writesTips() {
        QCOMPARE(TipText(u"     Der Tag <b> wurde & so\r\nweiter"),
                 u"<p>Der Tag &lt;b&gt; wurde &amp; so weiter</p>"_s);
        QVERIFY(TipText(QString(100'000, u'<')).size() < 10'000);
        QString words = TipText(QString(QString(120, u'x') + u" kurz"_s));
        QCOMPARE(words.count(QChar(0x200B)), 2);
        QCOMPARE(words.remove(QChar(0x200B)), u"<p>"_s + QString(120, u'x') + u" kurz</p>"_s);
        const QString pairs =
            TipText(QString(u"x"_s + u"\U0001F41D"_s.repeated(60))); // no break inside a character
        QVERIFY(pairs.contains(QChar(0x200B)) && !pairs.contains(u"\xD83D\u200B"_s));
    }

    void modelShowsTheRows() {
        ReportModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        const std::deque<ReportRow> rows{{ReportIcon::Info, u"HTML"_s, std::nullopt, 0},
                                         {ReportIcon::Error, u"     Tag\r\n<q>"_s, u"q"_s, 12}};
        model.Replace(rows);
        model.Replace(rows);
        QCOMPARE(resets.count(), 1);
        const auto at = [&](int row, int column, int role) {
            return model.index(row, column).data(role).toString();
        };
        QCOMPARE(at(1, 0, ReportModel::IconRole), u"Error3"_s);
        QCOMPARE(at(0, 2, Qt::DisplayRole) + at(1, 2, Qt::DisplayRole), u"12"_s);
        QCOMPARE(at(0, 0, Qt::AccessibleTextRole), u"Hinweis: HTML"_s);
        QCOMPARE(at(1, 0, Qt::AccessibleTextRole), u"Fehler: Tag <q>"_s);
    }
};

REGISTER_TEST(PageCheck);
#include "page_check_test.moc"
