// SPDX-License-Identifier: MIT
// The ready-made framesets.
#pragma once

#include <QString>
#include <span>

namespace FrameTexts {

struct Layout {
    QStringView kind; // "LeftTop"
    QStringView icon;
};
// In the order in which they are offered.
std::span<const Layout> Layouts();

// The lines of the frameset, each ended by CR LF; empty for an unknown kind.
QString For(QStringView kind);

} // namespace FrameTexts
