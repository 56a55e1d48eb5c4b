// SPDX-License-Identifier: MIT
// Where the tools write: at the caret of the code box, each time as one undo step. The code comes to the
// front with the focus, also when it lay behind another window or was minimised, and when nothing was
// written.
#pragma once

#include <QString>

namespace InsertionPoint {

// Puts `before` in front of the selection and `after` behind it; the caret stands behind both. Returns
// whether there is a document window to write into.
bool Wrap(const QString& before, const QString& after);
// Writes `text` in place of the selection. Returns as Wrap() does.
bool Insert(const QString& text);
// Moves the caret that many characters back, to the place where its user goes on.
void MoveBack(qsizetype characters);

} // namespace InsertionPoint
