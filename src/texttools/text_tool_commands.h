// SPDX-License-Identifier: MIT
#pragma once

namespace TextTools {

// Answers the neighbour calls that mean the text tools.
void WireTextTools();

// "Code verschlüsseln": packs the page into one line, behind a save or a backup copy if that is wanted.
void Menu_Tools_MadCode();

} // namespace TextTools
