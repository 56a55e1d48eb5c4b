// SPDX-License-Identifier: MIT
#include "literal_check.h"

#include "platform/text.h"

#include <QSet>

using Debugger::PageReport;
using Debugger::ReportIcon;
using Text::Find;

namespace {

const QString Quote = QStringLiteral("\"");
const QString Sentinel = QStringLiteral("<[NOTHING]-");
const QString Fault = QStringLiteral("Der Code verursacht einen unbekannten Fehler.");

QString Cut(const QString& text, qsizetype start, qsizetype length) {
    return Text::Middle(text, start, length).toString();
}

bool Listed(const QString& list, const QString& delimiter, const QString& name) {
    return Text::LowerCase(list).contains(delimiter + Text::LowerCase(name) + delimiter);
}

class Run {
public:
    Run(const QString& page, const Debugger::PageOptions& wanted, const LiteralCheck::ListStrings& strings)
        : text(page), len(page.size()), options(wanted), lists(strings), accuracy(wanted.accuracy) {}
    PageReport Check();

private:
    struct Open {
        QString name;
        qsizetype position;
    };
    void Tags();
    void Tag(QString name, qsizetype pos);
    bool MarkTagClosed(const QString& name);
    void Unclosed();
    void Quotes();
    void Comments();
    void Styles(const QString& extension);
    void Css(QString css, qsizetype offset);
    void Summary(bool anySwitch);
    void Error(const QString& message) { report.Add(ReportIcon::Error, message); }
    void Error(const QString& message, const QString& marker, qsizetype position) {
        report.Add(ReportIcon::Error, message, marker, position);
    }

    const QString& text;
    const qsizetype len;
    const Debugger::PageOptions& options;
    const LiteralCheck::ListStrings& lists;
    const int accuracy;
    std::vector<Open> unclosed;
    PageReport report;
};

PageReport Run::Check() {
    const QString extension = options.extension.toUpper();
    const bool script = extension == u"JS" || extension == u"VBS";
    const QString nothing = u"     Es wurden keine Fehler gefunden."_s;
    if (accuracy < 100) report.Add(ReportIcon::Alert, u"Die Debuggenauigkeit steht nicht auf 100%."_s);
    if (!options.html && !options.css) {
        report.caption = u"Debugger 3.2"_s;
        Error(u"Es ist keine Debugfunktion eingeschaltet."_s);
    }
    if (options.html && !script && extension != u"CSS") {
        if (options.showReport) report.Add(ReportIcon::Info, u"HTML-Code wurde geprüft."_s);
        Tags();
        if (accuracy == 100) {
            Unclosed();
            Quotes();
            Comments();
        }
        if (report.counts.Html() == 0 && options.showReport) report.Add(ReportIcon::None, nothing);
    }
    if (options.css && !script) {
        if (options.showReport) report.Add(ReportIcon::Info, u"CSS-Code wurde geprüft."_s);
        Styles(extension);
        if (report.counts.Css() == 0 && options.showReport) report.Add(ReportIcon::None, nothing);
    }
    if (options.showReport) Summary(options.html || options.css);
    return report;
}

void Run::Tags() {
    for (qsizetype i = 1; i <= len; i += 101 - accuracy) {
        const qsizetype pos = Find(text, u"<", i);
        if (pos == 0) break;
        if (Cut(text, pos, 4) == u"<!--") {
            const qsizetype end = Find(text, u"-->", pos);
            if (end == 0) break;
            i = end + 2;
            continue;
        }
        qsizetype gt = Find(text, u">", pos);
        const qsizetype sp = Find(text, u" ", pos);
        if (gt == 0 || (sp > 0 && sp < gt)) gt = sp;
        if (gt <= pos) continue;
        Tag(Cut(text, pos + 1, gt - pos - 1), pos);
        i = gt;
    }
}

void Run::Tag(QString name, qsizetype pos) {
    if (name.right(1) == u"/") name = name.left(name.size() - 1);
    if (Find(name, u"\r\n") > 1) name = name.left(Find(name, u"\r\n") - 1);
    if (Find(name, u"\t") > 1) name = name.left(Find(name, u"\t") - 1);
    if (name.left(1) != u"/") {
        unclosed.push_back({name, pos});
    } else {
        const QString rest = Cut(name, 2, 255);
        const auto wronglyClosed = [&](const QString& how) {
            ++report.counts.wronglyClosedTags;
            Error(u"     Der Tag <"_s + name.left(255) + u"> "_s + how, name, pos);
        };
        if (!MarkTagClosed(rest) && accuracy == 100) wronglyClosed(u"wurde zu oft geschlossen"_s);
        if (Listed(lists.noClosing, u"ß"_s, rest) && accuracy == 100)
            wronglyClosed(u"muss nicht geschlossen werden"_s);
    }
    if (name.left(3) != u"!--" && !Listed(lists.known, u"-"_s, name)) {
        ++report.counts.unknownTags;
        Error(u"     unbekannter Tag: <"_s + name + u">"_s, name, pos);
    }
}

bool Run::MarkTagClosed(const QString& name) {
    for (Open& open : unclosed) {
        if (Text::LowerCase(open.name) != Text::LowerCase(name)) continue;
        open.name = Sentinel;
        return true;
    }
    return false;
}

void Run::Unclosed() {
    for (const Open& open : unclosed) {
        if (Listed(lists.noClosing, u"ß"_s, open.name) || open.name == Sentinel) continue;
        ++report.counts.unclosedTags;
        Error(u"     Der Tag <"_s + open.name + u"> wurde nicht geschlossen."_s, open.name, open.position);
    }
}

void Run::Quotes() {
    qsizetype quotes = 0;
    for (qsizetype i = 1; i <= len; ++i) {
        const qsizetype q = Find(text, Quote, i);
        const qsizetype c = Find(text, u"<!--", i);
        if (q == 0) break;
        if (c > 0 && c < q) {
            const qsizetype e = Find(text, u"-->", c);
            if (e == 0) break;
            i = e + 2;
        } else {
            ++quotes;
            i = q;
        }
    }
    if (quotes % 2 == 0) return;
    ++report.counts.otherErrors;
    Error(u"     Im Dokument befindet sich eine ungerade Anzahl von Anführungszeichen."_s);
}

void Run::Comments() {
    int opened = 0, closed = 0;
    for (qsizetype i = 1; i <= len; ++i) {
        const qsizetype o = Find(text, u"<!--", i);
        const qsizetype c = Find(text, u"-->", i);
        if (o == 0 || (c > 0 && c < o)) {
            if (c == 0) break;
            if (closed == 32767) {
                Error(Fault);
            } else {
                ++closed;
                i = c + 1;
            }
        } else {
            ++opened;
            i = o + 1;
        }
    }
    if (opened == closed) return;
    ++report.counts.otherErrors;
    Error(opened < closed ? u"     Mindestens ein Kommentar wurde zu oft geschlossen."_s
                          : u"     Mindestens ein Kommentar wurde nicht geschlossen."_s);
}

void Run::Styles(const QString& extension) {
    const QString upper = Text::UpperCase(text);
    QSet<qsizetype> ends;
    for (qsizetype i = 1; i <= len; i += 101 - accuracy) {
        qsizetype start = Find(upper, u"<STYLE", i);
        bool head = true;
        const qsizetype a = Find(upper, u"STYLE=\"", i);
        if (start == 0 || (a > 0 && a < start)) {
            start = a;
            head = false;
        }
        if (start == 0 && extension != u"CSS") break;
        const qsizetype end = head ? Find(upper, u"</STYLE", start + 1) : Find(upper, Quote, start + 8);
        if (end <= start && extension != u"CSS") continue;
        qsizetype cssStart = 1;
        qsizetype cssEnd = len;
        if (extension != u"CSS") {
            cssStart = head ? Find(upper, u">", start) + 1 : start + 7;
            cssEnd = head ? Find(upper, u"</STYLE", cssStart) - 1 : Find(upper, Quote, cssStart + 1);
        }
        if (cssEnd <= 0 || cssStart <= 0) continue;
        if (ends.contains(cssEnd)) break; // it would go round for ever
        ends.insert(cssEnd);
        if (!Attempt([&] { Css(Cut(text, cssStart, cssEnd - cssStart), cssStart); })) Error(Fault);
        i = cssEnd;
    }
}

void Run::Css(QString css, qsizetype offset) {
    css += u';';
    const qsizetype n = css.size();
    for (qsizetype i = 1; i <= n;) {
        const qsizetype a = Find(css, u"/*", i);
        if (a == 0) break;
        qsizetype e = Find(css, u"*/", a) + 3;
        if (e == 3) e = n;
        Text::Overwrite(css, a, QString(e - a, u'/'));
        i = e + 1;
    }
    QString value;
    QString head;
    for (qsizetype i = 1; i <= n; ++i) {
        const qsizetype colon = Find(css, u":", i);
        if (colon == 0) return;
        qsizetype semi = Find(css, u";", i);
        if (semi == 0) semi = n;
        const qsizetype length = colon == semi ? 0 : semi - colon - 1;
        if (!Attempt([&] { value = Cut(css, colon + 1, length); })) Error(u"     "_s + Fault);
        i = semi;
        if (value.contains(u'}') || value.contains(u':')) {
            const qsizetype start = css.first(i).lastIndexOf(u'}') + 2;
            const qsizetype found = Find(css, u"{", colon);
            const qsizetype brace = found == 0 ? n : found;
            if (!Attempt([&] { head = Cut(css, start, brace - start); })) Error(u"     "_s + Fault);
            if (head.contains(u'{')) {
                ++report.counts.cssErrors;
                Error(u"     Am Ende eines Wertes steht kein Semikolon."_s, u"_"_s, colon + offset - 1);
            }
            i = colon;
            continue;
        }
        const float number = static_cast<float>(Text::LeadingNumber(value));
        const QString printed =
            (number < 0 ? QString() : u" "_s) + QString::number(static_cast<double>(number), 'g', 7);
        const auto warn = [&](const QString& before, const QString& behind) {
            ++report.counts.cssWarnings;
            report.Add(ReportIcon::Alert, u"     "_s + before + u" '"_s + value + u"' "_s + behind, value,
                       colon + offset - 1);
        };
        if (number != 0 && value.size() == printed.size() - (number > 0 ? 1 : 0)) {
            warn(u"Es wurde keine Einheit für den Wert"_s, u"eingegeben."_s);
        }
        const bool blanksAlone = value.count(u' ') == value.size();
        if (value.startsWith(u' ') && value.size() >= 2 && !blanksAlone) {
            warn(u"Zwischen dem Doppelpunkt und dem Wert"_s, u"steht ein Leerzeichen."_s);
        } else if (blanksAlone) {
            ++report.counts.cssErrors;
            Error(u"     Es ist kein Wert eingetragen."_s, value, colon + offset - 1);
        }
    }
}

void Run::Summary(bool anySwitch) {
    const Debugger::Counts& c = report.counts;
    const qsizetype total = c.Total();
    if (total > 0) {
        report.caption = u"Debugger 3.2 - %1 Fehler"_s.arg(total);
        report.Add(ReportIcon::Info, u"Im gesamten Dokument wurde(n) %1 Fehler gefunden."_s.arg(total));
        const std::vector<std::pair<QString, qsizetype>> lines = {
            {u"Falsche oder unbekannte Tags: "_s, c.unknownTags},
            {u"Nicht geschlossenen Tags: "_s, c.unclosedTags},
            {u"Falsch geschlossene Tags: "_s, c.wronglyClosedTags},
            {u"Sonstige Fehler: "_s, c.otherErrors},
            {u"CSS Fehler: "_s, c.cssErrors},
            {u"CSS Warnungen: "_s, c.cssWarnings}};
        for (const auto& [label, count] : lines) {
            if (count > 0) report.Add(ReportIcon::None, u"     "_s + label + QString::number(count));
        }
    } else if (anySwitch) {
        report.caption = u"Debugger 3.2"_s;
        report.Add(ReportIcon::Info, u"Im gesamten Dokument wurden keine Fehler gefunden."_s);
    }
}

} // namespace

Debugger::PageReport LiteralCheck::CheckPage(const QString& text, const Debugger::PageOptions& options,
                                             const ListStrings& lists) {
    return Run(text, options, lists).Check();
}
