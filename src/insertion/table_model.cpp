// SPDX-License-Identifier: MIT
#include "insertion/table_model.h"

#include <QTextDocument>

namespace {
constexpr int MostOfATip = 1000; // characters
} // namespace

void TableModel::SetDraft(TableDraft draft) {
    beginResetModel();
    m_draft = std::move(draft);
    endResetModel();
}

void TableModel::SetSize(int rows, int columns) {
    if (rows == m_draft.Rows() && columns == m_draft.Columns()) return;
    beginResetModel();
    m_draft.SetSize(rows, columns);
    endResetModel();
}

void TableModel::SetCell(int row, int column, const QString& text) {
    m_draft.SetCell(row, column, text);
    const QModelIndex cell = index(row, column);
    emit dataChanged(cell, cell);
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
    const QString text = m_draft.Cell(index.row(), index.column());
    if (role == Qt::DisplayRole || text.isEmpty()) return text;
    // a tip would show code as what it stands for
    return Qt::convertFromPlainText(text.left(MostOfATip), Qt::WhiteSpaceNormal);
}
