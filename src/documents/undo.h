// SPDX-License-Identifier: MIT
// The one history of the program: 64 whole copies of the document's text.
#pragma once

#include <QString>

namespace Undo {

inline constexpr int Depth = 64;
// What a free place of the ring holds.
inline const QString FreeMarker = QStringLiteral("/</</NOUNDOACTIONS/>/>/");

// "-" once a copy has been taken, empty after UndoClear.
inline QString UndoTouched;

// Takes the present text as the newest copy; the oldest one is lost.
void PushUndo();
// Brings back the text before the present one; does nothing at the oldest copy.
void UndoStep();
// Brings back the oldest copy of a full ring, and otherwise only disables itself. This is meant: the enabling
// of the commands depends on it.
void RedoStep();
// Whether one of these two is writing its text at this moment.
bool IsStepping();
// Forgets all copies.
void UndoClear();

// The text at place 1 (newest) to 64 of the ring, or FreeMarker.
QString UndoRing(int place);

} // namespace Undo
