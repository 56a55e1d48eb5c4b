// SPDX-License-Identifier: MIT
#include "insertion/table_draft.h"

#include "platform/literals.h"
#include "support/test_registry.h"

class TableDraftTest : public QObject {
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
    void writesHtml() {
        TableDraft draft;
        QCOMPARE(draft.Html({}), u"\t<table border=\"0\">\r\n\t</table>"_s);
        draft.SetSize(1, 2);
        draft.SetCell(0, 1, u"b"_s);
        draft.SetCell(5, 5, u"outside"_s);
        QCOMPARE(draft.Html({5, u"red"_s, {}, u"9"_s, u"&nbsp;"_s}),
                 u"\t<table border=\"5\" bgcolor=\"red\" height=\"9\">\r\n\t<tr>\r\n\t\t<td>&nbsp;</td>\r\n"
                 "\t\t<td>b</td>\r\n\t</tr>\r\n\t</table>"_s);
    }

    void keepsCellsOverASizeChange() {
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

    void readsFiles_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("cells");
        QTest::addColumn<bool>("whole");
        const auto row = [](const char* title, const QString& file, const QString& cells, bool whole) {
            QTest::newRow(title) << file << cells << whole;
        };
        row("as written", u"a, <space-, c, <e-\r\nd, e, f, <e-\r\n"_s, u"a||c/d|e|f"_s, true);
        row("short row", u"a, b, <e-\r\nc, <e-\r\nd, e, <e-\r\n"_s, u"a|b/c|/d|e"_s, true);
        row("long row", u"a, <e-\r\nb, c, <e-\r\n"_s, u"a/b"_s, false);
        row("quoted comma", u"\"a, b\", c, <e-\r\n"_s, u"a, b|c"_s, true);
        row("quotation mark without end", u"\"a, b, <e-\r\nc"_s, u"a, b, <e-\r\nc"_s, true);
        row("no row end", u"a,b,c"_s, u"a|b|c"_s, true);
        row("lf alone", u"a, <e-\nb, <e-\n"_s, u"a/b"_s, true);
        row("blank lines", u"\r\na, b, <e-\r\n  \r\n\r\n, d, <e-\r\n\r\n"_s, u"a|b/|d"_s, true);
        row("empty", {}, {}, true);
    }
    void readsFiles() {
        QFETCH(QString, file);
        TableDraft draft;
        QTEST(draft.Read(file), "whole");
        QTEST(Cells(draft), "cells");
    }

    void readsWhatItWrites() {
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

    void refusesMoreThanItHolds() {
        TableDraft draft;
        const int columns = 1000;
        const QString rowEnds = u"<e-\r\n"_s.repeated(TableDraft::MostCells / columns + 1);
        QVERIFY(!draft.Read(u"a, "_s.repeated(columns) + rowEnds)); // each of 5 bytes is a row of 1000 cells
        QCOMPARE(draft.Rows(), int(TableDraft::MostCells / columns));
        QVERIFY(!draft.Read(QString(TableDraft::MostCells + 1, u',')));
        QCOMPARE(draft.Columns(), int(TableDraft::MostCells));
    }
};

REGISTER_TEST_AS(TableDraft, TableDraftTest);
#include "table_draft_test.moc"
