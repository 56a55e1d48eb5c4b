// SPDX-License-Identifier: MIT
#include "platform/code_page.h"

#include "platform/literals.h"

#include <QStringConverter>
#include <algorithm>
#include <array>
#include <optional>

namespace CodePage {

namespace {

// Bytes 0x80 to 0x9F of Windows-1252; the unassigned ones stand for the C1 control of their number.
constexpr std::array<char16_t, 32> C1{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                      0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr QByteArrayView Mark("\xEF\xBB\xBF", 3);
constexpr QByteArrayView MarkLE("\xFF\xFE", 2);
constexpr QByteArrayView MarkBE("\xFE\xFF", 2);

bool IsAscii(const QByteArray& bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<uchar>(c) < 0x80; });
}

bool HasLoneLfOnly(QStringView text) { return text.contains(u'\n') && !text.contains(u'\r'); }

} // namespace

QString FromWindows1252(const QByteArray& bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char c) {
        const auto byte = static_cast<uchar>(c);
        return QChar(byte >= 0x80 && byte < 0xA0 ? C1[byte - 0x80] : char16_t(byte));
    });
    return text;
}

int ByteOf(QChar character) {
    const char16_t unit = character.unicode();
    if (unit < 0x80 || (unit >= 0xA0 && unit < 0x100)) return unit;
    const auto* hit = std::find(C1.begin(), C1.end(), unit);
    return hit == C1.end() ? -1 : static_cast<int>(hit - C1.begin()) + 0x80;
}

bool FitsWindows1252(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return ByteOf(c) >= 0; });
}

QByteArray ToWindows1252(const QString& text) {
    QByteArray bytes(text.size(), Qt::Uninitialized);
    std::transform(text.begin(), text.end(), bytes.begin(), [](QChar c) {
        const int byte = ByteOf(c);
        return byte < 0 ? '?' : static_cast<char>(byte);
    });
    return bytes;
}

namespace {

// Unit by unit, so that a half of a pair that stands alone stays what it is.
QString FromUtf16(QByteArrayView bytes, Encoding encoding) {
    QString text((bytes.size() + 1) / 2, Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const auto first = static_cast<uchar>(bytes[2 * i]);
        // a last unit that was cut in half is completed, so that its byte is not lost
        const auto second = 2 * i + 1 < bytes.size() ? static_cast<uchar>(bytes[2 * i + 1]) : uchar(0);
        text[i] = encoding == Encoding::Utf16LE ? QChar(first | second << 8) : QChar(first << 8 | second);
    }
    return text;
}

QByteArray ToUtf16(const QString& text, Encoding encoding) {
    const bool little = encoding == Encoding::Utf16LE;
    QByteArray bytes((little ? MarkLE : MarkBE).toByteArray());
    bytes.reserve(2 + 2 * text.size());
    for (const QChar c : text) {
        const char low = static_cast<char>(c.unicode() & 0xFF);
        const char high = static_cast<char>(c.unicode() >> 8);
        bytes.append(little ? low : high).append(little ? high : low);
    }
    return bytes;
}

std::optional<QString> FromUtf8(QByteArrayView bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    QString text = decoder.decode(bytes);
    if (decoder.hasError()) return std::nullopt;
    return text;
}

// The encoding that the bytes tell, and the text in it.
Decoded DecodeByEncoding(const QByteArray& bytes) {
    if (bytes.startsWith(MarkLE) || bytes.startsWith(MarkBE)) {
        const Encoding encoding = bytes.startsWith(MarkLE) ? Encoding::Utf16LE : Encoding::Utf16BE;
        return {FromUtf16(QByteArrayView(bytes).sliced(2), encoding), {encoding}};
    }
    const bool mark = bytes.startsWith(Mark);
    if (mark || !IsAscii(bytes)) {
        auto text = FromUtf8(QByteArrayView(bytes).sliced(mark ? Mark.size() : 0));
        if (text) return {std::move(*text), {Encoding::Utf8, mark}};
    }
    // A file that begins with the mark of UTF-8 but does not go on as that says keeps every byte as
    // Windows-1252.
    return {FromWindows1252(bytes), {}};
}

} // namespace

Decoded Decode(const QByteArray& bytes) {
    Decoded result = DecodeByEncoding(bytes);
    result.format.lfOnly = HasLoneLfOnly(result.text);
    return result;
}

QByteArray Encode(const QString& text, Format& format) {
    QString body = text;
    if (format.lfOnly) body.replace(u"\r\n"_s, u"\n"_s);
    if (format.encoding == Encoding::Utf16LE || format.encoding == Encoding::Utf16BE) {
        return ToUtf16(body, format.encoding);
    }
    if (format.encoding == Encoding::Windows1252 && FitsWindows1252(body)) {
        QByteArray bytes = ToWindows1252(body);
        if (IsAscii(bytes) || DecodeByEncoding(bytes).format.encoding == Encoding::Windows1252) return bytes;
    }
    format.encoding = Encoding::Utf8;
    if (body.startsWith(QChar::ByteOrderMark))
        format.mark = true; // or the first character would be taken for one
    QByteArray bytes = body.toUtf8();
    if (format.mark) bytes.prepend(Mark);
    return bytes;
}

QString Name(const Format& format) {
    QString name;
    switch (format.encoding) {
    case Encoding::Windows1252:
        name = u"Windows-1252"_s;
        break;
    case Encoding::Utf8:
        name = format.mark ? u"UTF-8 mit Marke"_s : u"UTF-8"_s;
        break;
    case Encoding::Utf16LE:
        name = u"UTF-16 LE"_s;
        break;
    case Encoding::Utf16BE:
        name = u"UTF-16 BE"_s;
        break;
    }
    if (format.lfOnly) name += u" LF"_s;
    return name;
}

} // namespace CodePage
