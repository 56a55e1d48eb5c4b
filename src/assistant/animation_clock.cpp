// SPDX-License-Identifier: MIT
#include "assistant/animation_clock.h"

#include <algorithm>

namespace Assistant {

namespace {

// Half a step of the clock: sums of seconds and tenths are not exact.
constexpr double Tolerance = 0.0005;

bool HasPassed(double length, double since, double now) { return now - since >= length - Tolerance; }

} // namespace

Animation GestureFor(int drawn) {
    switch (drawn) {
    case 11:
        return {u"anim2.anm", 0.8};
    case 12:
        return {u"anim5.anm", 0.9};
    case 13:
        return {u"anim6.anm", 0.8};
    case 14:
        return {u"anim7.anm", 1.8};
    case 15:
        return {u"anim8.anm", 2.8};
    case 16:
        return {u"anim9.anm", 3.5};
    default:
        return {u"anim1.anm", 0.8};
    }
}

QStringView FileFor(int animation) {
    if (animation == 1) return u"anim3.anm";
    if (animation == 2) return u"anim4.anm";
    return {};
}

void AnimationClock::BeginAnimation(double now, double length) {
    AnimationStart = now;
    AnimationLength = length;
    m_playing = true;
}

bool AnimationClock::GestureDue(double now) const { return HasPassed(GestureInterval, LastGestureTime, now); }

bool AnimationClock::StopDue(double now) const {
    return m_playing && (HasPassed(AnimationLength, AnimationStart, now) || now < AnimationStart);
}

double AnimationClock::UntilNextTick(double now) const {
    double wait = LastGestureTime + GestureInterval - now;
    if (m_playing) wait = std::min(wait, AnimationStart + AnimationLength - now);
    return std::clamp(wait, 0.0, 60.0);
}

} // namespace Assistant
