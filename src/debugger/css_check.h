// SPDX-License-Identifier: MIT
// The check of one block of style rules.
#pragma once

#include "debugger/report.h"

#include <QStringView>

namespace Debugger {

enum class StyleMode { Head, Inline }; // from a style element, from a style attribute

// Adds what is wrong with the values in `css` to `report`. `offset` is the one-based position of the block's
// first character in the document; `mode` says where the block comes from, and no rule asks for it yet. The
// check knows no properties and no units: it judges what stands between each colon and the next semicolon.
// The cost grows with the text alone.
void CheckCSSSyntax(QStringView css, StyleMode mode, qsizetype offset, Report& report);

} // namespace Debugger
