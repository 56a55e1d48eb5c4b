// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include "platform/numbers.h"
#include "support/test.h"

#include <QLocale>
#include <QRandomGenerator>

class TextTest : public QObject {
    Q_OBJECT

private slots:
    void findsForwardsAndBackwards_data() {
        const auto row =
            Columns<QString, QString, int, int, int>("text", "needle", "start", "forwards", "backwards");
        row("in the middle", "abcabc", "bc", 3, 5, 2);
        row("hit that begins at the start", "abcabc", "bc", 5, 5, 2);
        row("hit that ends at the start", "abcabc", "bc", 6, 0, 5);
        row("absent", "abc", "x", 1, 0, 0);
        row("case counts", "ABC", "b", 1, 0, 0);
        row("start behind the end", "abc", "a", 99, 0, 1);
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
        QVERIFY(!Attempt([] { Text::Middle(u"abc", 1, -1); }));
        QVERIFY(!Attempt([] { Text::Left(u"abc", -1); }));
        QString text = u"abc"_s;
        QVERIFY(!Attempt([&] { Text::Overwrite(text, 4, u"x"); }));
        QVERIFY_EXCEPTION_THROWN(Attempt([] { throw std::logic_error("another fault"); }), std::logic_error);
    }

    void cutsOutAndOverwrites() {
        QCOMPARE(Text::Middle(u"abcdef", 2, 3).toString(), u"bcd"_s);
        QCOMPARE(Text::Middle(u"abc", 3, 9).toString(), u"c"_s);
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
        const auto row = Columns<QString, QString>("text", "full");
        row("full already", "a\r\nb\r\n", "a\r\nb\r\n");
        row("lone LF", "\na\n\nb", "\r\na\r\n\r\nb");
        row("lone CR", "a\r\rb\r", "a\r\n\r\nb\r\n");
        row("LF CR are two breaks", "a\n\rb", "a\r\n\r\nb");
        row("CR CR LF are two", "a\r\r\nb", "a\r\n\r\nb");
    }
    void completesLineBreaks() {
        QFETCH(QString, text);
        QTEST(Text::WithFullLineBreaks(text), "full");
        QVERIFY(Text::HasOnlyFullLineBreaks(Text::WithFullLineBreaks(text)));
    }

    void readsTheLeadingNumber_data() {
        const auto row = Columns<QString, double>("text", "number");
        row("digits and more", "12px", 12.0);
        row("point", "1.5.9", 1.5);
        row("comma ends it", "1,5", 1.0);
        row("sign", "  -3.25 ", -3.25);
        row("point first", ".5", 0.5);
        row("none", "abc", 0.0);
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

    void readsTruth_data() {
        const auto row = Columns<QString, int, bool>("text", "truth", "parsed"); // -1: cannot be read
        row("True", "True", 1, true);
        row("tRUE", "tRUE", 1, true);
        row("False", "FALSE", 0, false);
        row("-1", "-1", 1, false);
        row("empty", "", -1, false);
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
        QCOMPARE(Numbers::ForMessage(-0.0001), u"0"_s);
        QCOMPARE(Numbers::ForMessage(1234567.125), u"1234567,125"_s);
    }
};

REGISTER_TEST_AS(Text, TextTest);
#include "text_test.moc"
