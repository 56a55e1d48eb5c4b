// SPDX-License-Identifier: MIT
// What is shown and read aloud of a report row, and what a click on it selects. A message quotes the
// document, so it may hold line breaks and be of any length.
#pragma once

#include "debugger/report_row.h"

#include <QString>
#include <optional>

namespace Debugger {

// The first `most` characters of `text` in one line: line breaks and tabs are blanks, a cut shows as "…".
QString OneLine(QStringView text, qsizetype most);
// `text` for a tip: rich text that shows every character as it stands, breaks in long words, and is cut where
// no tip could hold it.
QString TipText(QStringView text);
// The row as a screen reader says it: what its picture means, and the message without its indent.
QString SpokenText(const ReportRow& row);

struct Selection {
    qsizetype start = 0; // SelStart
    qsizetype length = 0;
};
// What a click on the row selects: as much as the marker is long, from one character behind the place told,
// that is behind a "<" or a ":". Nothing for a row without marker.
std::optional<Selection> SelectionOf(const ReportRow& row);

} // namespace Debugger
