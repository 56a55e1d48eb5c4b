// SPDX-License-Identifier: MIT
// Copying of many files to another place, without waiting for the disk at each of them.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

namespace Files {

enum class CopyResult { Copied, Failed, Stopped };
// Copies a file byte for byte, with its permissions and times, over `to`: by way of a temporary file beside
// it and a rename, through a symbolic link to its target. A file that both paths lead to stays as it is.
// `goOn` (may be empty) is asked behind each piece; where it says no, `to` is as it was before. The bytes are
// not waited for until they are on the disk; FlushDisk() does that for many files at once.
CopyResult CopyWithTimes(const QString& from, const QString& to, const std::function<bool()>& goOn = {});

// Writes a file that nobody misses after a crash; on failure it is gone. Returns whether it worked.
bool WriteScratch(const QString& path, const QByteArray& bytes);

// Waits until all that was written to the disk of `folder` is on it, which may take minutes; `goOn` (may be
// empty) is asked meanwhile, and where it says no the disk is left to itself (Stopped). Copied where the
// system says that all is there, or knows no such request.
CopyResult FlushDisk(const QString& folder, const std::function<bool()>& goOn = {});

// Whether both paths lead to one file, links followed; false where one of them leads to nothing.
bool IsSameFile(const QString& path, const QString& other);

// Whether there is something of that name that is no folder; true where a folder on the way keeps it from
// sight.
bool MayBeThere(const QString& path);

// Whether `path`, with its ".." steps taken, lies below `folder`. Symbolic links are not followed. False
// for an empty folder.
bool LiesWithin(const QString& path, const QString& folder);

} // namespace Files
