// SPDX-License-Identifier: MIT
#include "shell/update_title.h"

#include "platform/literals.h"
#include "platform/text.h"

namespace UpdateCheck {

namespace {

// Whether a tag of that name ("title", "/title") begins behind the "<" at `at`.
bool IsTagAt(QByteArrayView page, qsizetype at, QByteArrayView name) {
    const qsizetype behind = at + 1 + name.size();
    if (behind >= page.size()) return false;
    if (page.sliced(at + 1, name.size()).compare(name, Qt::CaseInsensitive) != 0) return false;
    const char next = page[behind];
    return next == '>' || next == '/' || QChar::isSpace(static_cast<unsigned char>(next));
}

// Place of the "<" of the next tag of that name; -1 when there is none.
qsizetype FindTag(QByteArrayView page, QByteArrayView name, qsizetype from) {
    for (qsizetype at = page.indexOf('<', from); at >= 0; at = page.indexOf('<', at + 1)) {
        if (IsTagAt(page, at, name)) return at;
    }
    return -1;
}

} // namespace

QString TitleOf(const QByteArray& page) {
    // What stands in comments, scripts and styles is no tag.
    for (qsizetype at = page.indexOf('<'); at >= 0; at = page.indexOf('<', at + 1)) {
        if (page.sliced(at).startsWith("<!--")) {
            at = page.indexOf("-->", at + 4);
        } else if (IsTagAt(page, at, "script")) {
            at = FindTag(page, "/script", at);
        } else if (IsTagAt(page, at, "style")) {
            at = FindTag(page, "/style", at);
        } else if (IsTagAt(page, at, "title")) {
            const qsizetype begin = page.indexOf('>', at);
            const qsizetype end = begin < 0 ? -1 : FindTag(page, "/title", begin);
            if (end < 0) return {};
            return QString::fromLatin1(page.sliced(begin + 1, end - begin - 1)).simplified();
        }
        if (at < 0) return {};
    }
    return {};
}

bool TellsOfUpdate(const QString& title) {
    constexpr int Digits = 3;
    return title.size() == Digits && Text::LeadingNumber(title) > PresentUpdate;
}

} // namespace UpdateCheck
