// SPDX-License-Identifier: MIT
#include "clips/clip_sheet.h"

#include "documents/paths.h"
#include "platform/literals.h"

#include <algorithm>

namespace ClipSheet {

namespace {

constexpr int Pitch = 80; // from picture to picture
constexpr int BarStep = 90;
constexpr int FrameSize = 64;
constexpr int Greatest = 60; // of a thumbnail
constexpr int Least = 10;
constexpr int ScrolledFrom = 4; // row

QPoint Cell(qsizetype index) {
    return {static_cast<int>(index % Columns) * Pitch, static_cast<int>(index / Columns) * Pitch};
}

} // namespace

int RowOf(qsizetype index) { return static_cast<int>(index / Columns); }

int LastRow(qsizetype count) { return count == 0 ? -1 : RowOf(count - 1); }

QRect Frame(qsizetype index) { return {Cell(index) + QPoint(28, 13), QSize(FrameSize, FrameSize)}; }

QRect Selection(qsizetype index) { return Frame(index).adjusted(-2, -2, 2, 2); }

QPoint LabelPlace(qsizetype index) { return Cell(index) + QPoint(20, 33); }

QRect Thumbnail(qsizetype index, QSize size) {
    return {Cell(index) + QPoint(60 - size.width() / 2, 45 - size.height() / 2), size};
}

int Height(int lastRow) { return BarStep * lastRow + 150; }

bool Scrolls(int lastRow) { return lastRow >= ScrolledFrom; }

int TopAt(int value) { return -BarStep * value; }

int ValueThatShows(qsizetype index, int value, int height) {
    const QRect wanted = Selection(index);
    const int greatest = std::max(0, wanted.top()) / BarStep; // the row at the upper edge
    const int least = (std::max(0, wanted.bottom() + 1 - height) + BarStep - 1) / BarStep;
    return std::clamp(value, std::min(least, greatest), greatest);
}

qsizetype IndexAt(QPoint place, qsizetype count) {
    if (place.x() < 0 || place.y() < 0) return -1;
    const int column = (place.x() - 20) / Pitch;
    const qsizetype index = qsizetype(place.y() / Pitch) * Columns + column;
    return column < Columns && index < count && Selection(index).contains(place) ? index : -1;
}

int ThumbnailSize(QSize picture, QChar axis) {
    const double width = picture.width();
    const double height = picture.height();
    double x = width;
    double y = height;
    if (width >= Greatest || height >= Greatest) {
        x = width >= height ? Greatest : width / height * Greatest;
        y = width > height ? height / width * Greatest : Greatest;
    }
    return std::max(Least, qRound(axis == u'X' ? x : y));
}

QSize ThumbnailSize(QSize picture) { return {ThumbnailSize(picture, u'X'), ThumbnailSize(picture, u'Y')}; }

bool IsPictureKind(const QString& name) {
    static const QString kinds = u"ßBMPß ßDIBß ßGIFß ßJPGß ßWMFß ßEMFß ßICOß ßCURß"_s;
    return kinds.contains(u'ß' + Global::ExtensionOf(name).toUpper() + u'ß');
}

} // namespace ClipSheet
