// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include "support/test_registry.h"

#include <QRandomGenerator>

class TextTest : public QObject {
    Q_OBJECT

private slots:
    void findsForwardsAndBackwards_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("needle");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("forwards");
        QTest::addColumn<int>("backwards");
        QTest::newRow("in the middle") << u"abcabc"_s << u"bc"_s << 3 << 5 << 2;
        QTest::newRow("hit that begins at the start") << u"abcabc"_s << u"bc"_s << 5 << 5 << 2;
        QTest::newRow("hit that ends at the start") << u"abcabc"_s << u"bc"_s << 6 << 0 << 5;
        QTest::newRow("absent") << u"abc"_s << u"x"_s << 1 << 0 << 0;
        QTest::newRow("case counts") << u"ABC"_s << u"b"_s << 1 << 0 << 0;
        QTest::newRow("start behind the end") << u"abc"_s << u"a"_s << 99 << 0 << 1;
        QTest::newRow("empty text") << QString() << u"a"_s << 1 << 0 << 0;
    }
    void findsForwardsAndBackwards() {
        QFETCH(QString, text);
        QFETCH(QString, needle);
        QFETCH(int, start);
        QTEST(int(Text::Find(text, needle, start)), "forwards");
        QTEST(int(Text::FindBack(text, needle, start)), "backwards");
    }

    void refusesIllegalArguments() {
        QVERIFY(!Attempt([] { Text::Find(u"abc", u"a", 0); }));
        QVERIFY(!Attempt([] { Text::FindBack(u"abc", u"a", 0); }));
        QVERIFY(!Attempt([] { Text::Middle(u"abc", 0, 1); }));
        QVERIFY(!Attempt([] { Text::Middle(u"abc", 1, -1); }));
        QVERIFY(!Attempt([] { Text::Left(u"abc", -1); }));
        QString text = u"abc"_s;
        QVERIFY(!Attempt([&] { Text::Overwrite(text, 4, u"x"); }));
        QCOMPARE(text, u"abc"_s);
        QVERIFY_EXCEPTION_THROWN(Attempt([] { throw std::logic_error("another fault"); }), std::logic_error);
    }

    void cutsOutAndOverwrites() {
        QCOMPARE(Text::Middle(u"abcdef", 2, 3).toString(), u"bcd"_s);
        QCOMPARE(Text::Middle(u"abc", 3, 9).toString(), u"c"_s);
        QVERIFY(Text::Middle(u"abc", 9, 1).isEmpty());
        QString text = u"abcdef"_s;
        Text::Overwrite(text, 5, u"XYZ");
        QCOMPARE(text, u"abcdXY"_s);
    }

    void changesCaseWithoutChangingTheLength() {
        const QString mixed = u"aÄßÿ€ŉ\U0001F600İz"_s;
        QCOMPARE(Text::UpperCase(mixed).size(), mixed.size());
        QCOMPARE(Text::LowerCase(mixed).size(), mixed.size());
        QCOMPARE(Text::UpperCase(u"straße äÿ"), u"STRAßE ÄŸ"_s);
        QCOMPARE(Text::LowerCase(u"ÄÖÜ ẞ"), u"äöü ß"_s);
        QVERIFY(Text::EqualIgnoringCase(u"Grün", u"gRÜN"));
        QVERIFY(!Text::EqualIgnoringCase(u"a", u"ab"));
    }

    void completesLineBreaks_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("full");
        QTest::newRow("full already") << u"a\r\nb\r\n"_s << u"a\r\nb\r\n"_s;
        QTest::newRow("lone LF") << u"\na\n\nb"_s << u"\r\na\r\n\r\nb"_s;
        QTest::newRow("lone CR") << u"a\r\rb\r"_s << u"a\r\n\r\nb\r\n"_s;
        QTest::newRow("LF CR are two breaks") << u"a\n\rb"_s << u"a\r\n\r\nb"_s;
        QTest::newRow("CR CR LF are two") << u"a\r\r\nb"_s << u"a\r\n\r\nb"_s;
        QTest::newRow("none") << QString() << QString();
    }
    void completesLineBreaks() {
        QFETCH(QString, text);
        QTEST(Text::WithFullLineBreaks(text), "full");
        QVERIFY(Text::HasOnlyFullLineBreaks(Text::WithFullLineBreaks(text)));
    }

    void readsTheLeadingNumber_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("number");
        QTest::newRow("digits and more") << u"12px"_s << 12.0;
        QTest::newRow("point") << u"1.5.9"_s << 1.5;
        QTest::newRow("comma ends it") << u"1,5"_s << 1.0;
        QTest::newRow("sign") << u"  -3.25 "_s << -3.25;
        QTest::newRow("point first") << u".5"_s << 0.5;
        QTest::newRow("none") << u"abc"_s << 0.0;
        QTest::newRow("sign alone") << u"-"_s << 0.0;
        QTest::newRow("empty") << QString() << 0.0;
    }
    void readsTheLeadingNumber() {
        QFETCH(QString, text);
        QTEST(Text::LeadingNumber(text), "number");
    }

    // The finder answers every non-decreasing row of questions as a plain search does.
    void finderAgreesWithPlainSearch() {
        QRandomGenerator random(7);
        for (int round = 0; round < 300; ++round) {
            QString text;
            for (int i = 0; i < 60; ++i) text += u"ab<"_s[random.bounded(3)];
            const QString needle = text.sliced(random.bounded(50), 1 + random.bounded(3));
            Text::Finder finder(text, needle);
            for (qsizetype at = 1; at <= text.size() + 1; at += random.bounded(4)) {
                QCOMPARE(finder.From(at), Text::Find(text, needle, at));
            }
        }
    }
};

REGISTER_TEST_AS(Text, TextTest);
#include "text_test.moc"
