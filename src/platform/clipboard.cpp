// SPDX-License-Identifier: MIT
#include "platform/clipboard.h"

#include "platform/text.h"

#include <utility>

namespace Clipboard {

namespace {
Source& Current() {
    static Source source;
    return source;
}
QString& OwnText() {
    static QString text;
    return text;
}
} // namespace

void SetText(const QString& text) {
    QString outside = text;
#ifndef Q_OS_WIN
    outside.replace(::Text::LineBreak.toString(), u"\n"_s);
#endif
    if (Current().set) {
        Current().set(outside);
    } else {
        OwnText() = outside;
    }
}

QString Text() { return ::Text::WithFullLineBreaks(Current().get ? Current().get() : OwnText()); }

void Install(Source source) { Current() = std::move(source); }

} // namespace Clipboard
