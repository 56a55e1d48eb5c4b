// SPDX-License-Identifier: MIT
#include "support/small_disk.h"

#include "platform/files.h"
#include "platform/literals.h"

#include <QDir>
#include <QFile>
#include <QStorageInfo>

#ifdef Q_OS_LINUX
#include <sys/mount.h>
#endif

SmallDisk::SmallDisk() {
#ifdef Q_OS_LINUX
    m_mounted = ::mount("tmpfs", QFile::encodeName(m_folder.path()).constData(), "tmpfs", 0,
                        "size=64k,nr_inodes=12") == 0;
#endif
}

SmallDisk::~SmallDisk() {
#ifdef Q_OS_LINUX
    if (m_mounted) ::umount2(QFile::encodeName(m_folder.path()).constData(), MNT_DETACH);
#endif
}

QString SmallDisk::Path() const { return Files::FromSystem(m_folder.path()); }

void SmallDisk::Fill(qint64 rest) const {
    const qint64 free = QStorageInfo(m_folder.path()).bytesAvailable();
    if (free <= rest) return;
    QFile file(m_folder.filePath(u"filler_room"_s));
    if (!file.open(QIODevice::Append) || file.write(QByteArray(free - rest, 'f')) != free - rest ||
        !file.flush())
        qFatal("cannot fill the small disk");
}

void SmallDisk::TakeInodes() const {
    for (int i = 0;; ++i) {
        QFile file(m_folder.filePath(u"filler_%1"_s.arg(i)));
        if (!file.open(QIODevice::WriteOnly)) return;
    }
}

void SmallDisk::Empty() const {
    QDir folder(m_folder.path());
    for (const QString& name : folder.entryList({u"filler_*"_s}, QDir::Files)) folder.remove(name);
}
