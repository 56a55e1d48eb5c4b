// SPDX-License-Identifier: MIT
#include "insertion/frm_frames.h"

#include "documents/insertion_point.h"
#include "insertion/frame_texts.h"
#include "platform/icons.h"
#include "platform/literals.h"

#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

namespace {

QString TipFor(QStringView kind) {
    if (kind == u"Left") return u"schmaler Frame links"_s;
    if (kind == u"Right") return u"schmaler Frame rechts"_s;
    if (kind == u"Top") return u"flacher Frame oben"_s;
    if (kind == u"Bottom") return u"flacher Frame unten"_s;
    if (kind == u"LeftRight") return u"drei Frames nebeneinander"_s;
    if (kind == u"TopBottom") return u"drei Frames untereinander"_s;
    if (kind == u"LeftTop") return u"links ein Frame, rechts zwei untereinander"_s;
    if (kind == u"TopLeft") return u"oben ein Frame, darunter zwei nebeneinander"_s;
    return u"oben und unten ein Frame, dazwischen drei nebeneinander"_s;
}

// Items that are a picture alone: the chosen one stands on the highlight colour.
class PictureItems : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem item(option);
        if (item.state & QStyle::State_Selected)
            painter->fillRect(item.rect, item.palette.brush(QPalette::Highlight));
        item.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
        QStyledItemDelegate::paint(painter, item, index);
    }
};

} // namespace

Frm_Frames::Frm_Frames()
    : ToolDialog(u"Frm_Frames"_s, u"Frames einfügen"_s,
                 u"Mit diesem Tool können Sie verschiedene Frame - Kombinationen einfügen."_s),
      m_kind(u"Left"_s) {
    SetHeading(u"insert_frames", u"Frames einfügen..."_s);
    auto* Lvw_Frames = new QListWidget;
    Lvw_Frames->setObjectName(u"Lvw_Frames"_s);
    Lvw_Frames->setItemDelegate(new PictureItems(Lvw_Frames));
    Lvw_Frames->setViewMode(QListView::IconMode);
    Lvw_Frames->setMovement(QListView::Static);
    Lvw_Frames->setResizeMode(QListView::Adjust);
    Lvw_Frames->setIconSize({64, 64});
    Lvw_Frames->setGridSize({92, 80});
    Reserve(Lvw_Frames, {3 * 92 + 30, 3 * 80 + 8});
    for (const FrameTexts::Layout& layout : FrameTexts::Layouts()) {
        auto* item = new QListWidgetItem(Lvw_Frames);
        item->setIcon(Icons::Named(layout.icon));
        item->setData(Qt::UserRole, layout.kind.toString());
        item->setData(Qt::AccessibleTextRole, TipFor(layout.kind));
        item->setToolTip(TipFor(layout.kind));
    }
    connect(Lvw_Frames, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item) m_kind = item->data(Qt::UserRole).toString();
    });
    const auto insert = [this] {
        InsertionPoint::Insert(FrameTexts::For(m_kind));
        Leave();
    };
    connect(Lvw_Frames, &QListWidget::itemDoubleClicked, this, insert);
    auto* Frame1 = new QFrame;
    Frame1->setObjectName(u"Frame1"_s);
    auto* choice = new QVBoxLayout(Frame1);
    choice->setContentsMargins({});
    choice->addWidget(LabelFor(Lvw_Frames, u"Label2"_s, u"Wählen Sie ein Element aus:"_s));
    choice->addWidget(Lvw_Frames, 1);
    Content()->addWidget(Frame1, 1);
    AddControl(0, u"&Einfügen"_s, insert);
    AddControl(1, u"S&chließen"_s, [this] { Leave(); });
    Lvw_Frames->setCurrentRow(0); // what is inserted without a choice
}
