// SPDX-License-Identifier: MIT
#include "debugger/report_model.h"

#include "debugger/row_text.h"

namespace Debugger {

void ReportModel::Replace(std::deque<ReportRow> rows) {
    if (rows == m_rows) return;
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

int ReportModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ReportModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : Position + 1; }

QVariant ReportModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    const ReportRow& row = Row(index.row());
    if (index.column() == Position) {
        if (role != Qt::DisplayRole || !row.marker) return {};
        return QString::number(row.position);
    }
    if (index.column() != Description) return {};
    switch (role) {
    case Qt::DisplayRole:
        return row.text;
    case Qt::AccessibleTextRole:
        return SpokenText(row);
    case IconRole:
        return IconKey(row.icon);
    default:
        return {};
    }
}

QVariant ReportModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal) return {};
    if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    return section == Description ? u"Fehlerbeschreibung"_s : QString();
}

} // namespace Debugger
