// SPDX-License-Identifier: MIT
// Finds the style rules of a document and has them checked.
#pragma once

#include "debugger/report.h"

#include <QStringView>

namespace Debugger {

// Checks the whole of a style sheet but its last character, which stays unchecked.
void CheckStyleSheet(QStringView text, Report& report);

// Checks every style element and style attribute of a page. At an `accuracy` (1 to 100) below 100 it skips
// those that stand close behind another one.
void CheckPageStyles(QStringView text, int accuracy, Report& report);

} // namespace Debugger
