// SPDX-License-Identifier: MIT
// A table as it is laid out: its cells, its HTML, and the file that holds it for later use.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// How the table looks; empty texts leave their attribute out.
struct TableLook {
    int border = 0;
    QString background;
    QString width;
    QString height;
    QString emptyCell; // what a cell without content gets
};

// The cells by rows and columns, both from 0. A draft of 1,000 rows and 100 columns is an ordinary one.
class TableDraft {
public:
    int Rows() const { return m_rows; }
    int Columns() const { return m_columns; }
    // New cells are empty. Those that fall outside keep their text for the draft that grows again, as a
    // count that is typed digit by digit makes it, unless that takes more than MostCells. Negative counts
    // are taken for 0.
    void SetSize(int rows, int columns);
    // The text of a cell; empty outside the draft.
    QString Cell(int row, int column) const;
    void SetCell(int row, int column, const QString& text); // outside the draft nothing happens

    // The table, tabs and line ends as they stand in the page; without a line end behind it.
    QString Html(const TableLook& look) const;

    // Whether some cell holds a comma, which a table file cannot.
    bool HoldsComma() const;
    // The contents of the table file, which can hold no line break in a cell: it becomes a blank.
    QString FileText() const;
    // Takes over the contents of a table file. Each item is read as from a comma-separated list: leading
    // blanks are dropped, and one in double quotes keeps its commas. Blank lines between rows are none.
    // Returns false for a row with more cells than the first or a file of more than MostCells; the draft
    // then holds what was read before.
    bool Read(const QString& fileText);

    static constexpr qsizetype MostCells = 4'000'000;

private:
    size_t Index(int row, int column) const {
        return static_cast<size_t>(row) * static_cast<size_t>(m_keptColumns) + static_cast<size_t>(column);
    }
    void Keep(int rows, int columns);

    int m_rows = 0;
    int m_columns = 0;
    int m_keptRows = 0; // at least as many as there are
    int m_keptColumns = 0;
    std::vector<QString> m_cells; // of all kept rows, row by row
};
