// SPDX-License-Identifier: MIT
#include "assistant/answers.h"

#include "platform/literals.h"
#include "state/global.h"
#include "state/lists.h"

#include <algorithm>

namespace Assistant {

std::optional<Remark> AnswerAbout(const QString& help, const QString& name) {
    if (name.isEmpty()) {
        return Remark{
            2, u"Bitte markieren Sie einen Tag ohne die Klammern und klicken Sie noch einmal auf Hilfe oder "
               "geben Sie im Textfeld einen Tag ein."_s};
    }
    if (Lists::IsKnownTag(name)) {
        const auto text = Lists::HelpText(help, name);
        return text ? std::optional(Remark{1, *text}) : std::nullopt;
    }
    // The empty name is known between the hyphens of "!--", but it spares no name of one letter.
    if (name.size() > 1 && Lists::IsKnownTag(name.chopped(1))) return std::nullopt;
    return Remark{
        2, u"Diesen Tag kenne ich nicht. Überprüfen Sie, ob Sie ihn richtig geschrieben haben. Falscher "
           "Tag: <%1>"_s.arg(name)};
}

QString StepTip(TipStep step) {
    const int last = static_cast<int>(Global::TipList.size()) - 1;
    const int count = std::clamp(Global::TipList[0].toInt(), 0, last);
    int tip = Global::CurrentTip;
    // The number comes from the settings file and may be any; whatever lies outside wraps.
    if (step == TipStep::Next) {
        ++tip;
        if (tip > count || tip < 1) tip = 1;
    } else {
        --tip;
        if (tip < 1 || tip > count) tip = count;
    }
    Global::CurrentTip = static_cast<std::int16_t>(tip);
    return tip >= 1 && tip <= count ? Global::TipList[static_cast<size_t>(tip)] : QString();
}

} // namespace Assistant
