// SPDX-License-Identifier: MIT
// What the checks of a page find: rows for the user and counts for the summary.
#pragma once

#include "debugger/report_row.h"

#include <deque>
#include <utility>

namespace Debugger {

// The text of the row for a statement of a check that could not be carried out; a check of styles indents it.
inline const QString UnknownFaultText = QStringLiteral("Der Code verursacht einen unbekannten Fehler.");
inline const QString IndentedFaultText = QStringLiteral("     Der Code verursacht einen unbekannten Fehler.");

struct Counts {
    qsizetype unknownTags = 0;
    qsizetype unclosedTags = 0;
    qsizetype wronglyClosedTags = 0;
    qsizetype otherErrors = 0;
    qsizetype cssErrors = 0;
    qsizetype cssWarnings = 0;
    qsizetype javaScriptErrors = 0;
    qsizetype javaScriptWarnings = 0;

    qsizetype Html() const { return unknownTags + unclosedTags + wronglyClosedTags + otherErrors; }
    qsizetype Css() const { return cssErrors + cssWarnings; }
    qsizetype JavaScript() const { return javaScriptErrors + javaScriptWarnings; }
    qsizetype Total() const { return Html() + Css() + JavaScript(); }

    bool operator==(const Counts&) const = default;
};

struct Report {
    std::deque<ReportRow> rows; // it grows without moving the rows, which pays off in long reports
    Counts counts;

    void Add(ReportIcon icon, QString text) { rows.push_back({icon, std::move(text), std::nullopt, 0}); }
    // `marker` is what a click selects, `position` (one-based) where.
    void Add(ReportIcon icon, QString text, QString marker, qsizetype position) {
        rows.push_back({icon, std::move(text), std::move(marker), position});
    }
};

} // namespace Debugger
