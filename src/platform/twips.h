// SPDX-License-Identifier: MIT
// All geometry is told in twips: 15 of them are one logical pixel.
#pragma once

namespace Twips {

inline constexpr int PerPixel = 15;

// Nearest pixel of a length or place in twips.
constexpr int ToPixels(double twips) {
    const double pixels = twips / PerPixel;
    return static_cast<int>(pixels < 0 ? pixels - 0.5 : pixels + 0.5);
}

constexpr int FromPixels(double pixels) { return static_cast<int>(pixels * PerPixel); }

} // namespace Twips
