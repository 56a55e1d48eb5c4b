// SPDX-License-Identifier: MIT
// When the assistant's figure moves. All times are seconds since midnight, all lengths seconds.
#pragma once

#include <QString>

namespace Assistant {

struct Animation {
    QStringView file;
    double length;
};

// The idle gesture for a number drawn from 1 to 16; ten of the sixteen numbers have the quiet one.
Animation GestureFor(int drawn);
// The file of RunAnimation: 1 the friendly figure, 2 the warning one, empty for any other number.
QStringView FileFor(int animation);

inline constexpr double RemarkLength = 0.8; // of the movement that goes with a text

class AnimationClock {
public:
    double LastGestureTime = 0;
    double GestureInterval = 5;
    double AnimationStart = 0;
    double AnimationLength = 0;

    void BeginAnimation(double now, double length);
    void Stop() { m_playing = false; }
    bool Playing() const { return m_playing; }
    // Makes a gesture due at once.
    void ProvokeGesture(double now) { LastGestureTime = now - GestureInterval; }

    // Behind midnight the difference is negative, and gestures pause until the clock has caught up.
    bool GestureDue(double now) const;
    // An animation that midnight overtook is over: it must not play until the next one.
    bool StopDue(double now) const;
    // Seconds until the next moment at which one of both can be due, a minute at the most, so that a clock
    // that has been set is noticed.
    double UntilNextTick(double now) const;

private:
    bool m_playing = false;
};

} // namespace Assistant
