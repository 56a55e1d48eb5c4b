// SPDX-License-Identifier: MIT
#include "debugger/javascript_check.h"

#include "platform/text.h"

#include <algorithm>
#include <array>

namespace Debugger {

namespace {

using LineRule = void (*)(QStringView line, Report& report);
constexpr std::array<LineRule, 0> LineRules{};

void BlankLineComments(QString& code) {
    for (qsizetype i = 1; i <= code.size();) {
        const qsizetype start = Text::Find(code, u"//", i);
        if (start == 0) return;
        const qsizetype end = Text::Find(code, Text::LineBreak, start);
        std::fill(code.begin() + (start - 1), code.begin() + (end - 1), u' ');
        i = end + 1;
    }
}

} // namespace

void WalkScriptLines(QString code, const std::function<void(QStringView line)>& rule) {
    code.prepend(Text::LineBreak).append(Text::LineBreak);
    BlankLineComments(code);
    const qsizetype breakSize = Text::LineBreak.size();
    qsizetype start = 1;
    for (;;) {
        const qsizetype end = Text::Find(code, Text::LineBreak, start + breakSize);
        if (end == 0) return;
        rule(Text::Middle(code, start + breakSize, end - start - breakSize));
        start = end;
    }
}

void CheckJavaScriptSyntax(const QString& code, Report& report) {
    WalkScriptLines(code, [&report](QStringView line) {
        for (const LineRule rule : LineRules) rule(line, report);
    });
}

} // namespace Debugger
