// SPDX-License-Identifier: MIT
#include "clips/picture_reader.h"

#include "platform/files.h"
#include "platform/literals.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QMutex>
#include <algorithm>

namespace Pictures {

namespace {

constexpr qint64 MegaPixel = 1'000'000;
constexpr qint64 GreatestPicture = 120 * MegaPixel; // what a header may announce
constexpr qint64 GreatestProgressive =
    24 * MegaPixel;                            // all of whose coefficients are kept: up to 6 bytes each
constexpr qint64 LargePicture = 4 * MegaPixel; // one at a time
constexpr int AllocationLimit = 128;           // megabytes of one decoded picture

// Raster formats alone: what is drawn from a text can take for ever, and cannot be stopped.
constexpr const char* Formats[] = {"gif", "jpeg", "jpg", "bmp", "dib", "ico", "cur", "png", "webp"};

// A file that ends when its reader is stopped.
class StoppableFile : public QFile {
public:
    StoppableFile(const QString& path, const std::atomic<bool>* stopped)
        : QFile(Files::ToSystem(path)), m_stopped(stopped) {}
    // A pipe would wait for its writer, a device may have no end.
    bool Open() { return QFileInfo(*this).isFile() && open(QIODevice::ReadOnly); }

protected:
    qint64 readData(char* data, qint64 length) override {
        return m_stopped && *m_stopped ? -1 : QFile::readData(data, length);
    }

private:
    const std::atomic<bool>* const m_stopped;
};

QByteArray FormatOf(QIODevice& file) {
    const QByteArray format = QImageReader::imageFormat(&file).toLower();
    const bool known = std::ranges::any_of(Formats, [&](const char* name) { return format == name; });
    return known ? format : QByteArray();
}

// Whether a JPEG keeps the whole picture in memory while it is decoded: its frame is of a progressive kind.
bool IsProgressive(QIODevice& file) {
    constexpr int Segments = 500; // more than any picture has before its frame
    const qint64 begin = file.pos();
    bool progressive = false;
    file.seek(2); // behind the mark of the format
    for (int i = 0; i < Segments; ++i) {
        const QByteArray head = file.read(4);
        if (head.size() < 4 || static_cast<uchar>(head[0]) != 0xff) break;
        const auto kind = static_cast<uchar>(head[1]);
        if (kind >= 0xc0 && kind <= 0xcf && kind != 0xc4 && kind != 0xc8 && kind != 0xcc) {
            progressive = kind != 0xc0 && kind != 0xc1;
            break;
        }
        const int length = static_cast<uchar>(head[2]) * 256 + static_cast<uchar>(head[3]);
        if (length < 2 || !file.seek(file.pos() + length - 2)) break;
    }
    file.seek(begin);
    return progressive;
}

// Once: the limit is the program's, and threads read.
void BoundMemory() {
    [[maybe_unused]] static const bool bound = (QImageReader::setAllocationLimit(AllocationLimit), true);
}

bool IsTurned(const QImageReader& reader) {
    return reader.transformation() & QImageIOHandler::TransformationRotate90;
}

// Reads what the reader announces as `size`, small enough for the memory it takes.
QImage ReadScaled(QImageReader& reader, QSize size, const std::function<QSize(QSize)>& wanted) {
    const bool turned = IsTurned(reader);
    const QSize upright = turned ? size.transposed() : size;
    const QSize target = wanted(upright).boundedTo(upright).expandedTo({1, 1});
    if (target != upright) reader.setScaledSize(turned ? target.transposed() : target);
    static QMutex oneLargeAtATime;
    const bool large = qint64(size.width()) * size.height() > LargePicture;
    QMutexLocker<QMutex> lock(large ? &oneLargeAtATime : nullptr);
    return reader.read();
}

bool IsTooLarge(QIODevice& file, const QByteArray& format, QSize size) {
    const qint64 pixels = qint64(size.width()) * size.height();
    const bool jpeg = format == "jpeg" || format == "jpg";
    return pixels > GreatestPicture || (jpeg && pixels > GreatestProgressive && IsProgressive(file));
}

} // namespace

Picture Read(const QString& path, const std::function<QSize(QSize)>& wanted,
             const std::atomic<bool>* stopped) {
    StoppableFile file(path, stopped);
    if (!file.Open()) return {};
    const QByteArray format = FormatOf(file);
    if (format.isEmpty()) return {};
    BoundMemory();
    QImageReader reader(&file, format);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (!size.isValid() || size.isEmpty()) return {};
    Picture picture;
    picture.size = IsTurned(reader) ? size.transposed() : size;
    picture.moves = reader.supportsAnimation();
    if (IsTooLarge(file, format, size)) return picture;
    picture.image = ReadScaled(reader, size, wanted);
    return picture;
}

QSize SizeOf(const QString& path) {
    StoppableFile file(path, nullptr);
    if (!file.Open()) return {};
    const QByteArray format = FormatOf(file);
    if (format.isEmpty()) return {};
    QImageReader reader(&file, format);
    const QSize size = reader.size();
    if (size.isEmpty()) return {};
    return IsTurned(reader) ? size.transposed() : size;
}

} // namespace Pictures
