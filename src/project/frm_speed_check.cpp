// SPDX-License-Identifier: MIT
#include "project/frm_speed_check.h"

#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "project/file_list_model.h"
#include "project/page_weight.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QApplication>
#include <QHeaderView>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <utility>

Frm_SpeedCheck::Frm_SpeedCheck()
    : m_files(new FileListModel({u"Typ"_s, u"Datei"_s, u"Größe"_s}, this)), Lvw_Files(new QTreeView),
      Lvw_Message(new QTreeWidget) {
    setObjectName(u"Frm_SpeedCheck"_s);
    setWindowTitle(u"SpeedCheck"_s);
    Lvw_Files->setObjectName(u"Lvw_Files"_s);
    Lvw_Files->setAccessibleName(u"Dateien"_s);
    Lvw_Files->setModel(m_files);
    Lvw_Files->setRootIsDecorated(false);
    Lvw_Files->setUniformRowHeights(true);
    Lvw_Files->setTextElideMode(Qt::ElideMiddle); // the names of deep frames stand behind a long indentation
    Lvw_Files->header()->setStretchLastSection(false);
    Lvw_Files->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    Lvw_Files->header()->resizeSection(2, fontMetrics().horizontalAdvance(u"999999999999 kB"_s));
    Lvw_Message->setHeaderLabel(u"Meldung"_s);
    Lvw_Message->setRootIsDecorated(false);
    Lvw_Message->setObjectName(u"Lvw_Message"_s);
    Lvw_Message->setAccessibleName(u"Meldung"_s);
    auto* close = new QPushButton(u"S&chließen"_s);
    close->setObjectName(u"Cmd_Control"_s);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &Frm_SpeedCheck::reject);
    auto* all = new QVBoxLayout(this);
    all->addWidget(Lvw_Files, 3);
    all->addWidget(Lvw_Message, 2);
    all->addWidget(close, 0, Qt::AlignRight);
    resize(560, 460);
}

Frm_SpeedCheck::~Frm_SpeedCheck() = default;

void Frm_SpeedCheck::OnUnload() {
    if (Global::AssistantOpen) Neighbours::RunAnimation(0, {});
}

void Frm_SpeedCheck::reject() {
    m_left = true;
    QDialog::reject();
}

void Frm_SpeedCheck::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) QTimer::singleShot(0, this, &Frm_SpeedCheck::Run);
}

// Who comes back from another program, where he may have made a picture smaller, sees the new sizes. A
// message of the run itself must not begin the next one.
bool Frm_SpeedCheck::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) m_repeats = false;
    if (event->type() == QEvent::WindowDeactivate) m_repeats = QApplication::activeModalWidget() == this;
    if (event->type() == QEvent::WindowActivate && std::exchange(m_repeats, false)) {
        QTimer::singleShot(0, this, &Frm_SpeedCheck::Run);
    }
    return QDialog::event(event);
}

void Frm_SpeedCheck::Run() {
    if (m_running || m_left) return;
    m_running = true;
    if (Global::AssistantOpen) {
        Neighbours::RunAnimation(
            1,
            u"Der SpeedCheck ist ein voll geniales Tool. Sie können sich anzeigen lassen, welche Dateien von "
            "welcher mit dieser Seite verknüpften Seiten geladen werden müssen?!?!? - Also, es zeigt Ihnen, "
            "welche Dateien geladen werden, wenn Sie diese Seite anzeigen. Außerdem berechnet es die "
            "Ladezeit "
            "dieser Seite für verschiedene Verbindungen."_s);
    }
    const int top = Lvw_Files->indexAt({}).row(); // where the user was reading
    m_files->Clear();
    Lvw_Message->clear();
    const QPointer<Frm_SpeedCheck> alive(this); // letting events run may end this window
    std::vector<FileListRow> rows;              // that wait to be shown
    Events::Pace pace;
    const auto show = [&] { m_files->Add(std::exchange(rows, {})); };
    const PageWeight::Sums sums = PageWeight::Scan(
        Global::CurrentFile,
        {[&](const PageWeight::Row& row) {
             rows.push_back({{u"src"_s, row.file, row.size}, row.link, row.path, {}, {}, {}, row.icon});
         },
         [&] {
             if (!pace.IsDue()) return true;
             show();
             pace.LetEventsRun();
             return alive && !m_left;
         }});
    if (!alive || m_left) return;
    show();
    if (top > 0) Lvw_Files->scrollTo(m_files->index(top, 0), QAbstractItemView::PositionAtTop);
    for (const QString& message : PageWeight::Messages(sums)) {
        auto* row = new QTreeWidgetItem(Lvw_Message, {message});
        row->setIcon(0, Icons::Named(u"information"));
    }
    if (sums.cyclic) {
        Dialogs::Tell(u"SpeedCheck"_s,
                      u"Die Seiten rufen sich gegenseitig auf. Die Berechnung wurde abgebrochen."_s,
                      Dialogs::Icon::Exclamation);
    }
    if (alive) m_running = false;
}
