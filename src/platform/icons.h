// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QStringView>

namespace Icons {

// The drawing of that name, as a path that Qt reads.
QString Path(QStringView name);
// The icon of that name in the program's set ("open_file"); an empty one for an empty name.
QIcon Named(QStringView name);

} // namespace Icons
