// SPDX-License-Identifier: MIT
// Where everything lies on the sheet of thumbnails. Lengths and places in logical pixels; pictures are
// counted from 0.
#pragma once

#include <QRect>
#include <QString>

namespace ClipSheet {

inline constexpr int Columns = 6;
inline constexpr int Width =
    80 * Columns + 40; // with a margin behind the last column like that before the first

int RowOf(qsizetype index);
// Row of the last of `count` pictures; -1 without any.
int LastRow(qsizetype count);

QRect Frame(qsizetype index);
// The mark around the frame of the chosen picture.
QRect Selection(qsizetype index);
// Where the label of a file of another kind begins, and how wide it is.
QPoint LabelPlace(qsizetype index);
inline constexpr int LabelWidth = 80;
// A thumbnail of that size, in the middle of its frame.
QRect Thumbnail(qsizetype index, QSize size);

// Height of the whole sheet, and whether it is scrolled.
int Height(int lastRow);
bool Scrolls(int lastRow);
// Top of the sheet when its bar stands at `value`, which goes from 0 to the last row. One step of the bar is
// more than a row; that is meant.
int TopAt(int value);
// The bar's value nearest to `value` that shows the picture whole in a window of that height.
int ValueThatShows(qsizetype index, int value, int height);

// Picture under a place of the sheet; -1 where there is none.
qsizetype IndexAt(QPoint place, qsizetype count);

// Width (axis "X") or height ("Y") of the thumbnail of a picture of that size: 60 at most, 10 at least.
int ThumbnailSize(QSize picture, QChar axis);
QSize ThumbnailSize(QSize picture);

// Whether the file's ending is that of a kind of pictures that the library takes.
bool IsPictureKind(const QString& name);

} // namespace ClipSheet
