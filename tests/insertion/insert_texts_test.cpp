// SPDX-License-Identifier: MIT
// What the insertion tools write and read.
#include "insertion/insert_texts.h"

#include "insertion/color_circuit.h"
#include "insertion/design_link.h"
#include "insertion/frame_texts.h"
#include "insertion/style_list.h"
#include "insertion/table_draft.h"
#include "insertion/tag_texts.h"
#include "support/folder_test.h"

class InsertTextsTest : public FolderTest {
    Q_OBJECT

    static QString Cells(const TableDraft& draft) {
        QStringList rows;
        for (int row = 0; row < draft.Rows(); ++row) {
            QStringList cells;
            for (int column = 0; column < draft.Columns(); ++column) cells << draft.Cell(row, column);
            rows << cells.join(u'|');
        }
        return rows.join(u'/');
    }

private slots:
    void writesTags() {
        for (const auto& [key, type, text] : {std::tuple("Link", "Text", "<a href=\"\">x</a>"),
                                              {"H7", "HTML", "<h7>x</h7>"},
                                              {"Break", "XHTML", "<br />\r\nx"},
                                              {"Break", "WML", "<br/>\r\nx"},
                                              {"Break", "CSS", "<br>\r\nx"},
                                              {"HorizontalRule", "WML", "<hr size=\"\" width=\"\"/>x"},
                                              {"SpaceBar", "HTML", "&nbsp;x"},
                                              {"nothing", "HTML", "x"}}) { // "x": the selection
            const TagTexts::Pair pair = TagTexts::PairFor(QString(key), QString(type));
            QCOMPARE(QString(pair.before + u'x' + pair.after), QString(text));
        }
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

    void linksDesigns() {
        using DesignLink::Outcome;
        const QString link = u"\r\n\r\n\t\t<style> <!-- @import url(stil/a.css); --> </style>"_s;
        for (const auto& [page, outcome, after] :
             {std::tuple(u"<head>\r\n<title>"_s, Outcome::Written, u"<head>"_s + link + u"\r\n<title>"_s),
              {u"<body>"_s, Outcome::NoHead, u"<body>"_s},
              {u"<HEAD"_s, Outcome::BrokenHead, u"<HEAD"_s}}) {
            TextBuffer box(page);
            QVERIFY(DesignLink::Write(box, u"\\web\\stil\\a.css"_s, u"\\web\\index.htm"_s) == outcome);
            QCOMPARE(box.Text(), after);
        }
    }

    void readsStyles() {
        QVERIFY(!StyleList::Objects().whole);
        m_folder->Write(u"styles.lst"_s,
                        "p, color, <e-\r\ndefault, margin, <e-\r\n#, width, <e-\r\n#a, top, <e-\r\n");
        QCOMPARE(StyleList::Objects().entries, (QStringList{u"p"_s, u"#"_s, u"#a"_s}));
        QCOMPARE(StyleList::EntriesOf(u"p"_s).entries, (QStringList{u"color"_s, u"margin"_s}));
        QCOMPARE(StyleList::EntriesOf(u"#a"_s).entries, (QStringList{u"margin"_s, u"width"_s, u"top"_s}));
        m_folder->Write(u"styles.lst"_s, "p, color");
        QVERIFY(!StyleList::Objects().whole);
    }

    void writesTables() {
        TableDraft draft;
        QCOMPARE(draft.Html({}), u"\t<table border=\"0\">\r\n\t</table>"_s);
        draft.SetSize(1, 2);
        draft.SetCell(0, 1, u"b"_s);
        draft.SetCell(5, 5, u"outside"_s);
        QCOMPARE(draft.Html({5, u"red"_s, {}, u"9"_s, u"&nbsp;"_s}),
                 u"\t<table border=\"5\" bgcolor=\"red\" height=\"9\">\r\n\t<tr>\r\n\t\t<td>&nbsp;</td>\r\n"
                 "\t\t<td>b</td>\r\n\t</tr>\r\n\t</table>"_s);
    }

    void keepsTheCellsOverASizeChange() {
        TableDraft draft;
        QVERIFY(draft.Read(u"a, b, <e-\r\nc, d, <e-\r\n"_s));
        draft.SetCell(1, 1, u"d,"_s);
        draft.SetSize(3, 1);
        QCOMPARE(Cells(draft), u"a/c/"_s);
        QVERIFY(!draft.HoldsComma());
        draft.SetSize(1, 3); // as "12" is typed
        QCOMPARE(Cells(draft), u"a|b|"_s);
        draft.SetSize(-1, 2);
        QCOMPARE(draft.Rows(), 0);
        draft.SetSize(12, 2);
        QVERIFY(Cells(draft).startsWith(u"a|b/c|d,/|/"));
        draft.SetSize(1, TableDraft::MostCells); // no room for the outer ones
        QCOMPARE(draft.Cell(0, 1), u"b"_s);
    }

    void readsTableFiles_data() {
        const auto row = Columns<QString, QString, bool>("file", "cells", "whole");
        row("as written", "a, <space-, c, <e-\r\nd, e, f, <e-\r\n", "a||c/d|e|f", true);
        row("short row", "a, b, <e-\r\nc, <e-\r\nd, e, <e-\r\n", "a|b/c|/d|e", true);
        row("long row", "a, <e-\r\nb, c, <e-\r\n", "a/b", false);
        row("quoted comma", "\"a, b\", c, <e-\r\n", "a, b|c", true);
        row("quotation mark without end", "\"a, b, <e-\r\nc", "a, b, <e-\r\nc", true);
        row("no row end", "a,b,c", "a|b|c", true);
        row("lf alone", "a, <e-\nb, <e-\n", "a/b", true);
        row("blank lines", "\r\na, b, <e-\r\n  \r\n\r\n, d, <e-\r\n\r\n", "a|b/|d", true);
        row("empty", "", "", true);
    }
    void readsTableFiles() {
        QFETCH(QString, file);
        TableDraft draft;
        QTEST(draft.Read(file), "whole");
        QTEST(Cells(draft), "cells");
    }

    void readsTheTablesItWrites() {
        TableDraft draft;
        draft.SetSize(1000, 100);
        for (int row = 0; row < 1000; ++row) draft.SetCell(row, row % 100, QString::number(row));
        TableDraft again;
        QVERIFY(again.Read(draft.FileText()));
        QVERIFY(again.Rows() == 1000 && again.Columns() == 100 && Cells(again) == Cells(draft));
        draft.SetCell(3, 3, u"a\r\nb"_s); // pasted from two lines
        QVERIFY(again.Read(draft.FileText()));
        QCOMPARE(again.Cell(3, 3), u"a b"_s);
        draft.SetCell(3, 3, u"a,b"_s);
        QVERIFY(draft.HoldsComma() && !again.HoldsComma());
    }

    void refusesMoreThanATableHolds() {
        TableDraft draft;
        const int columns = 1000;
        const QString rowEnds = u"<e-\r\n"_s.repeated(TableDraft::MostCells / columns + 1);
        QVERIFY(!draft.Read(u"a, "_s.repeated(columns) + rowEnds)); // each of 5 bytes is a row of 1000 cells
        QCOMPARE(draft.Rows(), int(TableDraft::MostCells / columns));
        QVERIFY(!draft.Read(QString(TableDraft::MostCells + 1, u',')));
        QCOMPARE(draft.Columns(), int(TableDraft::MostCells));
    }
};

REGISTER_TEST_AS(InsertTexts, InsertTextsTest);
#include "insert_texts_test.moc"
