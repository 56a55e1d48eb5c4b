// SPDX-License-Identifier: MIT
// One row of the debugger's report.
#pragma once

#include "platform/literals.h"

#include <QString>
#include <optional>

namespace Debugger {

enum class ReportIcon { None, Error, Alert, Info };

// The key of the picture in the image list; empty for None.
inline QString IconKey(ReportIcon icon) {
    switch (icon) {
    case ReportIcon::Error:
        return u"Error3"_s;
    case ReportIcon::Alert:
        return u"Alert"_s;
    case ReportIcon::Info:
        return u"Info"_s;
    case ReportIcon::None:
        break;
    }
    return {};
}

struct ReportRow {
    ReportIcon icon = ReportIcon::None;
    QString text; // the message, with the blanks that indent it
    // What a click selects in the document, and the one-based character position where it was found. A marker
    // may be empty; a row without one has the position 0 and selects nothing.
    std::optional<QString> marker;
    qsizetype position = 0;

    bool operator==(const ReportRow&) const = default;
};

} // namespace Debugger
