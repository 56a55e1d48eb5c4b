// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace UpdateLog {

// The readable text of a file that is plain or rich text. Of rich text the words and line breaks are kept,
// the formats are not. A damaged file gives what can be read of it.
QString ReadableText(const QByteArray& bytes);

} // namespace UpdateLog
