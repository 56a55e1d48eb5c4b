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

// Waits until all that was written to the disk of `folder` is on it. Returns whether the system says so; true
// where it knows no such request.
bool FlushDisk(const QString& folder);

// Whether both paths lead to one file, links followed; false where one of them leads to nothing.
bool IsSameFile(const QString& path, const QString& other);

// Whether `path`, with its ".." steps taken, lies below `folder`. Symbolic links are not followed.
bool LiesWithin(const QString& path, const QString& folder);

} // namespace Files
