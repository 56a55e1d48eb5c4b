// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

namespace TagWatch {

// What the assistant has to say of the tag that is being typed.
struct Remark {
    int urgency; // the assistant's animation: 1 friendly, 2 warning
    QString text;
};

// Looks at `text` before the caret (`selStart` from 0); `help` is the joined help file. Nothing when there is
// nothing to say.
std::optional<Remark> Watch(const QString& text, qsizetype selStart, const QString& help);

} // namespace TagWatch
