// SPDX-License-Identifier: MIT
#include "shell/tips.h"

#include "platform/files.h"
#include "platform/literals.h"
#include "state/global.h"

#include <algorithm>

namespace Tips {

bool LoadTips() {
    Global::TipList.fill({});
    const auto text = Files::ReadProgramText(Files::ProgramFile(u"tips.lst"_s));
    if (!text) return false;
    const QStringList tips = Files::Lines(*text);
    if (static_cast<size_t>(tips.size()) >= Global::TipList.size()) return false;
    std::copy(tips.begin(), tips.end(), Global::TipList.begin() + 1);
    Global::TipList[0] = QString::number(tips.size());
    return true;
}

} // namespace Tips
