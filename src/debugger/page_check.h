// SPDX-License-Identifier: MIT
// One run of the debugger over the active document.
#pragma once

#include "debugger/report.h"
#include "debugger/tag_lists.h"

#include <QString>
#include <optional>

namespace Debugger {

inline const QString WindowCaption = QStringLiteral("Debugger 3.2");

struct PageOptions {
    bool html = true; // which checks are wanted
    bool css = true;
    bool showReport = false; // adds section heads and a summary
    int accuracy = 100;      // percent; outside 1 to 100 it acts as 100
    QString extension;       // of the document's file, without the dot, in any case; "none" without one
};

struct PageReport : Report {
    std::optional<QString> caption; // the window's new caption; it keeps its own where there is none
};

// Checks the document `text`, whose line ends are CR LF. The cost grows with the text alone.
PageReport CheckPage(const QString& text, const PageOptions& options, const TagLists& lists);

} // namespace Debugger
