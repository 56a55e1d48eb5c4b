// SPDX-License-Identifier: MIT
#include "platform/file_copy.h"

#include "platform/files.h"
#include "platform/literals.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <filesystem>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Files {

namespace {

constexpr qint64 PieceSize = 1 << 20; // bytes

std::filesystem::path NativePath(const QString& system) {
    return std::filesystem::path(system.toStdU16String());
}

// Copies what is left of `source`.
CopyResult CopyPieces(QFile& source, QFile& target, const std::function<bool()>& goOn) {
    while (true) {
        const QByteArray piece = source.read(PieceSize);
        if (piece.isEmpty()) break;
        if (target.write(piece) != piece.size()) return CopyResult::Failed;
        if (goOn && !goOn()) return CopyResult::Stopped;
    }
    return source.error() == QFile::NoError && target.flush() ? CopyResult::Copied : CopyResult::Failed;
}

// Not every file system keeps them, so it is no failure where one does not.
void CopyAttributes(const QFile& source, QFile& target) {
    // what the user of the program may do is no permission of the file
    target.setPermissions(source.permissions() & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser));
    for (const auto time : {QFileDevice::FileAccessTime, QFileDevice::FileModificationTime}) {
        target.setFileTime(source.fileTime(time), time);
    }
}

} // namespace

CopyResult CopyWithTimes(const QString& from, const QString& to, const std::function<bool()>& goOn) {
    QFile source(ToSystem(from));
    const QString target = LinkTarget(ToSystem(to));
    const QFileInfo there(target);
    if (IsSameFile(from, to)) return CopyResult::Copied;
    if (!QFileInfo(source).isFile() || (there.exists() && !there.isFile())) return CopyResult::Failed;
    QTemporaryFile beside(there.absolutePath() + u"/.sorvane-XXXXXX"_s);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || !beside.open()) {
        return CopyResult::Failed;
    }
    const QString name = beside.fileName();
    const CopyResult result = CopyPieces(source, beside, goOn);
    if (result != CopyResult::Copied) return result;
    CopyAttributes(source, beside);
    beside.close();
    std::error_code error;
    std::filesystem::rename(NativePath(name), NativePath(target), error);
    if (error) return CopyResult::Failed;
    beside.setAutoRemove(false);
    return CopyResult::Copied;
}

bool WriteScratch(const QString& path, const QByteArray& bytes) {
    QFile file(ToSystem(path));
    if (!file.open(QIODevice::WriteOnly)) return false;
    if (file.write(bytes) == bytes.size() && file.flush()) return true;
    file.remove();
    return false;
}

bool FlushDisk(const QString& folder) {
#ifdef Q_OS_LINUX
    const int handle = ::open(QFile::encodeName(ToSystem(folder)).constData(), O_RDONLY | O_DIRECTORY);
    if (handle < 0) return false;
    const bool done = ::syncfs(handle) == 0 || errno == ENOSYS;
    ::close(handle);
    return done;
#else
    Q_UNUSED(folder)
    return true;
#endif
}

bool IsSameFile(const QString& path, const QString& other) {
    std::error_code error;
    return std::filesystem::equivalent(NativePath(ToSystem(path)), NativePath(ToSystem(other)), error);
}

bool LiesWithin(const QString& path, const QString& folder) {
    const QString base = QDir::cleanPath(ToSystem(folder));
    return QDir::cleanPath(ToSystem(path)).startsWith(base.endsWith(u'/') ? base : base + u'/');
}

} // namespace Files
