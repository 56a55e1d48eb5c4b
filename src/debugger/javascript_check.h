// SPDX-License-Identifier: MIT
// The place of a check of script files. The lines are prepared and walked; no rule is attached to the walk
// yet.
#pragma once

#include "debugger/report.h"

#include <QString>
#include <functional>

namespace Debugger {

// Hands every line of the script `code` to `rule`, with line comments blanked; a "//" inside a string counts
// as one.
void WalkScriptLines(QString code, const std::function<void(QStringView line)>& rule);

// Applies the rules for script lines to `code` and adds their findings to `report`: none, as long as there
// are none.
void CheckJavaScriptSyntax(const QString& code, Report& report);

} // namespace Debugger
