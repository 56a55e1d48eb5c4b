// SPDX-License-Identifier: MIT
// The folders and files of the library on disk.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace Clips {

// `name` in `folder`; the folder itself for an empty name.
QString PathIn(const QString& folder, const QString& name);

// Names of the folders and of the files right in `folder`, as people put them in order: in any case, numbers
// by their value. Nothing for a folder that cannot be read.
QStringList FoldersOf(const QString& folder);
std::optional<QStringList> FilesOf(const QString& folder);

// Whether `name` can be that of a new folder: not empty, no path, no step upwards.
bool IsFolderName(const QString& name);

// Copies a picture over `to`, which stays whole when it fails. The copy may be written, though it comes from
// a disc. Returns whether it worked.
bool CopyClip(const QString& from, const QString& to);

// Removes a folder and the files in it. Where it holds folders, or is a link to somewhere else, nothing is
// removed. Returns whether it is gone.
bool RemoveClipFolder(const QString& folder);

} // namespace Clips
