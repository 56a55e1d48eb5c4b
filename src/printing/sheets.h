// SPDX-License-Identifier: MIT
// A text on sheets of paper.
#pragma once

#include "printing/syntax_spans.h"

#include <QPagedPaintDevice>

namespace Sheets {

enum class Result { Printed, Ended, Failed };

// Prints `text` on `device`, in a font of so many points, as many times as `copies` says. Lines are wrapped
// between the margins; the foot of each sheet has its number. `progress` is told how much is done and may end
// the printing: then, and where the device fails, what is on it is worth nothing.
Result Print(QPagedPaintDevice& device, const SyntaxSpans::ColouredText& text, double points, int copies,
             const SyntaxSpans::Progress& progress);

} // namespace Sheets
