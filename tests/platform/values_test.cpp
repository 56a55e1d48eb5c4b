// SPDX-License-Identifier: MIT
// Numbers and truth values, the clock, twips, and the answers of dialogs nobody shows.
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "support/test_registry.h"

#include <QElapsedTimer>
#include <QLocale>

class Values : public QObject {
    Q_OBJECT

private slots:
    void readsTruth_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("truth"); // -1: cannot be read
        QTest::addColumn<bool>("parsed");
        QTest::newRow("True") << u"True"_s << 1 << true;
        QTest::newRow("tRUE") << u"tRUE"_s << 1 << true;
        QTest::newRow("False") << u"FALSE"_s << 0 << false;
        QTest::newRow("0") << u"0"_s << 0 << false;
        QTest::newRow("-1") << u"-1"_s << 1 << false;
        QTest::newRow("empty") << QString() << -1 << false;
        QTest::newRow("Wahr") << u"Wahr"_s << -1 << false;
    }
    void readsTruth() {
        QFETCH(QString, text);
        int truth = -1;
        Attempt([&] { truth = Numbers::ReadBoolean(text) ? 1 : 0; });
        QTEST(truth, "truth");
        QTEST(Numbers::ParseBoolean(text), "parsed");
    }

    void readsIntegers() {
        QCOMPARE(int(Numbers::ReadInteger(u" 255 ")), 255);
        QCOMPARE(int(Numbers::ReadInteger(u"2.5")), 2);
        QCOMPARE(int(Numbers::ReadInteger(u"-32768")), -32768);
        for (const QString& bad : {u""_s, u"12px"_s, u"32768"_s, u"1e99"_s, u"nan"_s}) {
            QVERIFY2(!Attempt([&] { Numbers::ReadInteger(bad); }), qPrintable(bad));
        }
    }

    void writesNumbersForPeople() {
        QLocale::setDefault(QLocale(QLocale::German));
        QCOMPARE(Numbers::ForMessage(4), u"4"_s);
        QCOMPARE(Numbers::ForMessage(1.5), u"1,5"_s);
        QCOMPARE(Numbers::ForMessage(-0.0001), u"0"_s);
        QCOMPARE(Numbers::ForMessage(1234567.125), u"1234567,125"_s);
    }

    void turnsTwipsIntoPixels() {
        QCOMPARE(Twips::ToPixels(330), 22);
        QCOMPARE(Twips::ToPixels(1), 0);
        QCOMPARE(Twips::ToPixels(-3000), -200);
        QCOMPARE(Twips::FromPixels(600), 9000);
    }

    void waitsAsLongAsTold() {
        QElapsedTimer timer;
        timer.start();
        Events::Wait(0.05);
        QVERIFY(timer.elapsed() >= 50);
    }

    void answersWithoutAHandlerAsIfCancelled() {
        using namespace Dialogs;
        QVERIFY(MsgBox({{}, {}, Icon::Question, Buttons::YesNoCancel}) == Answer::Cancel);
        QVERIFY(MsgBox({{}, {}, Icon::Question, Buttons::YesNo}) == Answer::No);
        QVERIFY(OpenFileDialog({}, {}).isEmpty());
    }
};

REGISTER_TEST(Values);
#include "values_test.moc"
