// SPDX-License-Identifier: MIT
#pragma once

class CodeBox;

namespace Umlauts {

// Turns an umlaut just before the caret into "ae" and the like, or, behind a "&", into the rest of its
// entity. Costs two changes of the text, and so two undo steps.
void SubstituteUmlauts(CodeBox& box);

} // namespace Umlauts
