// SPDX-License-Identifier: MIT
// The thoroughness of the checks in percent.
#pragma once

#include <QtGlobal>

namespace Debugger {

inline constexpr int FullAccuracy = 100;

// The accuracy that a setting stands for: one outside 1 to 100, as only a hand-edited file holds it, acts as
// 100.
constexpr int AccuracyOf(int setting) {
    return setting >= 1 && setting <= FullAccuracy ? setting : FullAccuracy;
}

// The characters by which a scan at `accuracy` percent (1 to 100) moves on behind what it has dealt with.
constexpr qsizetype StepOf(int accuracy) { return FullAccuracy + 1 - accuracy; }

} // namespace Debugger
