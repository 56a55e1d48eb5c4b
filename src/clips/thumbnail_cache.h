// SPDX-License-Identifier: MIT
// Thumbnails that have been made before, for the run and on the disk, so that a folder shows at once when it
// is seen again. From any thread.
#pragma once

#include "clips/picture_reader.h"

namespace ThumbnailCache {

// What a thumbnail is kept under: file, its size and time, and the length in pixels of the square it fits
// into. Empty for a file that is not there.
QByteArray KeyOf(const QString& path, int box);

// The picture kept under `key`, or nothing with a size that is not valid.
struct Hit {
    bool found = false;
    Pictures::Picture picture;
};
Hit Find(const QByteArray& key);
// Keeps it for the run; on the disk, too, if it is dear to make.
void Keep(const QByteArray& key, const Pictures::Picture& picture, qint64 fileSize);

// Brings the files on the disk down to their limit, the oldest first.
void Prune();
// Forgets what is kept for the run (tests, measurements).
void Forget();

} // namespace ThumbnailCache
