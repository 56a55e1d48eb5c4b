// SPDX-License-Identifier: MIT
#include "debugger/html_check.h"

#include "debugger/accuracy.h"
#include "debugger/marks.h"
#include "debugger/open_tags.h"
#include "debugger/tag_scan.h"

#include <cstdint>
#include <limits>

namespace Debugger {

namespace {

struct CommentMarks {
    explicit CommentMarks(QStringView text);

    Marks openings; // "<!--"
    Marks closings; // "-->"
};

CommentMarks::CommentMarks(QStringView text) {
    const qsizetype size = text.size();
    const QChar* const characters = text.data();
    for (qsizetype k = 1; k < size; ++k) {
        if (characters[k] != u'-' || characters[k - 1] != u'-') continue;
        if (k >= 3 && characters[k - 2] == u'!' && characters[k - 3] == u'<') openings.push_back(k - 2);
        if (k + 1 < size && characters[k + 1] == u'>') closings.push_back(k);
    }
}

// Quotation marks outside comments; those behind a comment without an end are not counted.
qsizetype CountQuotes(QStringView text, const CommentMarks& comments) {
    MarkCursor openings(comments.openings);
    MarkCursor closings(comments.closings);
    qsizetype quotes = 0;
    for (qsizetype i = 1;; ++i) {
        const qsizetype quote = text.indexOf(u'"', i - 1) + 1;
        if (quote == 0) return quotes;
        const qsizetype comment = openings.From(i);
        if (comment > 0 && comment < quote) {
            const qsizetype end = closings.From(comment);
            if (end == 0) return quotes;
            i = end + 2;
        } else {
            ++quotes;
            i = quote;
        }
    }
}

void CheckQuotes(QStringView text, const CommentMarks& comments, Report& report) {
    if (CountQuotes(text, comments) % 2 == 0) return;
    ++report.counts.otherErrors;
    report.Add(ReportIcon::Error,
               u"     Im Dokument befindet sich eine ungerade Anzahl von Anführungszeichen."_s);
}

// Only the totals count. The counter of closings ends at the largest 16-bit number, and that is meant: from
// there on a closing cannot be counted, and every place from which the scan meets it is reported as a fault
// of the check.
void CheckComments(const CommentMarks& comments, Report& report) {
    constexpr qsizetype MostClosings = std::numeric_limits<std::int16_t>::max();
    MarkCursor openings(comments.openings);
    MarkCursor closings(comments.closings);
    qsizetype opened = 0;
    qsizetype closed = 0;
    for (qsizetype i = 1;; ++i) {
        const qsizetype opening = openings.From(i);
        const qsizetype closing = closings.From(i);
        if (opening == 0 && closing == 0) break;
        if (opening > 0 && (closing == 0 || opening < closing)) {
            ++opened;
            i = opening + 1;
        } else if (closed < MostClosings) {
            ++closed;
            i = closing + 1;
        } else {
            report.Add(ReportIcon::Error, UnknownFaultText);
        }
    }
    if (opened == closed) return;
    ++report.counts.otherErrors;
    report.Add(ReportIcon::Error, opened < closed
                                      ? u"     Mindestens ein Kommentar wurde zu oft geschlossen."_s
                                      : u"     Mindestens ein Kommentar wurde nicht geschlossen."_s);
}

} // namespace

void CheckHTML(QStringView text, int accuracy, const TagLists& lists, Report& report) {
    TagScan scan(text, accuracy, lists, report);
    scan.Run();
    if (accuracy != FullAccuracy) return;
    scan.ReportUnclosed();
    const CommentMarks comments(text);
    CheckQuotes(text, comments, report);
    CheckComments(comments, report);
}

} // namespace Debugger
