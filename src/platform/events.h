// SPDX-License-Identifier: MIT
// Handling pending window events in the middle of a routine, and the clock. Replaceable in tests.
#pragma once

#include <QElapsedTimer>
#include <functional>

namespace Events {

// Lets pending window events run once.
void DoEvents();
// Handles window events until `seconds` have passed.
void Wait(double seconds);
// Does nothing, without handling events, until `seconds` have passed.
void Sleep(double seconds);
// Seconds since midnight, with fractions; jumps back to 0 at midnight.
double SecondsSinceMidnight();

struct Source {
    std::function<void()> doEvents;
    std::function<double()> secondsSinceMidnight;
    std::function<void(double)> sleep;
};
// Replaces what is set in `source` and returns what was there before.
Source Replace(Source source);

// When a loop should let events run: often enough for windows to feel alive, and no oftener, since that costs
// more than most loops' own steps.
class Pace {
public:
    Pace() { m_since.start(); }
    bool IsDue() const { return m_since.elapsed() >= Pause; }
    void LetEventsRun() {
        DoEvents();
        m_since.restart();
    }

private:
    static constexpr qint64 Pause = 20; // milliseconds
    QElapsedTimer m_since;
};

} // namespace Events
