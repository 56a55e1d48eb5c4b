// SPDX-License-Identifier: MIT
// From bytes on disk to text in memory and back, without changing a character.
#pragma once

#include <QByteArray>
#include <QString>

namespace CodePage {

enum class Encoding { Windows1252, Utf8, Utf16LE, Utf16BE };

// How a document stands on disk. New documents take the values given here.
struct Format {
    Encoding encoding = Encoding::Windows1252;
    bool mark = false;   // begins with the UTF-8 byte order mark; UTF-16 always begins with its own
    bool lfOnly = false; // all line ends are a lone LF

    bool operator==(const Format&) const = default;
};

// Windows-1252 with the five unassigned bytes kept as the control characters of the same number (as the
// WHATWG Encoding Standard has it): each of the 256 bytes has a character of its own, so nothing is lost.
QString FromWindows1252(const QByteArray& bytes);
// Characters outside the code page become "?".
QByteArray ToWindows1252(const QString& text);
bool FitsWindows1252(QStringView text);
// The byte of `character` in Windows-1252, or -1 when the code page has none.
int ByteOf(QChar character);

// A document as it was read: its text, line ends as they stood, without the mark.
struct Decoded {
    QString text;
    Format format;
};

// UTF-8 with a mark, or valid UTF-8 with at least one character beyond ASCII, is UTF-8; what begins with a
// mark of UTF-16 is UTF-16; all else is Windows-1252.
Decoded Decode(const QByteArray& bytes);

// `text` (line breaks CR LF) as bytes in `format`. A text that Decode() would not read back as it is, since
// it no longer fits Windows-1252 or since its bytes there are those of another encoding, is written as UTF-8,
// and `format` is changed to say so.
QByteArray Encode(const QString& text, Format& format);

// What the status bar shows: "Windows-1252", "UTF-8", "UTF-8 mit Marke", "UTF-16 LE" or "UTF-16 BE", and "
// LF" behind it for lone LFs.
QString Name(const Format& format);

} // namespace CodePage
