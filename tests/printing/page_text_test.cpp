// SPDX-License-Identifier: MIT
#include "printing/page_text.h"
#include "support/test.h"

class PageTextTest : public QObject {
    Q_OBJECT

private slots:
    void heads() {
        const PageText::FileLine file{u"\\home\\anna\\seite.htm"_s, u"xhtml"_s, u"21.11.26"_s, u"9:05"_s};
        const PageText::FileLine unnamed{{}, u"Text"_s, u"d"_s, u"t"_s};
        const QString own = u"Größe <b>"_s;
        const QString line = u"\r\n seite.htm     XHTML     21.11.26     9:05"_s;
        QCOMPARE(PageText::Head(&file, nullptr), line);
        QCOMPARE(PageText::Head(&unnamed, nullptr), u"\r\n unbenannt     TEXT     d     t"_s);
        QCOMPARE(PageText::Head(&file, &own), line + u"\r\n Größe <b>"_s);
        QCOMPARE(PageText::Head(nullptr, &own), u"\r\n Größe <b>"_s);
        QCOMPARE(PageText::Whole(line, u"<p>"_s), line + u"\r\n\r\n<p>"_s);
        QCOMPARE(PageText::Whole(line, {}), line + u"\r\n\r\n"_s);
        QCOMPARE(PageText::Whole(PageText::Head(nullptr, nullptr), u"<p>"_s), u"\r\n<p>"_s);
    }

    void requests_data() {
        const QString size = u"Geben Sie eine Schriftgröße zwischen 8 und 14 ein."_s;
        const QString number = u"Geben Sie eine Anzahl zwischen 1 und 99 ein."_s;
        const QString text = u"Geben Sie für die Schriftgröße und die Seitenanzahl nur Zahlenwerte ein."_s;
        const auto row = Columns<QString, QString, QString>("size", "copies", "refusal");
        row("least", "8", "1", "");
        row("most", "14", "98", "");
        row("halves", "8,5", " 2 ", "");
        row("too small", "7.9", "1", size);
        row("too large", "15", "1", size);
        row("the size comes first", "15", "x", size);
        row("99", "8", "99", number);
        row("none", "8", "0", number);
        row("less than one copy", "8", "0,5", number);
        row("below none", "8", "-1", number);
        row("beyond all counting", "8", "1e300", number);
        row("no size", "", "1", text);
        row("a word for a size", "groß", "0", text);
        row("no number", "8", "", text);
        row("a word for a number", "8", "zwei", text);
        row("not a finite number", "nan", "1", text);
    }
    void requests() {
        QFETCH(QString, size);
        QFETCH(QString, copies);
        QTEST(PageText::Read(size, copies).refusal, "refusal");
    }

    void takesWholeCopies() {
        QCOMPARE(PageText::Read(u"10,5"_s, u"3,9"_s).copies, 3);
        QCOMPARE(PageText::Read(u"10,5"_s, u"3,9"_s).fontSize, 10.5);
    }
};

REGISTER_TEST_AS(PageText, PageTextTest);

#include "page_text_test.moc"
