// SPDX-License-Identifier: MIT
#include "platform/code_page.h"

#include "support/test.h"

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
        QCOMPARE(text.sliced(0x80, 32), u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ"_s);
        QCOMPARE(text[0xE4], u'ä');
        QCOMPARE(CodePage::ByteOf(u'€'), 0x80);
        QCOMPARE(CodePage::ByteOf(u'Ł'), -1);
    }

    void tellsEncodings_data() {
        const auto row = Columns<QByteArray, bool, bool, QString>("bytes", "mark", "lfOnly", "name");
        row("ASCII", "a\r\nb", false, false, "Windows-1252");
        row("ASCII with LF", "a\nb\n", false, true, "Windows-1252 LF");
        row("UTF-8", "gr\xC3\xBCn\n", false, true, "UTF-8 LF");
        row("UTF-8 with mark", "\xEF\xBB\xBFgr\xC3\xBCn", true, false, "UTF-8 mit Marke");
        row("mark alone", "\xEF\xBB\xBF", true, false, "UTF-8 mit Marke");
        row("mark before bytes that are none", "\xEF\xBB\xBF\xFC", false, false, "Windows-1252");
        row("cut in the middle of a character", "gr\xC3", false, false, "Windows-1252");
        row("undefined bytes", "\x81\x8D\x8F\x90\x9D", false, false, "Windows-1252");
        row("mixed line ends", "a\nb\r\nc", false, false, "Windows-1252");
        row("lone CR", "a\rb\nc", false, false, "Windows-1252");
        row("binary", QByteArray("\x00\x01\x02\xFF", 4), false, false, "Windows-1252");
        row("empty", "", false, false, "Windows-1252");
        row("UTF-16 with half a pair at its end", QByteArray("\xFF\xFE\xFC\0\xAC\x20\r\0\n\0\0\xD8", 12),
            false, false, "UTF-16 LE");
        row("UTF-16, high byte first", QByteArray("\xFE\xFF\0\xFC\0\n", 6), false, true, "UTF-16 BE LF");
    }
    void tellsEncodings() {
        QFETCH(QByteArray, bytes);
        const CodePage::Decoded decoded = CodePage::Decode(bytes);
        QTEST(decoded.format.mark, "mark");
        QTEST(decoded.format.lfOnly, "lfOnly");
        QTEST(CodePage::Name(decoded.format), "name");
        // what is read is written back unchanged, through full line breaks where all were of one kind
        CodePage::Format format = decoded.format;
        const QString text = format.lfOnly ? Text::WithFullLineBreaks(decoded.text) : decoded.text;
        QCOMPARE(CodePage::Encode(text, format), bytes);
    }

    void completesHalfACharacter() {
        CodePage::Decoded page = CodePage::Decode(QByteArray("\xFF\xFE\r\0\n\0\xFC", 7));
        QCOMPARE(page.text, u"\r\nü"_s);
        QCOMPARE(CodePage::Encode(page.text, page.format), QByteArray("\xFF\xFE\r\0\n\0\xFC\0", 8));
    }

    void writesUtf8RatherThanLosingACharacter() {
        CodePage::Format format;
        QCOMPARE(CodePage::Encode(u"Łódź €"_s, format), u"Łódź €"_s.toUtf8());
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
