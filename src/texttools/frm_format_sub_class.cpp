// SPDX-License-Identifier: MIT
#include "texttools/frm_format_sub_class.h"

#include "platform/dialogs.h"
#include "platform/literals.h"
#include "texttools/class_list.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace {
constexpr qsizetype LongestName = 255;
} // namespace

Frm_FormatSubClass::Frm_FormatSubClass()
    : ToolWindow(
          {u"Frm_FormatSubClass"_s, u"Klassen"_s,
           u"Dieses Toolfenster zeigt Ihnen alle Format Unterklassen für dieses Dokument an. Klicken "
           "Sie auf einen Eintrag um ihn im Attribut 'id' eines Tags einzufügen. Die Datei muss zuerst "
           "gespeichert werden."_s,
           &Global::FormatSubClassOpen, &Global::FormatSubClassPos, ToolPlace::Keeps::Place,
           QSize(1560, 2540)}),
      Lst_SubClass(new QListWidget) {
    Lst_SubClass->setObjectName(u"Lst_SubClass"_s);
    Lst_SubClass->setAccessibleName(u"Klassen"_s);
    Lst_SubClass->setUniformItemSizes(true);
    Lst_SubClass->setFrameShape(QFrame::NoFrame);
    Lst_SubClass->installEventFilter(this);
    Lst_SubClass->viewport()->installEventFilter(this);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(Lst_SubClass);
}

void Frm_FormatSubClass::OnLoad() {
    ToolWindow::OnLoad();
    UpdateClassList();
}

void Frm_FormatSubClass::UpdateClassList() {
    const ClassList::Found found = ClassList::InFile(Global::CurrentFile);
    Lst_SubClass->clear();
    Lst_SubClass->addItems(found.entries);
    for (int row = 0; row < Lst_SubClass->count(); ++row) {
        Lst_SubClass->item(row)->setToolTip(Lst_SubClass->item(row)->text()); // the window is narrow
    }
    if (found.openLink) Dialogs::Tell({}, u"Unerwarteter Fehler."_s, Dialogs::Icon::None);
}

void Frm_FormatSubClass::InsertEntry() {
    const QListWidgetItem* entry = Lst_SubClass->currentItem();
    if (entry) Insert(entry->text().sliced(1).first(std::min(LongestName, entry->text().size() - 1)));
}

bool Frm_FormatSubClass::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease && watched == Lst_SubClass->viewport()) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const bool inside = Lst_SubClass->viewport()->rect().contains(mouse->position().toPoint());
        const bool used = ToolWindow::eventFilter(watched, event);
        if (mouse->button() == Qt::LeftButton && inside) InsertEntry();
        BackToCode();
        return used;
    }
    if (event->type() == QEvent::KeyPress && watched == Lst_SubClass) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            InsertEntry();
            return true;
        }
    }
    return ToolWindow::eventFilter(watched, event);
}
