// SPDX-License-Identifier: MIT
#include "platform/volumes.h"

#include <QFileInfo>

namespace Volumes {

namespace {

bool HoldsFiles(const QStorageInfo& volume) {
    if (!volume.isValid() || !volume.isReady() || !QFileInfo(volume.rootPath()).isDir()) return false;
    if (volume.isRoot()) return true;
    const QByteArray type = volume.fileSystemType();
    if (type == "squashfs") return false;
    return volume.device().startsWith("/dev/") || type.startsWith("nfs") || type.startsWith("fuse") ||
           type == "cifs" || type == "smb3";
}

} // namespace

QList<QStorageInfo> Mounted() {
    QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    volumes.removeIf([](const QStorageInfo& volume) { return !HoldsFiles(volume); });
    return volumes;
}

} // namespace Volumes
