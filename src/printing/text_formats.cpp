// SPDX-License-Identifier: MIT
#include "printing/text_formats.h"

#include "platform/literals.h"

#include <QColor>
#include <algorithm>

namespace TextFormats {

namespace {

QTextCharFormat FormatOf(const SyntaxSpans::Span& span) {
    QTextCharFormat format;
    format.setForeground(QColor::fromRgb(static_cast<QRgb>(span.colour)));
    if (span.bold) format.setFontWeight(QFont::Bold);
    if (span.italic) format.setFontItalic(true);
    return format;
}

} // namespace

QFont Font(double points) {
    QFont font(QStringList{u"Courier New"_s, u"Liberation Mono"_s, u"DejaVu Sans Mono"_s});
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setPointSizeF(points);
    return font;
}

QList<QTextLayout::FormatRange> Lines::Of(qsizetype start, qsizetype length) {
    while (m_next < m_spans.size() && m_spans[m_next].End() <= start) ++m_next;
    QList<QTextLayout::FormatRange> formats;
    for (size_t i = m_next; i < m_spans.size() && m_spans[i].start < start + length; ++i) {
        const qsizetype from = std::max<qsizetype>(m_spans[i].start, start);
        const qsizetype to = std::min(m_spans[i].End(), start + length);
        formats.append({static_cast<int>(from - start), static_cast<int>(to - from), FormatOf(m_spans[i])});
    }
    return formats;
}

} // namespace TextFormats
