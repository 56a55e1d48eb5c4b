// SPDX-License-Identifier: MIT
#include "platform/file_copy.h"

#include "platform/files.h"
#include "platform/literals.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <algorithm>
#include <filesystem>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <future>
#include <thread>
#include <unistd.h>
#endif

namespace Files {

namespace {

constexpr qint64 PieceSize = 1 << 20; // bytes

// As QFile has it: a path cut within a character has no other form, and the library's own turning throws at
// it.
std::filesystem::path NativePath(const QString& system) {
#ifdef Q_OS_WIN
    return std::filesystem::path(system.toStdWString());
#else
    return std::filesystem::path(QFile::encodeName(system).toStdString());
#endif
}

bool IsHole(const QByteArray& piece) {
    return piece.size() == PieceSize &&
           std::all_of(piece.begin(), piece.end(), [](char byte) { return byte == 0; });
}

// Copies what is left of `source`; its holes stay holes, which take no room on the disk.
CopyResult CopyPieces(QFile& source, QFile& target, const std::function<bool()>& goOn) {
    bool hole = false;
    while (true) {
        const QByteArray piece = source.read(PieceSize);
        if (piece.isEmpty()) break;
        hole = IsHole(piece);
        const bool done = hole ? target.seek(target.pos() + PieceSize) : target.write(piece) == piece.size();
        if (!done) return CopyResult::Failed;
        if (goOn && !goOn()) return CopyResult::Stopped;
    }
    const bool done =
        source.error() == QFile::NoError && target.flush() && (!hole || target.resize(target.pos()));
    return done ? CopyResult::Copied : CopyResult::Failed;
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

CopyResult FlushDisk(const QString& folder, const std::function<bool()>& goOn) {
#ifdef Q_OS_LINUX
    const int handle =
        ::open(QFile::encodeName(ToSystem(folder)).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0) return CopyResult::Failed;
    // The request returns no sooner than it is done. A thread that touches nothing else waits for it, and is
    // left behind by those who do not want to.
    std::packaged_task<bool()> request([handle] {
        const bool done = ::syncfs(handle) == 0 || errno == ENOSYS;
        ::close(handle);
        return done;
    });
    std::future<bool> done = request.get_future();
    std::thread(std::move(request)).detach();
    while (done.wait_for(std::chrono::milliseconds(5)) != std::future_status::ready) {
        if (goOn && !goOn()) return CopyResult::Stopped;
    }
    return done.get() ? CopyResult::Copied : CopyResult::Failed;
#else
    Q_UNUSED(folder)
    Q_UNUSED(goOn)
    return CopyResult::Copied;
#endif
}

bool IsSameFile(const QString& path, const QString& other) {
    std::error_code error;
    return std::filesystem::equivalent(NativePath(ToSystem(path)), NativePath(ToSystem(other)), error);
}

bool MayBeThere(const QString& path) {
    std::error_code error;
    const auto status = std::filesystem::status(NativePath(ToSystem(path)), error);
    if (error == std::errc::permission_denied) return true;
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool LiesWithin(const QString& path, const QString& folder) {
    const QString base = QDir::cleanPath(ToSystem(folder));
    if (base.isEmpty()) return false;
    return QDir::cleanPath(ToSystem(path)).startsWith(base.endsWith(u'/') ? base : base + u'/');
}

} // namespace Files
