// SPDX-License-Identifier: MIT
#include "insertion/table_draft.h"

#include "platform/literals.h"
#include "platform/text.h"
#include "state/lists.h"

#include <algorithm>

namespace {

const QString RowEnd = QStringLiteral("<e-");
const QString EmptyCell = QStringLiteral("<space-");

void AddAttribute(QString& text, const QString& name, const QString& value) {
    if (!value.isEmpty()) text += u' ' + name + u"=\""_s + value + u'"';
}

// The line of a row ends at its first line break, and the file would be another one when it is read.
QString OnOneLine(QString text) {
    if (!text.contains(u'\r') && !text.contains(u'\n')) return text;
    return text.replace(u"\r\n"_s, u" "_s).replace(u'\r', u' ').replace(u'\n', u' ');
}

} // namespace

void TableDraft::SetSize(int rows, int columns) {
    m_rows = std::max(rows, 0);
    m_columns = std::max(columns, 0);
    const int keptRows = std::max(m_rows, m_keptRows);
    const int keptColumns = std::max(m_columns, m_keptColumns);
    const bool all = qsizetype(keptRows) * keptColumns <= MostCells;
    Keep(all ? keptRows : m_rows, all ? keptColumns : m_columns);
}

// Makes room for so many cells.
void TableDraft::Keep(int rows, int columns) {
    const auto count = [](int r, int c) { return static_cast<size_t>(r) * static_cast<size_t>(c); };
    if (columns == m_keptColumns) {
        m_cells.resize(count(rows, columns));
        m_keptRows = rows;
        return;
    }
    std::vector<QString> cells(count(rows, columns));
    for (int row = 0; row < std::min(rows, m_keptRows); ++row) {
        for (int column = 0; column < std::min(columns, m_keptColumns); ++column) {
            cells[count(row, columns) + static_cast<size_t>(column)] = std::move(m_cells[Index(row, column)]);
        }
    }
    m_cells = std::move(cells);
    m_keptRows = rows;
    m_keptColumns = columns;
}

QString TableDraft::Cell(int row, int column) const {
    const bool inside = row >= 0 && row < m_rows && column >= 0 && column < m_columns;
    return inside ? m_cells[Index(row, column)] : QString();
}

void TableDraft::SetCell(int row, int column, const QString& text) {
    if (row >= 0 && row < m_rows && column >= 0 && column < m_columns) m_cells[Index(row, column)] = text;
}

QString TableDraft::Html(const TableLook& look) const {
    QString text = u"\t<table border=\"%1\""_s.arg(look.border);
    AddAttribute(text, u"bgcolor"_s, look.background);
    AddAttribute(text, u"width"_s, look.width);
    AddAttribute(text, u"height"_s, look.height);
    text += u">\r\n"_s;
    for (int row = 0; row < m_rows; ++row) {
        text += u"\t<tr>\r\n"_s;
        for (int column = 0; column < m_columns; ++column) {
            const QString& cell = m_cells[Index(row, column)];
            text += u"\t\t<td>"_s;
            text += cell.isEmpty() ? look.emptyCell : cell;
            text += u"</td>\r\n"_s;
        }
        text += u"\t</tr>\r\n"_s;
    }
    return text + u"\t</table>"_s;
}

bool TableDraft::HoldsComma() const {
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            if (m_cells[Index(row, column)].contains(u',')) return true;
        }
    }
    return false;
}

QString TableDraft::FileText() const {
    QString text;
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            const QString& cell = m_cells[Index(row, column)];
            text += cell.isEmpty() ? EmptyCell : OnOneLine(cell);
            text += u", "_s;
        }
        // a table without columns has no last cell to end its rows
        if (m_columns > 0) text += RowEnd + Text::LineBreak;
    }
    return text;
}

bool TableDraft::Read(const QString& fileText) {
    *this = {};
    std::vector<QString> cells;
    Lists::TokenReader reader(fileText);
    int columns = 0; // of the first row, which tells those of the table
    int column = 0;
    int row = 0;
    bool whole = true;
    for (;;) {
        if (column == 0) reader.SkipBlankLines();
        const auto item = reader.Next();
        if (!item) break;
        const bool rowEnds = *item == RowEnd;
        if (row == 0 && !rowEnds) columns = column + 1;
        // a row that is hardly begun takes the room of a whole one too
        whole = (rowEnds || column < columns) && qsizetype(row + 1) * columns <= MostCells;
        if (!whole) break;
        if (rowEnds) {
            ++row;
            cells.resize(static_cast<size_t>(row) * static_cast<size_t>(columns));
            column = 0;
            continue;
        }
        cells.push_back(*item == EmptyCell ? QString() : *item);
        ++column;
    }
    if (!whole && row == 0) columns = column;
    const int rows = column > 0 ? row + 1 : row; // a last row whose end is missing is a row all the same
    cells.resize(static_cast<size_t>(rows) * static_cast<size_t>(columns));
    m_rows = m_keptRows = columns > 0 ? rows : 0;
    m_columns = m_keptColumns = columns;
    m_cells = std::move(cells);
    return whole;
}
