// SPDX-License-Identifier: MIT
#include "debugger/page_check.h"

#include "debugger/accuracy.h"
#include "debugger/html_check.h"
#include "debugger/javascript_check.h"
#include "debugger/style_check.h"
#include "platform/text.h"

namespace Debugger {

namespace {

class PageRun {
public:
    PageRun(const QString& text, const PageOptions& options, const TagLists& lists)
        : m_text(text), m_options(options), m_lists(lists), m_extension(Text::UpperCase(options.extension)),
          m_accuracy(AccuracyOf(options.accuracy)) {}
    PageReport Run();

private:
    void AddPreface();
    void RunHTML();
    void RunCSS();
    void RunJavaScript();
    void AddHead(const QString& text);
    void AddNothingFound(qsizetype faults);
    void AddSummary();
    bool AnySwitch() const { return m_options.html || m_options.css || m_javaScript; }

    const QString& m_text;
    const PageOptions& m_options;
    const TagLists& m_lists;
    const QString m_extension;
    const int m_accuracy;
    // Off whatever the menu says, for there are no rules yet.
    const bool m_javaScript = false;
    PageReport m_report;
};

PageReport PageRun::Run() {
    AddPreface();
    const bool isScript = m_extension == u"JS" || m_extension == u"VBS";
    const bool isStyleSheet = m_extension == u"CSS";
    if (m_options.html && !isScript && !isStyleSheet) RunHTML();
    if (m_options.css && !isScript) RunCSS();
    if (m_javaScript && m_extension != u"VBS") RunJavaScript();
    if (m_options.showReport) AddSummary();
    return std::move(m_report);
}

void PageRun::AddPreface() {
    if (m_accuracy < FullAccuracy) {
        m_report.Add(ReportIcon::Alert, u"Die Debuggenauigkeit steht nicht auf 100%."_s);
    }
    if (AnySwitch()) return;
    m_report.caption = WindowCaption;
    m_report.Add(ReportIcon::Error, u"Es ist keine Debugfunktion eingeschaltet."_s);
}

void PageRun::RunHTML() {
    AddHead(u"HTML-Code wurde geprüft."_s);
    CheckHTML(m_text, m_accuracy, m_lists, m_report);
    AddNothingFound(m_report.counts.Html());
}

void PageRun::RunCSS() {
    AddHead(u"CSS-Code wurde geprüft."_s);
    if (m_extension == u"CSS") {
        CheckStyleSheet(m_text, m_report);
    } else {
        CheckPageStyles(m_text, m_accuracy, m_report);
    }
    AddNothingFound(m_report.counts.Css());
}

void PageRun::RunJavaScript() {
    AddHead(u"JavaScript-Code wurde geprüft."_s);
    if (m_extension == u"JS") CheckJavaScriptSyntax(m_text, m_report);
    AddNothingFound(m_report.counts.JavaScript());
}

void PageRun::AddHead(const QString& text) {
    if (m_options.showReport) m_report.Add(ReportIcon::Info, text);
}

void PageRun::AddNothingFound(qsizetype faults) {
    if (faults == 0 && m_options.showReport) {
        m_report.Add(ReportIcon::None, u"     Es wurden keine Fehler gefunden."_s);
    }
}

void PageRun::AddSummary() {
    const Counts& counts = m_report.counts;
    const QString total = QString::number(counts.Total());
    if (counts.Total() == 0) {
        if (!AnySwitch()) return;
        m_report.caption = WindowCaption;
        m_report.Add(ReportIcon::Info, u"Im gesamten Dokument wurden keine Fehler gefunden."_s);
        return;
    }
    m_report.caption = WindowCaption + u" - "_s + total + u" Fehler"_s;
    m_report.Add(ReportIcon::Info, u"Im gesamten Dokument wurde(n) "_s + total + u" Fehler gefunden."_s);
    const auto addCount = [this](const QString& label, qsizetype count) {
        if (count > 0) m_report.Add(ReportIcon::None, u"     "_s + label + QString::number(count));
    };
    addCount(u"Falsche oder unbekannte Tags: "_s, counts.unknownTags);
    addCount(u"Nicht geschlossenen Tags: "_s, counts.unclosedTags);
    addCount(u"Falsch geschlossene Tags: "_s, counts.wronglyClosedTags);
    addCount(u"Sonstige Fehler: "_s, counts.otherErrors);
    addCount(u"CSS Fehler: "_s, counts.cssErrors);
    addCount(u"CSS Warnungen: "_s, counts.cssWarnings);
    addCount(u"JavaScript Fehler: "_s, counts.javaScriptErrors);
    addCount(u"JavaScript Warnungen: "_s, counts.javaScriptWarnings);
}

} // namespace

PageReport CheckPage(const QString& text, const PageOptions& options, const TagLists& lists) {
    return PageRun(text, options, lists).Run();
}

} // namespace Debugger
