// SPDX-License-Identifier: MIT
// Reads pictures whose makers nobody knows: in bounded memory, and so that it can be stopped.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <atomic>
#include <functional>

namespace Pictures {

struct Picture {
    QImage image;       // null where the file cannot be shown
    QSize size;         // of the whole picture, upright, in pixels; not valid where there is none
    bool moves = false; // an animation
};

// Reads the picture in the size that `wanted` makes of its own, never a larger one; formats that can are
// decoded at that size. From any thread; large pictures are read one at a time. Ends soon, with nothing, when
// `stopped` (may be null) becomes true. Drawings and pages (SVG, PDF) count as no picture.
Picture Read(const QString& path, const std::function<QSize(QSize)>& wanted,
             const std::atomic<bool>* stopped = nullptr);

// The picture's size alone; not valid for what is no picture.
QSize SizeOf(const QString& path);

} // namespace Pictures
