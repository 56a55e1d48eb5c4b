// SPDX-License-Identifier: MIT
#include "assistant/animation_clock.h"

#include "platform/literals.h"
#include "support/test_registry.h"

#include <QMap>

class AnimationClock : public QObject {
    Q_OBJECT

private slots:
    void everyDrawnNumberHasItsGesture() {
        QMap<QString, int> draws;
        for (int drawn = 1; drawn <= 16; ++drawn) ++draws[Assistant::GestureFor(drawn).file.toString()];
        QCOMPARE(draws, (QMap<QString, int>{{u"anim1.anm"_s, 10},
                                            {u"anim2.anm"_s, 1},
                                            {u"anim5.anm"_s, 1},
                                            {u"anim6.anm"_s, 1},
                                            {u"anim7.anm"_s, 1},
                                            {u"anim8.anm"_s, 1},
                                            {u"anim9.anm"_s, 1}}));
        const double lengths[] = {0.8, 0.8, 0.9, 0.8, 1.8, 2.8, 3.5};
        for (int drawn = 10; drawn <= 16; ++drawn)
            QCOMPARE(Assistant::GestureFor(drawn).length, lengths[drawn - 10]);
    }

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
        QVERIFY(!clock.StopDue(101.79));
        QVERIFY(clock.StopDue(101.8));
        clock.Stop();
        QVERIFY(!clock.StopDue(104)); // once is enough
        QCOMPARE(clock.UntilNextTick(104), 1.0);
    }

    void aProvokedGestureIsDueAtOnce() {
        Assistant::AnimationClock clock;
        clock.LastGestureTime = 500;
        QVERIFY(!clock.GestureDue(502));
        clock.ProvokeGesture(502);
        QVERIFY(clock.GestureDue(502));
        QCOMPARE(clock.UntilNextTick(502), 0.0);
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
