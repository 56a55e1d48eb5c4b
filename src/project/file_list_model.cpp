// SPDX-License-Identifier: MIT
#include "project/file_list_model.h"

#include "platform/files.h"
#include "platform/icons.h"
#include "platform/literals.h"

#include <QHash>
#include <QIcon>
#include <QTextDocument>
#include <algorithm>
#include <numeric>

namespace {

QIcon IconFor(const QString& key) {
    static const QHash<QString, QStringView> drawings{
        {u"HTMLFile"_s, u"page"}, {u"WMLFile"_s, u"browser_wap"},   {u"CSS"_s, u"style_sheet"},
        {u"VBS"_s, u"script"},    {u"JS"_s, u"script_file"},        {u"Image"_s, u"picture"},
        {u"UserDef2"_s, u"file"}, {u"Extern2"_s, u"external_link"}, {u"Error3"_s, u"file_missing"},
        {u"HTML"_s, u"page"},     {u"UnknownFile2"_s, u"file"},     {u"WML"_s, u"browser_wap"},
        {u"Unknown"_s, u"file"},  {u"Unknown3"_s, u"file"},
    };
    return Icons::Named(drawings.value(key));
}

} // namespace

FileListRow FileListRow::From(const LinkRow& row) {
    const bool external = row.tag == u"Extern";
    const auto shown = [external](const QString& path) { return external ? path : Files::ToSystem(path); };
    return {{row.name, row.title.simplified(), shown(row.folder), Files::ToSystem(row.linkedFrom),
             row.linkName, row.sortKey},
            shown(row.path),
            row.tag,
            row.linkedFrom,
            row.linkName,
            row.sortKey,
            row.icon};
}

FileListRow FileListRow::From(const ExtendedFileRow& row) {
    return {{row.name, Files::ToSystem(row.folder), row.type},
            Files::ToSystem(row.path),
            row.path,
            {},
            {},
            row.type,
            row.icon};
}

FileListRow FileListRow::From(const SiteFile& file) {
    return {{file.name, Files::ToSystem(file.folder), file.type},
            Files::ToSystem(file.path),
            file.tag,
            {},
            {},
            {},
            file.icon};
}

FileListModel::FileListModel(const QStringList& captions, QObject* parent)
    : QAbstractTableModel(parent), m_captions(captions) {}

void FileListModel::Clear() {
    if (m_rows.empty()) return;
    beginResetModel();
    m_rows.clear();
    m_order.clear();
    endResetModel();
}

void FileListModel::Add(std::vector<FileListRow> rows) {
    std::vector<size_t> coming(rows.size());
    std::iota(coming.begin(), coming.end(), m_rows.size());
    std::move(rows.begin(), rows.end(), std::back_inserter(m_rows));
    const auto keyOf = [this](size_t row) -> const QString& { return m_rows[row].sortKey; };
    const auto before = [&](size_t a, size_t b) { return keyOf(a) < keyOf(b); };
    std::stable_sort(coming.begin(), coming.end(), before);
    // one insertion for each key
    for (auto run = coming.cbegin(); run != coming.cend();) {
        const auto end = std::upper_bound(run, coming.cend(), *run, before);
        const auto place = std::upper_bound(m_order.cbegin(), m_order.cend(), *run, before);
        const int first = static_cast<int>(place - m_order.cbegin());
        beginInsertRows({}, first, first + static_cast<int>(end - run) - 1);
        m_order.insert(place, run, end);
        endInsertRows();
        run = end;
    }
}

int FileListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_order.size());
}

int FileListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_captions.size());
}

QVariant FileListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const FileListRow& row = Row(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return row.cells.value(index.column());
    case Qt::ToolTipRole: // a link may look like markup
        return Qt::mightBeRichText(row.tip) ? QString(u"<qt>"_s + row.tip.toHtmlEscaped()) : row.tip;
    case Qt::DecorationRole:
        if (index.column() == 0 && !row.icon.isEmpty()) return IconFor(row.icon);
        return {};
    default:
        return {};
    }
}

QVariant FileListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return m_captions.value(section);
}
