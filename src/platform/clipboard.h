// SPDX-License-Identifier: MIT
// The system's clipboard, replaceable in tests and where there is no window system.
#pragma once

#include <QString>
#include <functional>

namespace Clipboard {

// Line breaks of the text are CR LF on this side, and those of the system on the other.
void SetText(const QString& text);
QString Text();

struct Source {
    std::function<void(const QString&)> set;
    std::function<QString()> get;
};
// Replaces the clipboard; without one a text of the program itself serves.
void Install(Source source);

} // namespace Clipboard
