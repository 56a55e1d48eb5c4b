// SPDX-License-Identifier: MIT
// Small helpers on files and their sizes.
#pragma once

#include <QString>

namespace FileManagement {

// Makes the folder `path` with all parents that are missing. Fails silently; an existing folder stays as it
// is.
void MakeFullDirectory(const QString& path);

// The first 3 characters behind the last "."; with no "." the first 3 characters of the path.
QString ShortExtensionOf(const QString& path);

// `number` bytes in B, kB, MB or GB with up to two places in the system's number format; empty from 1024 GB
// on. The number is taken in single precision, so one just below a limit may count as the limit.
QString FormatByteCount(double number);
// The same for the size of a file. Throws RuntimeError when the size cannot be read.
QString FormatFileSize(const QString& path);

} // namespace FileManagement
