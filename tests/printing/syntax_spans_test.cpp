// SPDX-License-Identifier: MIT
#include "printing/syntax_spans.h"
#include "support/test.h"

// The colour of each character: "c" comment, "n" name of a tag, "t" the rest of it, "s" text in quotes, "S"
// one that has kept the bold of a name, "i" one that has kept the italics of a comment, " " none.
static QString Drawn(const QString& text, const std::vector<SyntaxSpans::Span>& spans) {
    QString drawn(text.size(), u' ');
    qsizetype before = 0;
    for (const SyntaxSpans::Span& span : spans) {
        if (span.start < before || span.length < 1 || span.End() > text.size()) return u"out of order"_s;
        before = span.End();
        QChar sign;
        switch (span.colour) {
        case SyntaxSpans::Colour::Comment:
            sign = span.italic && !span.bold ? u'c' : u'?';
            break;
        case SyntaxSpans::Colour::Tag:
            sign = span.italic ? u'?' : span.bold ? u'n' : u't';
            break;
        case SyntaxSpans::Colour::String:
            sign = span.italic ? u'i' : span.bold ? u'S' : u's';
            break;
        case SyntaxSpans::Colour::Text:
            sign = u'?';
        }
        drawn.replace(span.start, span.length, QString(span.length, sign));
    }
    return drawn;
}

class SyntaxSpansTest : public QObject {
    Q_OBJECT

private slots:
    void colours_data() {
        const auto row = Columns<QString, QString>("text", "colours");
        row("nothing", "", "");
        row("tags", "a<b>c</b> <br/>", " tnt tnnt tnnnt");
        row("values", R"(<a href="x">)", "tnttttttssst");
        row("a break is no end of the name", "<a\r\nx y>", "tnnnnttt"); // only a blank is
        row("no name", "<>< b>", "tttttt");
        row("a blank behind the tag", "<a> b>", "tnt   ");
        row("without >", "a < b <c", "        ");
        row("the > of the next one", "<a <b> c", "tntttt  ");
        row("comment", "<!--<b>-->x<b>", "cccccccccc tnt");
        row("shortest comment", "<!-->-->x", "ccccc    ");
        row("comment without an end", "<b><!-- <i> ", "tntccccccccc");
        row("nor a > behind it", "< <!-- x", "  cccccc");
        row("a quote in a comment", R"(<!-- "a" -->)", "ccccciiicccc");
        row("a quote in a name", R"(<a"b"c>)", "tnSSSnt");
        row("across tags", R"(a"<b>"c)", " ssSss ");
        row("single quote", R"(a"b<c>)", " sssSs");
        row("odd number", R"("a" "b)", "sss ss");
        row("straight behind the closing one", R"("a""b" c)", "sss  sss");
        row("the last of an odd number", R"("a""b)", "sssss");
        row("only quotes", R"(""" )", "ssss");
    }
    void colours() {
        QFETCH(QString, text);
        QFETCH(QString, colours);
        QCOMPARE(Drawn(text, SyntaxSpans::Find(text, 0, true)), colours);
    }

    void leavesTheHeadAlone() {
        const QString head = u"\r\n <b> \"x\" \""_s;
        QCOMPARE(Drawn(head + u"\r\n\r\n<i>", SyntaxSpans::Find(head + u"\r\n\r\n<i>", head.size(), true)),
                 QString(head.size() + 4, u' ') + u"tnt"_s);
    }

    void takesOnlyStringsFromStylesAndScripts() {
        for (const QString& name : {u"a.CSS"_s, u"\\b\\c.js"_s, u"x.vbs"_s})
            QVERIFY(!SyntaxSpans::HasTags(name));
        for (const QString& name : {u""_s, u"a.htm"_s, u"css"_s}) QVERIFY(SyntaxSpans::HasTags(name));
        const QString text = u"<a> \"b\""_s;
        QCOMPARE(Drawn(text, SyntaxSpans::Find(text, 0, false)), u"    sss"_s);
    }

    void tellsHowFarItIsAndEndsAtOnce() {
        double before = 0;
        int steps = 0;
        const QString text = u"<a b=\"c\">"_s.repeated(50);
        const auto go = [&](double done) {
            if (done < before || done > 1 || (before < 0.5 && done < before)) return false;
            before = done;
            return ++steps != 20;
        };
        QVERIFY(SyntaxSpans::Find(text, 0, true, go).empty());
        QCOMPARE(steps, 20);
        QVERIFY(before < 0.5); // still at the tags
        before = 0;
        QVERIFY(!SyntaxSpans::Find(text, 0, true, go).empty());
        QCOMPARE(steps, 120);
        QVERIFY(before > 0.9);
    }
};

REGISTER_TEST_AS(SyntaxSpans, SyntaxSpansTest);

#include "syntax_spans_test.moc"
