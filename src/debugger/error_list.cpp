// SPDX-License-Identifier: MIT
#include "debugger/error_list.h"

#include "debugger/report_model.h"
#include "debugger/row_text.h"
#include "platform/icons.h"
#include "platform/literals.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace {

using Debugger::ReportModel;

constexpr int IconSize = 16;
constexpr qsizetype MostShown = 400; // characters of a row; more fit on no screen

// ErrorIcons, as far as rows use it.
QIcon RowIcon(const QString& key) {
    if (key == u"Error3") return Icons::Named(u"error");
    if (key == u"Alert") return Icons::Named(u"alert");
    if (key == u"Info") return Icons::Named(u"information");
    return {};
}

class RowDelegate : public QStyledItemDelegate {
public:
    explicit RowDelegate(ErrorList* list) : QStyledItemDelegate(list), m_list(list) {}

    // Each of the first two columns draws its part of the same message.
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        if (index.column() == ReportModel::Position)
            return QStyledItemDelegate::paint(painter, option, index);
        const QStyleOptionViewItem row = RowOption(option, index);
        painter->save();
        painter->setClipRect(option.rect, Qt::IntersectClip);
        m_list->style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, m_list);
        painter->restore();
    }

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        if (event->type() != QEvent::ToolTip || !index.isValid()) {
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        }
        const QString text = index.siblingAtColumn(ReportModel::Description).data().toString();
        if (IsCut(option, index, text)) {
            QToolTip::showText(event->globalPos(), Debugger::TipText(text), view->viewport(),
                               m_list->RowRect(index.row()));
        } else {
            QToolTip::hideText();
        }
        return true;
    }

private:
    QStyleOptionViewItem RowOption(const QStyleOptionViewItem& option, const QModelIndex& index) const {
        const QModelIndex first = index.siblingAtColumn(ReportModel::Description);
        QStyleOptionViewItem row = option;
        initStyleOption(&row, first);
        row.text = Debugger::OneLine(first.data().toString(), MostShown);
        row.icon = Untinted(RowIcon(first.data(ReportModel::IconRole).toString()));
        // a row without picture keeps the room for one, so that the messages line up
        row.features |= QStyleOptionViewItem::HasDecoration;
        row.decorationSize = {IconSize, IconSize};
        row.rect = m_list->RowRect(index.row());
        row.viewItemPosition = QStyleOptionViewItem::OnlyOne;
        row.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver); // they would mark one column only
        return row;
    }

    // The same in a selected row, whose tint would take the pictures' contrast.
    QIcon Untinted(const QIcon& icon) const {
        if (icon.isNull()) return icon;
        const QPixmap picture = icon.pixmap({IconSize, IconSize}, m_list->devicePixelRatioF());
        QIcon plain(picture);
        plain.addPixmap(picture, QIcon::Selected);
        return plain;
    }

    bool IsCut(const QStyleOptionViewItem& option, const QModelIndex& index, const QString& text) const {
        if (text.size() > MostShown) return true;
        const QStyleOptionViewItem row = RowOption(option, index);
        const QStyle* style = m_list->style();
        const QRect room = style->subElementRect(QStyle::SE_ItemViewItemText, &row, m_list);
        const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_list) + 1;
        return row.fontMetrics.horizontalAdvance(row.text) > room.width() - 2 * margin;
    }

    ErrorList* m_list;
};

} // namespace

ErrorList::ErrorList(QWidget* parent) : QTableView(parent) {
    setItemDelegate(new RowDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setFrameShape(NoFrame);
    setVerticalScrollMode(ScrollPerItem);
    // The columns reach beyond the window, but there is nothing out there for the user.
    setHorizontalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this,
            [this] { horizontalScrollBar()->setValue(0); });
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    connect(this, &QTableView::clicked, this,
            [this](const QModelIndex& index) { emit RowChosen(index.row()); });
    FitRowHeight();
}

void ErrorList::FitRowHeight() {
    const int height = std::max(IconSize, fontMetrics().height()) + 3;
    verticalHeader()->setMinimumSectionSize(height);
    verticalHeader()->setDefaultSectionSize(height);
}

void ErrorList::SetColumnWidths(int windowWidth) {
    setColumnWidth(ReportModel::Description, windowWidth / 2);
    setColumnWidth(ReportModel::Sort, windowWidth);
}

void ErrorList::SetPicture(const QPixmap& picture) {
    if (picture.isNull()) return;
    QPalette under = viewport()->palette();
    under.setBrush(QPalette::Base, picture);
    viewport()->setPalette(under);
    const QRgb mean =
        picture.toImage().scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0);
    QPalette text = palette();
    text.setColor(QPalette::Text, qGray(mean) < 128 ? Qt::white : Qt::black);
    setPalette(text);
}

void ErrorList::KeepingPlace(const std::function<void()>& change) {
    const int scroll = verticalScrollBar()->value();
    const int row = currentIndex().row();
    change();
    if (currentIndex().row() == row && verticalScrollBar()->value() == scroll) return;
    executeDelayedItemsLayout(); // the range of the scroll bar belongs to the rows before
    if (row >= 0 && row < model()->rowCount()) selectRow(row);
    verticalScrollBar()->setValue(scroll);
}

void ErrorList::ToStart() {
    selectionModel()->clear();
    scrollToTop();
}

QRect ErrorList::RowRect(int row) const {
    return QRect(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
}

void ErrorList::scrollTo(const QModelIndex& index, ScrollHint hint) {
    QTableView::scrollTo(index.siblingAtColumn(ReportModel::Description), hint);
}

void ErrorList::mousePressEvent(QMouseEvent* event) {
    emit AboutToPress();
    QTableView::mousePressEvent(event);
}

void ErrorList::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void ErrorList::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    emit Released();
}

void ErrorList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (currentIndex().isValid()) emit RowChosen(currentIndex().row());
        emit Released();
    } else if (event->key() == Qt::Key_Escape) {
        emit EscapePressed();
    } else {
        QTableView::keyPressEvent(event);
    }
}

void ErrorList::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    // whoever comes by keyboard sees the row that he is on
    if (event->reason() == Qt::MouseFocusReason || selectionModel()->hasSelection()) return;
    if (currentIndex().isValid()) selectRow(currentIndex().row());
}

void ErrorList::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitRowHeight();
}

void ErrorList::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    // a picture stays where it is while the rows move over it
    if (viewport()->palette().brush(QPalette::Base).style() == Qt::TexturePattern) viewport()->update();
}

QModelIndex ErrorList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action == MoveEnd) return model()->index(model()->rowCount() - 1, ReportModel::Description);
    if (action == MoveHome || !currentIndex().isValid()) return model()->index(0, ReportModel::Description);
    if (action == MoveUp || action == MoveDown || action == MovePageUp || action == MovePageDown) {
        return QTableView::moveCursor(action, modifiers).siblingAtColumn(ReportModel::Description);
    }
    return currentIndex();
}
