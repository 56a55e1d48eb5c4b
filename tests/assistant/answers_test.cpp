// SPDX-License-Identifier: MIT
#include "assistant/answers.h"

#include "assistant/animation_clock.h"
#include "shell/tips.h"
#include "support/folder_test.h"

using Assistant::AnswerAbout;
using Assistant::StepTip;
using Assistant::TipStep;

class Answers : public FolderTest {
    Q_OBJECT

private slots:
    void answersAboutTags_data() {
        const auto row = Columns<QString, int, QString>("tag", "animation", "text"); // 0: nothing is said
        const QString unknown =
            u"Diesen Tag kenne ich nicht. Überprüfen Sie, ob Sie ihn richtig geschrieben haben. "
            "Falscher Tag: <%1>"_s;
        row("lower case finds upper case", "table", 1, "Setzt eine Tabelle: <TR> & Zellen.");
        row("upper case finds lower case", "BR", 1, "Bricht um. Straße.");
        row("an entry over two lines", "p", 1, "Ein Absatz auf zwei Zeilen.");
        row("known without an entry", "hr", 0, "");
        row("an entry cut off", "last", 0, "");
        row("one stray character", "table>", 0, "");
        row("two stray characters", "table>x", 2, unknown.arg(u"table>x"_s));
        row("brackets are part of the text", "<p>", 2, unknown.arg(u"<p>"_s));
        row("unknown", "foo%1", 2, unknown.arg(u"foo%1"_s));
        row("a closing tag has no entry of its own", "/table", 0, "");
    }
    void answersAboutTags() {
        QFETCH(QString, tag);
        m_folder->Write(u"taglist.lst"_s, "table\r\nbr\r\np\r\nhr\r\nlast\r\n");
        m_folder->Write(u"assistant.hlp"_s,
                        "<H-TABLE- Setzt eine Tabelle: <TR> & Zellen.<E-\r\n"
                        "<h-br- Bricht um. Stra\xdf"
                        "e.<e-\r\n<h-p- Ein Absatz auf\r\nzwei Zeilen.<e-\r\n<h-last- Ohne Ende");
        QVERIFY(Lists::LoadTagList());
        const auto answer = AnswerAbout(Lists::ReadLinesJoined(u"assistant.hlp"_s).value(), tag);
        QTEST(answer ? answer->animation : 0, "animation");
        QTEST(answer ? answer->text : QString(), "text");
    }

    // Whatever number the settings held.
    void tipsGoRound() {
        m_folder->Write(u"tips.lst"_s, "eins\r\nzwei\r\ndrei\r\n");
        QVERIFY(Tips::LoadTips());
        const auto step = [](int from, TipStep direction) {
            Global::CurrentTip = static_cast<std::int16_t>(from);
            return StepTip(direction);
        };
        for (int from = 0; from < 3; ++from)
            QCOMPARE(step(from, TipStep::Next), Global::TipList[static_cast<size_t>(from) + 1]);
        QCOMPARE(step(3, TipStep::Back), u"zwei"_s);
        QCOMPARE(Global::CurrentTip, 2);
        for (const int wild : {32767, 101, 4, -1, -32768}) {
            QCOMPARE(step(wild, TipStep::Next), u"eins"_s);
            QCOMPARE(step(wild, TipStep::Back), u"drei"_s);
        }
        m_folder->Write(u"tips.lst"_s, "");
        QVERIFY(Tips::LoadTips());
        QVERIFY(step(5, TipStep::Next).isEmpty() && step(5, TipStep::Back).isEmpty());
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

REGISTER_TEST(Answers);
#include "answers_test.moc"
