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

} // namespace

void TableDraft::SetSize(int rows, int columns) {
    rows = std::max(rows, 0);
    columns = std::max(columns, 0);
    if (columns == m_columns) {
        m_cells.resize(static_cast<size_t>(rows) * static_cast<size_t>(columns));
        m_rows = rows;
        return;
    }
    std::vector<QString> cells(static_cast<size_t>(rows) * static_cast<size_t>(columns));
    for (int row = 0; row < std::min(rows, m_rows); ++row) {
        for (int column = 0; column < std::min(columns, m_columns); ++column) {
            cells[static_cast<size_t>(row) * static_cast<size_t>(columns) + static_cast<size_t>(column)] =
                std::move(m_cells[Index(row, column)]);
        }
    }
    m_cells = std::move(cells);
    m_rows = rows;
    m_columns = columns;
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
    return std::ranges::any_of(m_cells, [](const QString& cell) { return cell.contains(u','); });
}

QString TableDraft::FileText() const {
    QString text;
    for (int row = 0; row < m_rows; ++row) {
        for (int column = 0; column < m_columns; ++column) {
            const QString& cell = m_cells[Index(row, column)];
            text += cell.isEmpty() ? EmptyCell : cell;
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
    while (const auto item = reader.Next()) {
        if (*item == RowEnd) {
            ++row;
            cells.resize(static_cast<size_t>(row) *
                         static_cast<size_t>(columns)); // a short row stays empty behind
            column = 0;
            continue;
        }
        if (row == 0) columns = column + 1;
        whole = column < columns && cells.size() < static_cast<size_t>(MostCells);
        if (!whole) break;
        cells.push_back(*item == EmptyCell ? QString() : *item);
        ++column;
    }
    const int rows = column > 0 ? row + 1 : row; // a last row whose end is missing is a row all the same
    cells.resize(static_cast<size_t>(rows) * static_cast<size_t>(columns));
    m_rows = columns > 0 ? rows : 0;
    m_columns = columns;
    m_cells = std::move(cells);
    return whole;
}
