// SPDX-License-Identifier: MIT
// What the insertion tools write.
#include "insertion/insert_texts.h"

#include "documents/text_buffer.h"
#include "insertion/color_circuit.h"
#include "insertion/design_link.h"
#include "insertion/frame_texts.h"
#include "insertion/style_list.h"
#include "insertion/tag_texts.h"
#include "platform/literals.h"
#include "support/program_folder.h"
#include "support/test_registry.h"

class InsertTextsTest : public QObject {
    Q_OBJECT

private slots:
    void writesTags_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("text"); // with "x" for the selection
        const auto row = [](const char* key, const QString& type, const QString& text) {
            QTest::addRow("%s %s", key, qPrintable(type)) << QString::fromLatin1(key) << type << text;
        };
        row("Bold", u"HTML"_s, u"<b>x</b>"_s);
        row("Link", u"Text"_s, u"<a href=\"\">x</a>"_s);
        row("AlignBlock", u"HTML"_s, u"<div align=\"justify\">x</div>"_s);
        row("H7", u"HTML"_s, u"<h7>x</h7>"_s);
        row("Break", u"XHTML"_s, u"<br />\r\nx"_s);
        row("Break", u"WML"_s, u"<br/>\r\nx"_s);
        row("Break", u"CSS"_s, u"<br>\r\nx"_s);
        row("Image", u"XHTML"_s, u"<img src=\"\" />x"_s);
        row("HorizontalRule", u"WML"_s, u"<hr size=\"\" width=\"\"/>x"_s);
        row("SpaceBar", u"HTML"_s, u"&nbsp;x"_s);
        row("nothing", u"HTML"_s, u"x"_s);
    }
    void writesTags() {
        QFETCH(QString, key);
        QFETCH(QString, type);
        const TagTexts::Pair pair = TagTexts::PairFor(key, type);
        QTEST(QString(pair.before + u'x' + pair.after), "text");
    }

    void hasATextForEveryButton() {
        for (const TagTexts::Button& button : TagTexts::TagButtons())
            QVERIFY2(!TagTexts::PairFor(button.key, u"HTML"_s).before.isEmpty(),
                     qPrintable(button.key.toString()));
        for (const TagTexts::Button& button : TagTexts::CharacterButtons())
            QVERIFY2(TagTexts::EntityFor(button.key).startsWith(u'&'), qPrintable(button.key.toString()));
        for (const FrameTexts::Layout& layout : FrameTexts::Layouts()) {
            const QString text = FrameTexts::For(layout.kind);
            QCOMPARE(text.count(u"<frameset"), text.count(u"</frameset>"));
            QVERIFY(text.startsWith(u"\t<frameset ") && text.endsWith(u"\r\n"));
        }
    }

    void nestsFrames() {
        QCOMPARE(FrameTexts::For(u"LeftTop"),
                 u"\t<frameset cols=\"30%, 70%\">\r\n\t\t<frame src=\"links.htm\">\r\n"
                 "\t\t<frameset rows=\"30%, 70%\">\r\n\t\t\t<frame src=\"oben.htm\">\r\n"
                 "\t\t\t<frame src=\"unten.htm\">\r\n\t\t</frameset>\r\n\t</frameset>\r\n"_s);
        QVERIFY(FrameTexts::For(u"LeftRightTopBottom")
                    .contains(u"\t\t</frameset>\r\n\t\t<frame src=\"unten.htm\">\r\n\t</frameset>\r\n"));
        QCOMPARE(FrameTexts::For(u"Other"), QString());
    }

    void writesListsMetaTagsAndRules() {
        using namespace InsertTexts;
        QCOMPARE(InsertTexts::List(true, u"1"_s, u"5"_s),
                 u"\t<ol type=\"1\" start=\"5\">\r\n\t\t<li></li>\r\n\t</ol>"_s);
        QCOMPARE(InsertTexts::List(false, u"disc"_s, {}),
                 u"\t<ul type=\"disc\">\r\n\t\t<li></li>\r\n\t</ul>"_s);
        Entry entry{u"author:"_s};
        entry.SetValue(u"a: b"_s);
        QCOMPARE(MetaTags({entry}, u"XHTML"_s), u"\t\t<meta name=\"author\" content=\"a: b\" />\r\n"_s);
        QCOMPARE(MetaTags({entry}, u"WML"_s), u"\t\t<meta name=\"author\" content=\"a: b\">\r\n"_s);
        QCOMPARE(StyleRule(u"p"_s, {u"color:red"_s, u"margin"_s}, RuleForm::Rule),
                 u"\t\t\tp {\r\n\t\t\tcolor:red;\r\n\t\t\tmargin;\r\n\t\t\t}\r\n"_s);
        QCOMPARE(StyleRule(u"p"_s, {u"color:red"_s, u"margin"_s}, RuleForm::OneLine), u"color:red;margin;"_s);
        const QString script = Script(u"VBScript"_s);
        QVERIFY(script.startsWith(u"\t\t<script language=\"VBScript\" type=\"text/vbscript\">\r\n"));
        QVERIFY(script.first(script.size() - BehindScript).endsWith(u"\t\t\t<!--\r\n\t\t\t\r"));
        QVERIFY(StyleTag().first(StyleTag().size() - BehindStyle).endsWith(u"<!--\r\n\t\t\t"));
        QCOMPARE(ColorCircuit::Hex(10, 0, 255), u"#0A00FF"_s);
    }

    void linksDesigns_data() {
        QTest::addColumn<QString>("page");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("after");
        using DesignLink::Outcome;
        QTest::newRow("head")
            << u"<head>\r\n<title>"_s << int(Outcome::Written)
            << u"<head>\r\n\r\n\t\t<style> <!-- @import url(stil/a.css); --> </style>\r\n<title>"_s;
        QTest::newRow("none") << u"<body>"_s << int(Outcome::NoHead) << u"<body>"_s;
        QTest::newRow("broken") << u"<HEAD"_s << int(Outcome::BrokenHead) << u"<HEAD"_s;
    }
    void linksDesigns() {
        QFETCH(QString, page);
        TextBuffer box(page);
        QTEST(int(DesignLink::Write(box, u"\\web\\stil\\a.css"_s, u"\\web\\index.htm"_s)), "outcome");
        QTEST(box.Text(), "after");
    }

    void readsStyles() {
        const ProgramFolder folder(ProgramFolder::Content::Empty);
        QVERIFY(!StyleList::Objects().whole);
        folder.Write(u"styles.lst"_s,
                     "p, color, <e-\r\ndefault, margin, <e-\r\n#, width, <e-\r\n#a, top, <e-\r\n");
        QCOMPARE(StyleList::Objects().entries, (QStringList{u"p"_s, u"#"_s, u"#a"_s}));
        QCOMPARE(StyleList::EntriesOf(u"p"_s).entries, (QStringList{u"color"_s, u"margin"_s}));
        QCOMPARE(StyleList::EntriesOf(u"#a"_s).entries, (QStringList{u"margin"_s, u"width"_s, u"top"_s}));
        folder.Write(u"styles.lst"_s, "p, color");
        QVERIFY(!StyleList::Objects().whole);
    }
};

REGISTER_TEST_AS(InsertTexts, InsertTextsTest);
#include "insert_texts_test.moc"
