// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStorageInfo>

namespace Volumes {

// The mounted volumes that people keep files on: the root, disks, and what is mounted over the network; not
// what the system shows of itself as a file system.
QList<QStorageInfo> Mounted();

} // namespace Volumes
