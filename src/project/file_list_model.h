// SPDX-License-Identifier: MIT
#pragma once

#include "project/link_scanner.h"
#include "project/project_file.h"
#include "project/site_scan.h"

#include <QAbstractTableModel>
#include <QStringList>
#include <deque>
#include <vector>

// A row of one of the lists of files.
struct FileListRow {
    QStringList cells; // one for each column
    QString tip;       // full path in the system's form, or the external link
    QString tag;       // path, "Error", "Extern" or empty
    QString linkedFrom;
    QString linkName;
    QString sortKey;
    QString icon; // key of LinkRow or ExtendedFileRow

    static FileListRow From(const LinkRow& row);
    static FileListRow From(const ExtendedFileRow& row);
    static FileListRow From(const SiteFile& file);
};

// The rows of a list, always in the order of their sort keys and within a key in that of their coming. Takes
// many rows at once, so that a view stays quick while thousands come in.
class FileListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    FileListModel(const QStringList& captions, QObject* parent);

    void Clear();
    void Add(std::vector<FileListRow> rows);
    const FileListRow& Row(int row) const { return m_rows[m_order[static_cast<size_t>(row)]]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const QStringList m_captions;
    std::deque<FileListRow> m_rows; // in the order of their coming
    std::vector<size_t> m_order;    // where in m_rows each row shown lies
};
