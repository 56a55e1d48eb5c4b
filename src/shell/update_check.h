// SPDX-License-Identifier: MIT
// Looks in the internet whether there is a newer version.
#pragma once

#include "shell/update_title.h"

#include <QString>
#include <functional>

namespace UpdateCheck {

enum class Outcome { NoUpdate, NewUpdate, TimedOut };

struct Question {
    QString address;                            // of the page whose title is the number
    double timeOut = 5.0;                       // seconds until the wait for the page is given up
    double pause = 1.0;                         // seconds for which the message about that stays
    std::function<void(const QString&)> status; // shows a status text; may be missing
};

// Fetches the page, letting window events run meanwhile, and judges its title. Whatever goes wrong on the
// way, an error page included, counts as no update. Never takes longer than time-out and pause together.
Outcome Look(const Question& question);

// The check of the start: status on the splash, a beep for a time-out, the dialog for an update. Does nothing
// while `address` is a placeholder.
void CheckForUpdate(const QString& address);

} // namespace UpdateCheck
