// SPDX-License-Identifier: MIT
// Handling pending window events in the middle of a routine, and the clock. Replaceable in tests.
#pragma once

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

} // namespace Events
