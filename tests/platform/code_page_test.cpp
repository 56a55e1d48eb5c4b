// SPDX-License-Identifier: MIT
#include "platform/code_page.h"

#include "platform/text.h"
#include "support/test_registry.h"

using CodePage::Encoding;

class CodePageTest : public QObject {
    Q_OBJECT

private slots:
    void keepsEveryByte() {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte) all.append(static_cast<char>(byte));
        const QString text = CodePage::FromWindows1252(all);
        QCOMPARE(CodePage::ToWindows1252(text), all);
        QCOMPARE(QSet<QChar>(text.begin(), text.end()).size(), 256);
        QCOMPARE(text[0x80], u'€');
        QCOMPARE(text[0xE4], u'ä');
        QCOMPARE(CodePage::ByteOf(u'€'), 0x80);
        QCOMPARE(CodePage::ByteOf(u'Ł'), -1);
    }

    void tellsEncodings_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("utf8");
        QTest::addColumn<bool>("mark");
        QTest::addColumn<bool>("lfOnly");
        QTest::addColumn<QString>("name");
        const auto row = [](const char* title, const QByteArray& bytes, bool utf8, bool mark, bool lf,
                            const QString& name) {
            QTest::newRow(title) << bytes << utf8 << mark << lf << name;
        };
        row("ASCII", "a\r\nb", false, false, false, u"Windows-1252"_s);
        row("ASCII with LF", "a\nb\n", false, false, true, u"Windows-1252 LF"_s);
        row("one byte an umlaut",
            "gr\xFC"
            "n\r\n",
            false, false, false, u"Windows-1252"_s);
        row("UTF-8", "gr\xC3\xBCn\n", true, false, true, u"UTF-8 LF"_s);
        row("UTF-8 with mark", "\xEF\xBB\xBFgr\xC3\xBCn", true, true, false, u"UTF-8 mit Marke"_s);
        row("mark and ASCII",
            "\xEF\xBB\xBF"
            "abc",
            true, true, false, u"UTF-8 mit Marke"_s);
        row("mark alone", "\xEF\xBB\xBF", true, true, false, u"UTF-8 mit Marke"_s);
        row("mark before bytes that are none", "\xEF\xBB\xBF\xFC", false, false, false, u"Windows-1252"_s);
        row("cut in the middle of a character", "gr\xC3", false, false, false, u"Windows-1252"_s);
        row("undefined bytes", "\x81\x8D\x8F\x90\x9D", false, false, false, u"Windows-1252"_s);
        row("mixed line ends", "a\nb\r\nc", false, false, false, u"Windows-1252"_s);
        row("lone CR", "a\rb\nc", false, false, false, u"Windows-1252"_s);
        row("binary", QByteArray("\x00\x01\x02\xFF", 4), false, false, false, u"Windows-1252"_s);
        row("empty", QByteArray(), false, false, false, u"Windows-1252"_s);
        row("UTF-16, low byte first", QByteArray("\xFF\xFE\xFC\0\xAC\x20\r\0\n\0\0\xD8", 12), false, false,
            false,
            u"UTF-16 LE"_s); // with half a pair at its end
        row("UTF-16, high byte first", QByteArray("\xFE\xFF\0\xFC\0\n", 6), false, false, true,
            u"UTF-16 BE LF"_s);
    }
    void tellsEncodings() {
        QFETCH(QByteArray, bytes);
        const CodePage::Decoded decoded = CodePage::Decode(bytes);
        QTEST(decoded.format.encoding == Encoding::Utf8, "utf8");
        QTEST(decoded.format.mark, "mark");
        QTEST(decoded.format.lfOnly, "lfOnly");
        QTEST(CodePage::Name(decoded.format), "name");
        // what is read is written back unchanged, through full line breaks where all were of one kind
        CodePage::Format format = decoded.format;
        if (format.lfOnly) {
            QCOMPARE(CodePage::Encode(Text::WithFullLineBreaks(decoded.text), format), bytes);
        } else {
            QCOMPARE(CodePage::Encode(decoded.text, format), bytes);
        }
    }

    void completesHalfACharacter() {
        CodePage::Decoded page = CodePage::Decode(QByteArray("\xFF\xFE\r\0\n\0\xFC", 7));
        QCOMPARE(page.text, u"\r\nü"_s);
        QCOMPARE(CodePage::Encode(page.text, page.format), QByteArray("\xFF\xFE\r\0\n\0\xFC\0", 8));
    }

    void writesUtf8RatherThanLosingACharacter() {
        CodePage::Format format;
        QCOMPARE(CodePage::Encode(u"Łódź €"_s, format), QByteArray("\xC5\x81\xC3\xB3"
                                                                   "d\xC5\xBA \xE2\x82\xAC"));
        QVERIFY(format.encoding == Encoding::Utf8 && !format.mark);
        // bytes that would be read as another encoding than they were written in
        for (const QString& text : {u"Ã¤"_s, u"\u00EF\u00BB\u00BFa"_s, u"ÿþab"_s, u"þÿab"_s, u"\uFEFFa"_s}) {
            format = {};
            const CodePage::Decoded again = CodePage::Decode(CodePage::Encode(text, format));
            QCOMPARE(again.text, text);
            QVERIFY(again.format == format && format.encoding == Encoding::Utf8);
        }
        format = {};
        QCOMPARE(CodePage::Encode(u"ä€"_s, format), QByteArray("\xE4\x80"));
        QVERIFY(format.encoding == Encoding::Windows1252);
    }
};

REGISTER_TEST_AS(CodePage, CodePageTest);
#include "code_page_test.moc"
