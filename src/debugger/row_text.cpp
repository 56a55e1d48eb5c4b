// SPDX-License-Identifier: MIT
#include "debugger/row_text.h"

namespace Debugger {

namespace {

constexpr qsizetype TipCharacters = 1000;
constexpr qsizetype TipWordCharacters = 40;
constexpr qsizetype SpokenCharacters = 300;
constexpr QChar BreakHere(0x200B); // a place where a word may break, without a width

QString PictureWord(ReportIcon icon) {
    switch (icon) {
    case ReportIcon::Error:
        return u"Fehler: "_s;
    case ReportIcon::Alert:
        return u"Warnung: "_s;
    case ReportIcon::Info:
        return u"Hinweis: "_s;
    case ReportIcon::None:
        break;
    }
    return {};
}

} // namespace

QString OneLine(QStringView text, qsizetype most) {
    QString line = text.first(std::min(text.size(), most)).toString();
    line.replace(u"\r\n"_s, u" "_s);
    for (QChar& character : line) {
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator) {
            character = u' ';
        }
    }
    if (text.size() > most) line += u'…';
    return line;
}

QString TipText(QStringView text) {
    QString broken;
    qsizetype word = 0;
    for (const QChar character : OneLine(text.trimmed(), TipCharacters)) {
        word = character.isSpace() ? 0 : word + 1;
        if (word > TipWordCharacters && !character.isLowSurrogate()) {
            broken += BreakHere;
            word = 1;
        }
        broken += character;
    }
    return u"<p>"_s + broken.toHtmlEscaped() + u"</p>"_s;
}

QString SpokenText(const ReportRow& row) {
    return PictureWord(row.icon) + OneLine(QStringView(row.text).trimmed(), SpokenCharacters);
}

std::optional<Selection> SelectionOf(const ReportRow& row) {
    if (!row.marker || row.position <= 0) return std::nullopt;
    return Selection{row.position, row.marker->size()};
}

} // namespace Debugger
