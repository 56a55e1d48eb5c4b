// SPDX-License-Identifier: MIT
#include "debugger/javascript_check.h"
#include "debugger/page_check.h"
#include "report_text.h"
#include "support/test_registry.h"

class PageCheck : public QObject {
    Q_OBJECT

private slots:
    void reports_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("switches"); // r: report, h: HTML, c: CSS, and the accuracy
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QStringList>("rows");
        const QString none = u"(stays)"_s;
        const QString clean = u"Debugger 3.2"_s;
        const QString htmlHead = u"Info|HTML-Code wurde geprüft."_s;
        const QString cssHead = u"Info|CSS-Code wurde geprüft."_s;
        const QString nothing = u"|     Es wurden keine Fehler gefunden."_s;
        const QString nothingAtAll = u"Info|Im gesamten Dokument wurden keine Fehler gefunden."_s;
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
        const auto row = [](const char* name, const QString& text, const char* extension,
                            const char* switches, const QString& caption, const QStringList& rows) {
            QTest::newRow(name) << text << QString::fromLatin1(extension) << QString::fromLatin1(switches)
                                << caption << rows;
        };
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
            {cssHead, u"Alert|     Es wurde keine Einheit für den Wert '1' eingegeben.|1|6"_s,
             u"Info|Im gesamten Dokument wurde(n) 1 Fehler gefunden."_s, u"|     CSS Warnungen: 1"_s});
        row("empty style sheet", u""_s, "css", "hc 100", none, {});
        row("JavaScript", u"<q style=\"a:1\">"_s, "js", "rhc 100", clean, {nothingAtAll});
        row("VBScript", u"<q style=\"a:1\">"_s, "VBS", "rhc 100", clean, {nothingAtAll});
        // what is no accuracy acts as the full one
        for (const char* full : {"h 0", "h -5", "h 101", "h -32768"})
            row(full, u"<b>"_s, "htm", full, none, {htmlRows[4].chopped(1) + u'1'});
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
        QTEST(RowTexts(report), "rows");
        QTEST(report.caption.value_or(u"(stays)"_s), "caption");
    }

    void scriptLinesComeWithoutTheirComments() {
        QStringList lines;
        Debugger::WalkScriptLines(u"a; // b\r\n//\r\n\r\nc = \"http://d\""_s,
                                  [&lines](QStringView line) { lines << line.toString(); });
        QCOMPARE(lines, (QStringList{u"a;     "_s, u"  "_s, u""_s, u"c = \"http:    "_s}));
    }
};

REGISTER_TEST(PageCheck);
#include "page_check_test.moc"
