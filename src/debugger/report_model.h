// SPDX-License-Identifier: MIT
// The rows of a report as a list view takes them: asked for row by row, as they come into sight.
#pragma once

#include "debugger/report_row.h"

#include <QAbstractTableModel>
#include <deque>

namespace Debugger {

class ReportModel : public QAbstractTableModel {
    Q_OBJECT

public:
    // The second column stays empty; the third holds the position of rows that a click can follow.
    enum Column { Description, Sort, Position };
    static constexpr int IconRole = Qt::UserRole; // key of the row's picture in the image list; may be empty

    using QAbstractTableModel::QAbstractTableModel;

    // Shows `rows` instead of the present ones. Equal rows change nothing, so that a view keeps its place.
    void Replace(std::deque<ReportRow> rows);
    const ReportRow& Row(int row) const { return m_rows.at(static_cast<size_t>(row)); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    std::deque<ReportRow> m_rows;
};

} // namespace Debugger
