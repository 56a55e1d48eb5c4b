// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace TextTools {

// Answers the neighbour calls that mean the text tools.
void WireTextTools();

// Writes the backup copy that a tool has been asked for. Where it cannot be written its user is asked, under
// `title`, whether to go on without it. Returns whether the tool may go on.
bool MakeBackUp(const QString& title);

// "Code verschlüsseln": packs the page into one line, behind a save or a backup copy if that is wanted.
void Menu_Tools_MadCode();

} // namespace TextTools
