// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include <algorithm>
#include <cstring>

namespace Text {

qsizetype Find(QStringView text, QStringView needle, qsizetype start) {
    if (start < 1) throw RuntimeError("find: start below 1");
    if (start > text.size() + 1) return 0;
    return text.indexOf(needle, start - 1) + 1;
}

qsizetype FindBack(QStringView text, QStringView needle, qsizetype start) {
    if (start < 1) throw RuntimeError("find back: start below 1");
    // The last place that a hit may begin at is named: without one, Qt 6.4 looks one character beyond the
    // view.
    const qsizetype last = std::min(start, text.size()) - needle.size();
    return last < 0 ? 0 : text.lastIndexOf(needle, last) + 1;
}

QStringView Middle(QStringView text, qsizetype start, qsizetype length) {
    if (start < 1 || length < 0) throw RuntimeError("cut out: start below 1 or negative length");
    if (start > text.size()) return {};
    return text.sliced(start - 1, std::min(length, text.size() - start + 1));
}

QStringView From(QStringView text, qsizetype start) { return Middle(text, start, text.size()); }

QStringView Left(QStringView text, qsizetype length) {
    if (length < 0) throw RuntimeError("cut out: negative length");
    return text.first(std::min(length, text.size()));
}

void Overwrite(QString& text, qsizetype start, QStringView replacement) {
    if (start < 1 || start > text.size()) throw RuntimeError("overwrite: start outside the text");
    const qsizetype count = std::min(replacement.size(), text.size() - start + 1);
    std::copy_n(replacement.begin(), count, text.begin() + (start - 1));
}

QChar UpperCase(QChar character) {
    const char16_t unit = character.unicode();
    if (unit < 0x80) return QChar(unit >= u'a' && unit <= u'z' ? unit - 32 : unit);
    return character.toUpper();
}

QChar LowerCase(QChar character) {
    const char16_t unit = character.unicode();
    if (unit < 0x80) return QChar(unit >= u'A' && unit <= u'Z' ? unit + 32 : unit);
    return character.toLower();
}

namespace {
template<class Change> QString Mapped(QStringView text, Change change) {
    QString result(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), result.begin(), change);
    return result;
}
} // namespace

QString UpperCase(QStringView text) {
    return Mapped(text, [](QChar c) { return UpperCase(c); });
}

QString LowerCase(QStringView text) {
    return Mapped(text, [](QChar c) { return LowerCase(c); });
}

bool EqualIgnoringCase(QStringView a, QStringView b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](QChar x, QChar y) { return UpperCase(x) == UpperCase(y); });
}

namespace {
// Whole pieces are compared as memory first, which is many times faster than character by character.
constexpr qsizetype Piece = 4096;

bool SamePiece(const QChar* a, const QChar* b) { return std::memcmp(a, b, Piece * sizeof(QChar)) == 0; }
} // namespace

qsizetype CommonPrefix(QStringView a, QStringView b) {
    const qsizetype size = std::min(a.size(), b.size());
    qsizetype same = 0;
    while (same + Piece <= size && SamePiece(a.data() + same, b.data() + same)) same += Piece;
    while (same < size && a[same] == b[same]) ++same;
    return same;
}

qsizetype CommonSuffix(QStringView a, QStringView b) {
    const qsizetype size = std::min(a.size(), b.size());
    qsizetype same = 0;
    const QChar* const endOfA = a.data() + a.size();
    const QChar* const endOfB = b.data() + b.size();
    while (same + Piece <= size && SamePiece(endOfA - same - Piece, endOfB - same - Piece)) same += Piece;
    while (same < size && endOfA[-same - 1] == endOfB[-same - 1]) ++same;
    return same;
}

bool HasOnlyFullLineBreaks(QStringView text) {
    const qsizetype size = text.size();
    for (qsizetype i = 0; i < size; ++i) {
        if (text[i] == u'\n') return false;
        if (text[i] != u'\r') continue;
        if (i + 1 == size || text[i + 1] != u'\n') return false;
        ++i;
    }
    return true;
}

QString WithFullLineBreaks(QStringView text) {
    if (HasOnlyFullLineBreaks(text)) return text.toString();
    QString result;
    result.reserve(text.size() + text.size() / 16 + 2);
    qsizetype copied = 0;
    const auto breakAt = [&](qsizetype at, qsizetype length) {
        result.append(text.sliced(copied, at - copied)).append(LineBreak);
        copied = at + length;
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\n') {
            breakAt(i, 1);
        } else if (text[i] == u'\r') {
            const bool full = i + 1 < text.size() && text[i + 1] == u'\n';
            breakAt(i, full ? 2 : 1);
            if (full) ++i;
        }
    }
    return result.append(text.sliced(copied));
}

double LeadingNumber(QStringView text) {
    qsizetype i = 0;
    while (i < text.size() && (text[i] == u' ' || text[i] == u'\t')) ++i;
    const qsizetype begin = i;
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+')) ++i;
    bool point = false;
    for (; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (c == u'.' && !point) {
            point = true;
        } else if (c < u'0' || c > u'9') {
            break;
        }
    }
    return text.sliced(begin, i - begin).toDouble(); // 0 for a lone sign or point
}

qsizetype Finder::From(qsizetype start) {
    if (m_ended) return 0;
    if (m_hit >= start && m_hit != 0) return m_hit;
    m_hit = Find(m_text, m_needle, start);
    m_ended = m_hit == 0;
    return m_hit;
}

} // namespace Text
