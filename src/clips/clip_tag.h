// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

namespace Clips {

// The folder that a path in the document counts from: `document` up to and with its last "\", or all of it.
QString BaseOf(const QString& document);

// The tag that shows a picture, by its address and its size in pixels. Without a size it has none, rather
// than a wrong one. No `alt`: that is meant, since only the writer knows what the picture says.
QString ImageTag(const QString& address, QSize size, bool xhtml);

} // namespace Clips
