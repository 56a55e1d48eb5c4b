// SPDX-License-Identifier: MIT
#include "clips/thumbnail_cache.h"

#include "platform/files.h"
#include "platform/literals.h"

#include <QCache>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QMutex>
#include <QSaveFile>
#include <QStandardPaths>

namespace ThumbnailCache {

namespace {

constexpr qsizetype GreatestInMemory = 32 << 20; // bytes
constexpr qint64 GreatestOnDisk = 20 << 20;      // bytes
constexpr qint64 BlockSize = 4096;               // that a file takes at least
constexpr qint64 DearFile = 32 << 10;            // bytes; a smaller file is made anew as soon as read
constexpr int GreatestLength = 512;              // pixels of a kept thumbnail; others are not ours

struct Kept {
    QMutex mutex;
    QCache<QByteArray, Pictures::Picture> pictures{GreatestInMemory};
};

Kept& TheKept() {
    static Kept kept;
    return kept;
}

QString Folder() {
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + u"/pageartbox"_s;
}

QString FileFor(const QByteArray& key) { return Folder() + u'/' + QString::fromLatin1(key) + u".png"; }

void KeepInMemory(const QByteArray& key, const Pictures::Picture& picture) {
    const QMutexLocker lock(&TheKept().mutex);
    TheKept().pictures.insert(key, new Pictures::Picture(picture), picture.image.sizeInBytes() + 200);
}

// The size of the whole picture stands in the thumbnail's text.
Pictures::Picture Load(const QByteArray& key) {
    QImageReader reader(FileFor(key), "png");
    const QSize shown = reader.size();
    if (shown.isEmpty() || shown.width() > GreatestLength || shown.height() > GreatestLength) return {};
    Pictures::Picture picture;
    picture.image = reader.read();
    const QStringList size = picture.image.text(u"Size"_s).split(u'x');
    if (size.size() != 2) return {};
    picture.size = QSize(size[0].toInt(), size[1].toInt());
    picture.moves = picture.image.text(u"Moves"_s) == u"1";
    return picture.size.isEmpty() ? Pictures::Picture() : picture;
}

// A failure costs nothing but the time to make it again.
void Save(const QByteArray& key, const Pictures::Picture& picture) {
    QDir().mkpath(Folder());
    QSaveFile file(FileFor(key));
    if (!file.open(QIODevice::WriteOnly)) return;
    QImageWriter writer(&file, "png");
    writer.setText(u"Size"_s, u"%1x%2"_s.arg(picture.size.width()).arg(picture.size.height()));
    if (picture.moves) writer.setText(u"Moves"_s, u"1"_s);
    if (!writer.write(picture.image)) file.cancelWriting();
    file.commit();
}

} // namespace

QByteArray KeyOf(const QString& path, int box) {
    const QFileInfo file(Files::ToSystem(path));
    if (!file.exists()) return {};
    const QString text = u"%1\n%2\n%3\n%4"_s.arg(file.absoluteFilePath())
                             .arg(file.size())
                             .arg(file.lastModified().toMSecsSinceEpoch())
                             .arg(box);
    return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha1).toHex();
}

Hit Find(const QByteArray& key) {
    {
        const QMutexLocker lock(&TheKept().mutex);
        if (const Pictures::Picture* known = TheKept().pictures.object(key)) return {true, *known};
    }
    const Pictures::Picture picture = Load(key);
    if (picture.image.isNull()) return {};
    KeepInMemory(key, picture);
    return {true, picture};
}

void Keep(const QByteArray& key, const Pictures::Picture& picture, qint64 fileSize) {
    KeepInMemory(key, picture);
    if (!picture.image.isNull() && fileSize >= DearFile) Save(key, picture);
}

void Prune() {
    QFileInfoList files =
        QDir(Folder()).entryInfoList({u"*.png"_s}, QDir::Files, QDir::Time); // the youngest first
    qint64 sum = 0;
    for (const QFileInfo& file : files) {
        sum += (file.size() + BlockSize - 1) / BlockSize * BlockSize;
        if (sum > GreatestOnDisk) QFile::remove(file.filePath());
    }
}

void Forget() {
    const QMutexLocker lock(&TheKept().mutex);
    TheKept().pictures.clear();
}

} // namespace ThumbnailCache
