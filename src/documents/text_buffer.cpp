// SPDX-License-Identifier: MIT
#include "documents/text_buffer.h"

#include "documents/document_file.h"
#include "platform/text.h"

#include <algorithm>

TextBuffer::TextBuffer(const QString& text) : m_text(Text::WithFullLineBreaks(text)) {}

void TextBuffer::SetText(const QString& text) {
    m_text = Text::WithFullLineBreaks(text);
    m_start = m_length = 0;
    if (change) change();
}

void TextBuffer::SetSelStart(qsizetype start) {
    if (start < 0) throw RuntimeError("SelStart below 0");
    m_start = std::min(start, m_text.size());
    m_length = 0;
}

void TextBuffer::SetSelLength(qsizetype length) {
    if (length < 0) throw RuntimeError("SelLength below 0");
    m_length = std::min(length, m_text.size() - m_start);
}

void TextBuffer::SetSelText(const QString& text) {
    if (text.isEmpty() && m_length == 0) return;
    // Each part is completed on its own: a CR before the selection and an LF behind it are halves of pairs
    // that the selection cuts.
    const QString before = Text::WithFullLineBreaks(QStringView(m_text).first(m_start));
    const QString inserted = Text::WithFullLineBreaks(text);
    const QString after = Text::WithFullLineBreaks(QStringView(m_text).sliced(m_start + m_length));
    m_text = before + inserted + after;
    m_start = before.size() + inserted.size();
    m_length = 0;
    if (change) change();
}

bool TextBuffer::LoadFile(const QString& path) {
    const auto document = DocumentFile::Load(path);
    if (document) BeginDocument(document->text);
    return document.has_value();
}

qsizetype TextBuffer::LineFromChar(qsizetype position) {
    return QStringView(m_text)
        .first(std::clamp<qsizetype>(position, 0, m_text.size()))
        .count(Text::LineBreak);
}

qsizetype TextBuffer::LineIndex(qsizetype line) {
    qsizetype start = 0;
    for (; line > 0; --line) {
        const qsizetype next = m_text.indexOf(Text::LineBreak, start);
        if (next < 0) break;
        start = next + Text::LineBreak.size();
    }
    return start;
}
