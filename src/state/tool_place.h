// SPDX-License-Identifier: MIT
// Where a small window stood, as the settings hold it: decimal text in twips, meant with the window's frame.
#pragma once

#include "state/global.h"

#include <QSize>

class QWidget;

namespace ToolPlace {

// What the frame of a small window takes of the outer size; twips.
inline constexpr int BorderWidth = 105;
inline constexpr int BorderHeight = 345;

// The inner size, in pixels, of a window whose outer one is told in twips.
QSize Inner(double width, double height);

// Whether the settings also hold a size for the window.
enum class Keeps { Place, PlaceAndSize };

// Puts the window where it stood, whole on its screen. `preset` is its outer size in twips where none is
// kept; an empty one leaves the size as it is. Values that are no numbers, and sizes that leave
// nothing inside the frame, count as missing.
void Restore(QWidget& window, const Global::ToolPos& place, Keeps keeps, QSize preset = {});
// Writes the window's place into the elements 1 and 2, its size into 3 and 4.
void Store(const QWidget& window, Global::ToolPos& place, Keeps keeps);

} // namespace ToolPlace
