// SPDX-License-Identifier: MIT
#include "editing/tag_watch.h"

#include "platform/text.h"
#include "state/lists.h"

#include <algorithm>

namespace TagWatch {

namespace {

constexpr int Friendly = 1;
constexpr int Warning = 2;

std::optional<Remark> JudgeTag(QStringView typed, QChar last, const QString& help) {
    const auto cut = std::find_if(typed.begin(), typed.end(), [](QChar c) { return c == u'>' || c == u' '; });
    QString tag = typed.first(cut - typed.begin()).toString();
    if (tag.startsWith(u"!--")) tag = u"!--"_s; // a comment's text may begin without a blank
    if (tag.isEmpty()) {
        return Remark{Warning,
                      u"Haaalt, so etwas gibt es nicht. Nach einem Kleiner-Zeichen beginnt sofort der Name "
                      "des Tag's"_s};
    }
    if (Lists::IsKnownTag(tag)) {
        const auto text = Lists::HelpText(help, tag);
        return text ? std::optional(Remark{Friendly, *text}) : std::nullopt;
    }
    // Without its last character "br/" passes as "br". The empty name is known between the hyphens of "!--",
    // but it spares no tag of one letter.
    if (last != u'>' || (tag.size() > 1 && Lists::IsKnownTag(tag.chopped(1)))) return std::nullopt;
    return Remark{Warning,
                  u"Diesen Tag kenne ich nicht. Überprüfen Sie, ob Sie ihn richtig geschrieben haben. "
                  "Falscher Tag: <"_s +
                      tag + u'>'};
}

} // namespace

std::optional<Remark> Watch(const QString& text, qsizetype selStart, const QString& help) {
    if (selStart < 2) return std::nullopt;
    const QChar last = text[selStart - 1];
    const qsizetype open =
        last == u'<' || last == u' ' || last == u'>' ? Text::FindBack(text, u"<", selStart - 1) : 0;
    if (open == 0) return std::nullopt;
    if (last == u'<') {
        if (Text::FindBack(text, u">", selStart - 1) > open) return std::nullopt;
        return Remark{Warning, u"Ich glaube Sie haben vergessen den letzten Tag zu schließen."_s};
    }
    return JudgeTag(QStringView(text).sliced(open, selStart - open - 1), last, help);
}

} // namespace TagWatch
