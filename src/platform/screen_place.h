// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QRect>

// `place` (pixels, outer) made to lie whole on one of the `screens`, the one that shows most of it, or the
// first where none does; no larger than that screen and, as far as it allows, no smaller than `least`.
QRect FittedToScreen(QRect place, const QList<QRect>& screens, QSize least = {});
// The same on the screens of this desktop, without their panels.
QRect FittedToScreen(QRect place, QSize least = {});
