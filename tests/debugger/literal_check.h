// SPDX-License-Identifier: MIT
// The checks once more, step by step and without a thought for speed: what the fast ones are compared with.
#pragma once

#include "debugger/page_check.h"

namespace LiteralCheck {

struct ListStrings {
    QString known;
    QString noClosing;
};

// For an accuracy of 1 to 100.
Debugger::PageReport CheckPage(const QString& text, const Debugger::PageOptions& options,
                               const ListStrings& lists);

} // namespace LiteralCheck
