// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include "platform/numbers.h"
#include "support/test.h"

#include <QLocale>

class TextTest : public QObject {
    Q_OBJECT

private slots:
    void findsForwardsAndBackwards_data() {
        const auto row =
            Columns<QString, QString, int, int, int>("text", "needle", "start", "forwards", "backwards");
        row("overlapping", "ab<aab<<ab<ab", "ab<", 5, 5, 1);
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
        // the finder answers every non-decreasing row of questions as a plain search does
        for (qsizetype step = 1; step <= 3; ++step) {
            Text::Finder finder(text, needle);
            for (qsizetype at = 1; at <= text.size() + 1; at += step)
                QCOMPARE(finder.From(at), Text::Find(text, needle, at));
        }
    }

    void cutsOutAndRefusesIllegalArguments() {
        QVERIFY(!Attempt([] { Text::Find(u"abc", u"a", 0); }));
        QVERIFY(!Attempt([] { Text::Middle(u"abc", 1, -1); }));
        QVERIFY(!Attempt([] { Text::Left(u"abc", -1); }));
        QCOMPARE(Text::Middle(u"abcdef", 2, 3).toString(), u"bcd"_s);
        QCOMPARE(Text::Middle(u"abc", 3, 9).toString(), u"c"_s);
        QString text = u"abcdef"_s;
        Text::Overwrite(text, 5, u"XYZ");
        QCOMPARE(text, u"abcdXY"_s);
        QVERIFY(!Attempt([&] { Text::Overwrite(text, 7, u"x"); }));
        QVERIFY_EXCEPTION_THROWN(Attempt([] { throw std::logic_error("another fault"); }), std::logic_error);
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

    void completesLineBreaks() {
        for (const auto& [text, full] : {std::pair(u"\na\n\nb"_s, u"\r\na\r\n\r\nb"_s),
                                         {u"a\r\rb\r"_s, u"a\r\n\r\nb\r\n"_s},
                                         {u"a\n\rb\r\n"_s, u"a\r\n\r\nb\r\n"_s}, // LF CR are two breaks
                                         {u"a\r\r\nb"_s, u"a\r\n\r\nb"_s}}) {
            QCOMPARE(Text::WithFullLineBreaks(text), full);
            QVERIFY(Text::HasOnlyFullLineBreaks(full) && !Text::HasOnlyFullLineBreaks(text));
        }
    }

    void readsTheLeadingNumber() {
        for (const auto& [text, number] : {std::pair(u"12px"_s, 12.0),
                                           {u"1.5.9"_s, 1.5},
                                           {u"1,5"_s, 1.0},
                                           {u"  -3.25 "_s, -3.25},
                                           {u".5"_s, 0.5},
                                           {u"abc"_s, 0.0}})
            QVERIFY2(Text::LeadingNumber(text) == number, qPrintable(text));
    }

    void readsTruth() {
        for (const auto& [text, expected, parsed] : {std::tuple(u"True"_s, 1, true),
                                                     {u"tRUE"_s, 1, true},
                                                     {u"FALSE"_s, 0, false},
                                                     {u"-1"_s, 1, false},
                                                     {u""_s, -1, false}}) { // -1: cannot be read
            int truth = -1;
            Attempt([&, text = text] { truth = Numbers::ReadBoolean(text) ? 1 : 0; });
            QVERIFY2(truth == expected && Numbers::ParseBoolean(text) == parsed, qPrintable(text));
        }
    }

    void readsIntegers() {
        QCOMPARE(int(Numbers::ReadInteger(u" 255 ")), 255);
        QCOMPARE(int(Numbers::ReadInteger(u"2.5")), 2);
        QCOMPARE(int(Numbers::ReadInteger(u"-32768")), -32768);
        for (const QString& bad : {u""_s, u"12px"_s, u"32768"_s, u"1e99"_s, u"nan"_s})
            QVERIFY2(!Attempt([&] { Numbers::ReadInteger(bad); }), qPrintable(bad));
    }

    void writesNumbersForPeople() {
        QLocale::setDefault(QLocale(QLocale::German));
        QCOMPARE(Numbers::ForMessage(-0.0001), u"0"_s);
        QCOMPARE(Numbers::ForMessage(1234567.125), u"1234567,125"_s);
    }
};

REGISTER_TEST_AS(Text, TextTest);
#include "text_test.moc"
