// SPDX-License-Identifier: MIT
// Paths as text, with "\" as separator, and small text helpers that all tools share.
#pragma once

#include <QString>
#include <optional>

namespace Global {

// The part behind the last "\", or behind the last "/" if there is no "\"; else the whole path.
QString FileNameOf(const QString& path);
// The path up to and with its last "."; empty if there is none.
QString StripExtension(const QString& path);
// The part before the last "\" if that stands at position 2 or later; else the whole path.
QString ParentPath(const QString& path);
// The part behind the last ".", at most `length` characters of it, in lower case; `preset` with no ".".
QString ExtensionOf(const QString& path, const QString& preset = QStringLiteral("none"),
                    qsizetype length = 3);

// Number of non-overlapping occurrences of `needle`, from left to right.
qsizetype CountOccurrences(QStringView text, QStringView needle);
// The part before the first occurrence of `delimiter`, found in any case; else the whole text.
QString CutBefore(const QString& text, const QString& delimiter);

// An absolute path from a relative one with leading "../" steps and the folder that it counts from (ends in
// "\"). A path that climbs above the root waits out one second, tells it in a message and gives an empty
// text.
QString ResolveLink(const QString& relative, const QString& base);
// The same without a word: nothing for a path that climbs above the root.
std::optional<QString> PathOfLink(const QString& relative, const QString& base);
// The path of `target` as seen from the file `base`, with "/" between its parts. What follows the steps
// upwards is cut at 255 characters. A base folder without "\" at its end keeps its own name in the result.
QString RelativePathOf(const QString& target, const QString& base);

} // namespace Global
