// SPDX-License-Identifier: MIT
// Where the library of pictures lies.
#pragma once

#include <QString>
#include <QStringList>

namespace Clips {

// Stands for the library's folder where the user has given up looking for it.
inline constexpr QStringView NoClips = u"[!NOCLIPS!]";
inline constexpr QStringView LibraryName = u"pageartbox";

// The folder of that name, in any case, that lies right in one of `places`, the first that has one. Empty
// where none has.
QString FindClipRoot(const QStringList& places);

// The library: in the program's directory, among the files of a read-only installation, or right in the root
// of a mounted volume. Where there is none it asks for the disc that holds it until it is there; NoClips when
// the user gives up.
QString LocateClipRoot();
// Asks for the disc. Returns whether it is worth another look.
bool AskForDisc();

} // namespace Clips
