// SPDX-License-Identifier: MIT
#include "documents/document_characters.h"

#include <algorithm>
#include <utility>

namespace DocumentCharacters {

namespace {

constexpr char16_t BlockSeparator = 0x2029;
// paragraph separator and the two frame marks of the document, and what stands for them
constexpr std::pair<char16_t, char16_t> Marks[] = {{0x2029, 0xDF29}, {0xFDD0, 0xDFD0}, {0xFDD1, 0xDFD1}};

} // namespace

QString Hidden(const QString& text) {
    QString hidden = text;
    hidden.remove(u'\r'); // every CR is followed by its LF
    for (const auto& [mark, stand] : Marks) {
        if (hidden.contains(QChar(mark))) hidden.replace(QChar(mark), QChar(stand));
    }
    return hidden;
}

QString Shown(QStringView raw) {
    QString shown;
    shown.reserve(raw.size() + raw.count(QChar(BlockSeparator)));
    for (const QChar c : raw) {
        if (c.unicode() == BlockSeparator) {
            shown += u"\r\n";
            continue;
        }
        const auto* mark = std::find_if(std::begin(Marks), std::end(Marks),
                                        [c](const auto& entry) { return entry.second == c.unicode(); });
        // a low surrogate behind a high one is half of a character of its own
        const bool lone = mark != std::end(Marks) && (shown.isEmpty() || !shown.back().isHighSurrogate());
        shown += lone ? QChar(mark->first) : c;
    }
    return shown;
}

} // namespace DocumentCharacters
