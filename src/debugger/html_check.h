// SPDX-License-Identifier: MIT
// The check of a page's tags, quotation marks and comments.
#pragma once

#include "debugger/report.h"
#include "debugger/tag_lists.h"

#include <QStringView>

namespace Debugger {

// Adds what is wrong with the tags, quotation marks and comments of `text` to `report`. At an `accuracy` (1
// to 100) below 100 it skips tags that stand close behind another one, and reports nothing that depends on
// the whole page. The cost grows with the text alone.
void CheckHTML(QStringView text, int accuracy, const TagLists& lists, Report& report);

} // namespace Debugger
