// SPDX-License-Identifier: MIT
#include "platform/files.h"

#include "platform/code_page.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <algorithm>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <unistd.h>
#endif

namespace Files {

namespace {

struct Folders {
    QString writable;
    QString readOnly;
};

Folders& Overridden() {
    static Folders folders;
    return folders;
}

Folders DefaultFolders() {
    const QString executable = FromSystem(QCoreApplication::applicationDirPath());
    if (QFileInfo(ToSystem(executable)).isWritable()) return {executable, executable};
    const QDir installed(QCoreApplication::applicationDirPath() + u"/../share/sorvane"_s);
    const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(own);
    return {FromSystem(own), installed.exists() ? FromSystem(installed.absolutePath()) : executable};
}

const Folders& CurrentFolders() {
    if (Overridden().writable.isEmpty()) {
        static const Folders folders = DefaultFolders();
        return folders;
    }
    return Overridden();
}

// Whether the system has put all that was written on the disk. Some file systems know no such request; there
// the writing itself has to tell.
bool IsOnDisk(QFileDevice& file) {
    if (!file.flush()) return false;
#ifdef Q_OS_UNIX
    if (::fsync(file.handle()) != 0) return errno == EINVAL || errno == ENOTSUP || errno == EROFS;
#endif
    return true;
}

// Without a second copy: what is longer than the old file is put behind it first, so that a full disk is met
// while the old bytes still stand.
bool WriteInPlace(const QString& system, const QByteArray& bytes) {
    const bool isNew = !QFileInfo::exists(system);
    QFile file(system);
    if (!file.open(QIODevice::ReadWrite)) return false;
    const qint64 before = file.size();
    if (bytes.size() > before) {
        const QByteArray tail = bytes.sliced(before);
        if (!file.seek(before) || file.write(tail) != tail.size() || !IsOnDisk(file)) {
            file.resize(before);
            if (isNew) file.remove();
            return false;
        }
    }
    const QByteArray head = bytes.first(std::min<qint64>(before, bytes.size()));
    return file.seek(0) && file.write(head) == head.size() && IsOnDisk(file) && file.resize(bytes.size());
}

// By way of a second file beside the target. Nothing where that file cannot be made or cannot take the
// target's name, as for names that leave no room for the second one's ending.
std::optional<bool> WriteBeside(const QString& system, const QByteArray& bytes) {
    QSaveFile file(system);
    if (!file.open(QIODevice::WriteOnly)) return std::nullopt;
    // commit() alone takes a last block for written that the disk has refused
    if (file.write(bytes) != bytes.size() || !IsOnDisk(file)) {
        file.cancelWriting();
        return false;
    }
    return file.commit() ? std::optional(true) : std::nullopt;
}

} // namespace

QString ToSystem(const QString& path) {
#ifdef Q_OS_WIN
    return path;
#else
    return QString(path).replace(u'\\', u'/');
#endif
}

QString FromSystem(const QString& path) { return QString(path).replace(u'/', u'\\'); }

bool IsFullPath(const QString& path) {
#ifdef Q_OS_WIN
    return path.size() >= 2 && path[0].isLetter() && path[1] == u':';
#else
    return path.startsWith(u'\\');
#endif
}

QString LinkTarget(QString system) {
    for (int step = 0; step < 40; ++step) {
        const QFileInfo info(system);
        if (!info.isSymLink()) return system;
        system = info.symLinkTarget();
    }
    return system;
}

QString MakeFull(const QString& path) { return FromSystem(QFileInfo(ToSystem(path)).absoluteFilePath()); }

QString Canonical(const QString& path) { return FromSystem(QFileInfo(ToSystem(path)).canonicalFilePath()); }

std::optional<QByteArray> Read(const QString& path, ReadError* error) {
    const auto fail = [error](ReadError why) {
        if (error) *error = why;
        return std::nullopt;
    };
    if (error) *error = ReadError::None;
    const QString system = ToSystem(path);
    const QFileInfo info(system);
    if (!info.exists()) return fail(info.dir().exists() ? ReadError::FileNotFound : ReadError::PathNotFound);
    QFile file(system);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) return fail(ReadError::Other);
    try {
        QByteArray bytes = file.readAll();
        if (file.error() != QFile::NoError) return fail(ReadError::Other);
        return bytes;
    } catch (const std::bad_alloc&) {
        return fail(ReadError::Other);
    }
}

std::optional<QString> ReadProgramText(const QString& path) {
    const auto bytes = Read(path);
    if (!bytes) return std::nullopt;
    const CodePage::Decoded decoded = CodePage::Decode(*bytes);
    return decoded.format.mark ? decoded.text : CodePage::FromWindows1252(*bytes);
}

bool WriteProgramText(const QString& path, const QString& text) {
    CodePage::Format format{CodePage::Encoding::Windows1252, true}; // the mark, should it become UTF-8
    return Write(path, CodePage::Encode(text, format));
}

bool Write(const QString& path, const QByteArray& bytes) {
    const QString system = LinkTarget(ToSystem(path));
    const QFileInfo info(system);
    if (info.exists() && (!info.isFile() || !info.isWritable())) return false;
    // No second file can be made in a folder without the right to it, nor beside a name as long as names may
    // be.
    const bool beside = !info.exists() || QFileInfo(info.absolutePath()).isWritable();
    const std::optional<bool> written = beside ? WriteBeside(system, bytes) : std::nullopt;
    return written ? *written : WriteInPlace(system, bytes);
}

bool CanRead(const QString& path) {
    QFile file(ToSystem(path));
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly);
}

bool FolderExists(const QString& path) { return QFileInfo(ToSystem(path)).isDir(); }

bool Copy(const QString& from, const QString& to) {
    const auto bytes = Read(from);
    return bytes && Write(to, *bytes);
}

bool Rename(const QString& from, const QString& to) {
    QFile::remove(ToSystem(to));
    return QFile::rename(ToSystem(from), ToSystem(to));
}

bool Remove(const QString& path) { return QFile::remove(ToSystem(path)); }

bool MakeFolder(const QString& path) { return QDir().mkpath(ToSystem(path)); }

bool RemoveFolder(const QString& path) { return QDir(ToSystem(path)).removeRecursively(); }

bool MoveToTrashOnly(const QString& path) {
    // Without the folder that holds the trash, Qt 6.4 makes one in the current directory.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    return QFile::moveToTrash(ToSystem(path));
}

bool MoveToTrash(const QString& path) {
    if (MoveToTrashOnly(path)) return true;
    return QFileInfo(ToSystem(path)).isDir() ? RemoveFolder(path) : Remove(path);
}

QStringList List(const QString& folder, const QStringList& patterns) {
    return QDir(ToSystem(folder)).entryList(patterns, QDir::Files | QDir::Hidden, QDir::Name);
}

std::optional<qint64> SizeOf(const QString& path) {
    const QFileInfo info(ToSystem(path));
    if (!info.isFile()) return std::nullopt;
    return info.size();
}

QString ProgramDirectory() { return CurrentFolders().writable; }

QString ProgramFile(const QString& name) {
    const Folders& folders = CurrentFolders();
    const QString own = folders.writable + u'\\' + name;
    if (folders.readOnly.isEmpty() || folders.readOnly == folders.writable) return own;
    if (QFileInfo::exists(ToSystem(own))) return own;
    const QString shipped = folders.readOnly + u'\\' + name;
    return QFileInfo::exists(ToSystem(shipped)) ? shipped : own;
}

void SetProgramDirectory(const QString& writable, const QString& readOnly) {
    Overridden() = {writable, readOnly};
}

QStringList Lines(const QString& text) {
    QStringList lines;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\n' && text[i] != u'\r') continue;
        lines.append(text.sliced(begin, i - begin));
        if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
        begin = i + 1;
    }
    if (begin < text.size()) lines.append(text.sliced(begin));
    return lines;
}

} // namespace Files
