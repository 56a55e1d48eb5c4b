// SPDX-License-Identifier: MIT
#include "platform/events.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <QTime>
#include <utility>

namespace Events {

namespace {
Source& Current() {
    static Source source{[] { QCoreApplication::processEvents(); },
                         [] { return QTime::currentTime().msecsSinceStartOfDay() / 1000.0; },
                         [](double seconds) { QThread::msleep(static_cast<unsigned long>(seconds * 1000)); }};
    return source;
}
} // namespace

void DoEvents() { Current().doEvents(); }

double SecondsSinceMidnight() { return Current().secondsSinceMidnight(); }

void Sleep(double seconds) { Current().sleep(seconds); }

void Wait(double seconds) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < seconds * 1000) {
        DoEvents();
        Sleep(0.005); // the wait must not burn the processor
    }
}

Source Replace(Source source) {
    Source before = Current();
    if (source.doEvents) Current().doEvents = std::move(source.doEvents);
    if (source.secondsSinceMidnight) Current().secondsSinceMidnight = std::move(source.secondsSinceMidnight);
    if (source.sleep) Current().sleep = std::move(source.sleep);
    return before;
}

} // namespace Events
