// SPDX-License-Identifier: MIT
#pragma once

#include "insertion/table_draft.h"

#include <QAbstractTableModel>

// The draft of a table as the grid shows it.
class TableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    const TableDraft& Draft() const { return m_draft; }
    void SetDraft(TableDraft draft);
    void SetSize(int rows, int columns);
    void SetCell(int row, int column, const QString& text);

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : m_draft.Rows();
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : m_draft.Columns();
    }
    QVariant data(const QModelIndex& index, int role) const override;

private:
    TableDraft m_draft;
};
