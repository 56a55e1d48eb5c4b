// SPDX-License-Identifier: MIT
// The line of the document that the zoom window shows: the text between two line breaks.
#pragma once

#include <QString>

class CodeBox;

namespace LineZoom {

// Selects the line that holds the caret, without its line break, and returns it. In a last line without a
// line break behind it the last character stays out, as it always has; SaveLine then writes before it.
QString ReadCurrentLine(CodeBox& box);
// Takes an undo step and writes `line` over what ReadCurrentLine has selected.
void SaveLine(CodeBox& box, const QString& line);

} // namespace LineZoom
