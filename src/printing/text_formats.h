// SPDX-License-Identifier: MIT
#pragma once

#include "printing/syntax_spans.h"

#include <QFont>
#include <QTextLayout>

namespace TextFormats {

// The font of code: as wide in bold and italic as it is plain.
QFont Font(double points);

// Hands out the spans of a text, line by line and in one pass over both.
class Lines {
public:
    // `spans` must outlive it.
    explicit Lines(const std::vector<SyntaxSpans::Span>& spans) : m_spans(spans) {}
    // The formats of the `length` characters behind `start`, counted from there. No line may begin before the
    // one that was asked for last.
    QList<QTextLayout::FormatRange> Of(qsizetype start, qsizetype length);

private:
    const std::vector<SyntaxSpans::Span>& m_spans;
    size_t m_next = 0; // the first one that does not end before the line
};

} // namespace TextFormats
