// SPDX-License-Identifier: MIT
#include "assistant/animation_clock.h"

#include "platform/literals.h"
#include "support/test_registry.h"

class AnimationClock : public QObject {
    Q_OBJECT

private slots:
    // Lives through a quarter of a minute from one planned tick to the next, as the window does.
    void ticksComeOnlyWhenSomethingHappens() {
        Assistant::AnimationClock clock;
        double now = 1000;
        clock.LastGestureTime = now;
        QStringList events;
        for (int ticks = 0; ticks < 6; ++ticks) {
            now += clock.UntilNextTick(now);
            if (clock.GestureDue(now)) {
                clock.LastGestureTime = now;
                clock.BeginAnimation(now, 1.8);
                events << u"gesture %1"_s.arg(now);
            }
            if (clock.StopDue(now)) {
                clock.Stop();
                events << u"stop %1"_s.arg(now);
            }
        }
        QCOMPARE(events, QStringList({u"gesture 1005"_s, u"stop 1006.8"_s, u"gesture 1010"_s,
                                      u"stop 1011.8"_s, u"gesture 1015"_s, u"stop 1016.8"_s}));
    }

    void aRemarkMovesTheFigureForItsOwnTime() {
        Assistant::AnimationClock clock;
        clock.LastGestureTime = 100;
        clock.BeginAnimation(101, Assistant::RemarkLength);
        QVERIFY(!clock.StopDue(101.79) && clock.StopDue(101.8));
        clock.Stop();
        QVERIFY(!clock.StopDue(104)); // once is enough
        QCOMPARE(clock.UntilNextTick(104), 1.0);
        QVERIFY(!clock.GestureDue(104));
        clock.ProvokeGesture(104);
        QVERIFY(clock.GestureDue(104));
        QCOMPARE(clock.UntilNextTick(104), 0.0);
    }

    void overMidnightGesturesPauseAndTheFigureRests() {
        Assistant::AnimationClock clock;
        clock.LastGestureTime = 86398;
        clock.BeginAnimation(86399, 3.5);
        QVERIFY(!clock.GestureDue(5));
        QVERIFY(clock.StopDue(1));
        clock.Stop();
        QCOMPARE(clock.UntilNextTick(5), 60.0); // looks at the clock again, but seldom
        clock.ProvokeGesture(5);
        QVERIFY(clock.GestureDue(5));
    }
};

REGISTER_TEST(AnimationClock);
#include "animation_clock_test.moc"
