// SPDX-License-Identifier: MIT
#include "project/frm_page_info.h"

#include "platform/icons.h"
#include "platform/literals.h"
#include "project/file_management.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

Frm_PageInfo::Frm_PageInfo() : Lvw_Files(new QTreeWidget) {
    setObjectName(u"Frm_PageInfo"_s);
    setWindowTitle(u"Info"_s);
    auto* heading = new QLabel(u"Info zum ProjektBackup"_s);
    heading->setObjectName(u"Label1"_s);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    Lvw_Files->setObjectName(u"Lvw_Files"_s);
    Lvw_Files->setAccessibleName(heading->text());
    Lvw_Files->setHeaderLabels({u"Beschreibung"_s, u"Anzahl"_s, u"Größe"_s});
    for (const int column : {1, 2}) Lvw_Files->headerItem()->setTextAlignment(column, Qt::AlignRight);
    Lvw_Files->setRootIsDecorated(false);
    Lvw_Files->header()->setStretchLastSection(false);
    Lvw_Files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    auto* close = new QPushButton(u"S&chließen"_s);
    close->setObjectName(u"Cmd_Control"_s);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &Frm_PageInfo::reject);
    auto* all = new QVBoxLayout(this);
    all->addWidget(heading);
    all->addWidget(Lvw_Files, 1);
    all->addWidget(close, 0, Qt::AlignRight);
    resize(420, 300);
}

void Frm_PageInfo::Add(const std::array<SiteScan::KindSum, SiteScan::KindCount>& sums) {
    const auto add = [this](const QString& name, const SiteScan::KindSum& sum) {
        auto* row = new QTreeWidgetItem(
            Lvw_Files, {name, QString::number(sum.count), FileManagement::FormatByteCount(sum.bytes)});
        row->setIcon(0, Icons::Named(u"information"));
        for (const int column : {1, 2}) row->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    };
    constexpr std::array<QStringView, SiteScan::KindCount> names{
        u"HTML/WML-Dateien", u"Bilder",  u"StyleSheet-Dateien", u"Script-Dateien", u"Zip-Archive",
        u"Flash Movies",     u"Sonstige"};
    SiteScan::KindSum all;
    for (size_t kind = 0; kind < sums.size(); ++kind) {
        add(names[kind].toString(), sums[kind]);
        all.bytes += sums[kind].bytes;
        all.count += sums[kind].count;
    }
    add(u"Gesamt"_s, all);
}
