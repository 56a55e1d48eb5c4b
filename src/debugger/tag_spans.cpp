// SPDX-License-Identifier: MIT
#include "debugger/tag_spans.h"

namespace Debugger {

std::vector<TagSpan> TagSpans(QStringView text) {
    std::vector<TagSpan> spans;
    for (qsizetype end = 0;;) {
        const qsizetype start = text.indexOf(u'<', end);
        if (start < 0) return spans;
        end = text.indexOf(u'>', start);
        if (end < 0) return spans;
        spans.push_back({start, end - start});
    }
}

} // namespace Debugger
