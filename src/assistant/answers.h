// SPDX-License-Identifier: MIT
// What the assistant answers when it is asked.
#pragma once

#include <QString>
#include <optional>

namespace Assistant {

struct Remark {
    int animation; // as RunAnimation takes it
    QString text;
};

// The answer about the tag `name` from the joined help file `help`; nothing when there is nothing to be said.
// A name with one stray character behind a known one ("table>") gets no answer instead of a complaint.
std::optional<Remark> AnswerAbout(const QString& help, const QString& name);

enum class TipStep { Next, Back };
// Moves the shared number of the current tip one on and returns that tip; behind the last comes the first.
QString StepTip(TipStep step);

} // namespace Assistant
