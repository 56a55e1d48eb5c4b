// SPDX-License-Identifier: MIT
// The sixteen colours of the Kestrische Color Circuit, and colours as pages write them.
#pragma once

#include <QString>
#include <span>

namespace ColorCircuit {

struct Color {
    QStringView name;
    QStringView hex; // red, green, blue, two digits each
};
std::span<const Color> Colors();

// "#RRGGBB" of three parts from 0 to 255.
QString Hex(int red, int green, int blue);

} // namespace ColorCircuit
