// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>
#include <vector>

namespace Debugger {

// A tag from its "<" up to and without its ">".
struct TagSpan {
    qsizetype start = 0; // SelStart
    qsizetype length = 0;
    bool operator==(const TagSpan&) const = default;
};

// All tags of `text` from its start to its end, those in comments and scripts too. A "<" without a ">" behind
// it is none.
std::vector<TagSpan> TagSpans(QStringView text);

} // namespace Debugger
