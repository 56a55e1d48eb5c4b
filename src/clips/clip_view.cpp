// SPDX-License-Identifier: MIT
#include "clips/clip_view.h"

#include "clips/clip_folder.h"
#include "clips/clip_sheet.h"
#include "clips/thumbnail_loader.h"
#include "documents/paths.h"
#include "platform/icons.h"
#include "platform/literals.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

namespace {

constexpr int PixmapMemory = 24 << 20; // bytes
constexpr qreal Faded = 0.25;          // of a picture that stands for another file
constexpr int PageRows = 4;

// Pictures for pages lie on white, as on most pages; a dark desktop would swallow their lines.
const QColor Ground(Qt::white);

} // namespace

ClipView::ClipView(QWidget* parent)
    : QWidget(parent), m_pixmaps(PixmapMemory), m_loader(new ThumbnailLoader(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    connect(m_loader, &ThumbnailLoader::Loaded, this, &ClipView::Take);
    TellReaders();
}

void ClipView::Show(const QString& folder, const QStringList& names) {
    m_folder = folder;
    m_clips.clear();
    m_clips.reserve(names.size());
    for (const QString& name : names) m_clips.append({name, {}});
    m_pixmaps.clear();
    m_known = 0;
    m_chosen = -1;
    QStringList paths;
    paths.reserve(names.size());
    for (qsizetype i = 0; i < names.size(); ++i) paths << PathOf(i);
    resize(ClipSheet::Width, ClipSheet::Height(ClipSheet::LastRow(Count())));
    m_loader->Start(paths, std::max(1.0, devicePixelRatioF()));
    TellReaders();
    update();
}

QString ClipView::PathOf(qsizetype index) const {
    return index < 0 || index >= Count() ? QString() : Clips::PathIn(m_folder, m_clips[index].name);
}

QSize ClipView::SizeOf(qsizetype index) const {
    return index < 0 || index >= Count() ? QSize() : m_clips[index].size;
}

QRect ClipView::RoomOf(qsizetype index) const {
    return {ClipSheet::LabelPlace(index).x(), ClipSheet::Selection(index).top(), ClipSheet::LabelWidth,
            ClipSheet::Selection(index).height()};
}

void ClipView::Choose(qsizetype index) {
    if (index < 0 || index >= Count()) return;
    if (m_chosen >= 0) update(RoomOf(m_chosen));
    m_chosen = index;
    update(RoomOf(m_chosen));
    TellReaders();
    emit ChosenChanged();
}

void ClipView::TellReaders() {
    setAccessibleName(
        m_chosen < 0 ? u"Bilder: %1"_s.arg(Count())
                     : u"%1, Bild %2 von %3"_s.arg(m_clips[m_chosen].name).arg(m_chosen + 1).arg(Count()));
}

// --- thumbnails
// ----------------------------------------------------------------------------------------------

void ClipView::Take(qsizetype index, const Pictures::Picture& picture) {
    Clip& clip = m_clips[index];
    clip.painted = !picture.image.isNull();
    clip.size = picture.size;
    if (clip.painted) {
        auto* pixmap = new QPixmap(QPixmap::fromImage(picture.image));
        m_pixmaps.insert(index, pixmap, pixmap->width() * pixmap->height() * 4 + 1);
    }
    // what stands behind it may show it, too
    const bool followed = index + 1 < Count() && m_clips[index + 1].known && !m_clips[index + 1].painted;
    followed ? update() : update(RoomOf(index));
    if (std::exchange(clip.known, true)) return;
    ++m_known;
    emit SizeKnown(index);
    emit Filled(static_cast<int>(100 * m_known / Count()));
}

QPixmap ClipView::PixmapOf(qsizetype index) {
    if (const QPixmap* pixmap = m_pixmaps.object(index)) return *pixmap;
    m_loader->Again(index);
    return {};
}

// The picture that was loaded last when a sheet is filled from the first file on; -1 while that is not known.
qsizetype ClipView::LastGood(qsizetype index) const {
    for (; index >= 0; --index) {
        if (!m_clips[index].known) return -1;
        if (m_clips[index].painted) return index;
    }
    return -1;
}

// --- drawing
// -------------------------------------------------------------------------------------------------

void ClipView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const int top = std::max(0, event->rect().top() / 80 - 1);
    const qsizetype first = qsizetype(top) * ClipSheet::Columns;
    const qsizetype last =
        std::min(Count() - 1, qsizetype(event->rect().bottom() / 80 + 1) * ClipSheet::Columns - 1);
    const QRect shown = visibleRegion().boundingRect();
    m_loader->Prefer(qsizetype(shown.top() / 80) * ClipSheet::Columns,
                     qsizetype(shown.bottom() / 80 + 1) * ClipSheet::Columns - 1);
    for (qsizetype index = first; index <= last; ++index) PaintClip(painter, index);
    if (m_chosen >= 0) PaintSelection(painter);
}

void ClipView::PaintClip(QPainter& painter, qsizetype index) {
    const QRect frame = ClipSheet::Frame(index);
    painter.fillRect(frame, Ground);
    const Clip& clip = m_clips[index];
    const qsizetype shown = clip.known ? LastGood(index) : -1;
    if (shown >= 0) {
        const QPixmap pixmap = PixmapOf(shown);
        painter.setOpacity(shown == index ? 1 : Faded);
        const QSize size = ClipSheet::ThumbnailSize(m_clips[shown].size);
        if (!pixmap.isNull()) painter.drawPixmap(ClipSheet::Thumbnail(index, size), pixmap);
        painter.setOpacity(1);
    }
    const bool labelled = !ClipSheet::IsPictureKind(clip.name);
    if (clip.known && !clip.painted && !labelled) {
        Icons::Named(u"picture_missing").paint(&painter, ClipSheet::Thumbnail(index, {24, 24}));
    }
    if (labelled) PaintLabel(painter, index);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame.adjusted(0, 0, -1, -1));
}

void ClipView::PaintLabel(QPainter& painter, qsizetype index) const {
    const QString text = u"ungültiger Dateityp"_s;
    const QRect room(ClipSheet::LabelPlace(index),
                     QSize(ClipSheet::LabelWidth, 2 * fontMetrics().height() + 2));
    const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
    const QRect written = painter.boundingRect(room, flags, text).adjusted(-2, 0, 2, 1);
    QColor ground = Ground;
    ground.setAlpha(225);
    painter.fillRect(written, ground);
    painter.setPen(Qt::black);
    painter.drawText(room, flags, text);
}

void ClipView::PaintSelection(QPainter& painter) const {
    const QColor color =
        palette().color(hasFocus() ? QPalette::Active : QPalette::Inactive, QPalette::Highlight);
    painter.setPen(QPen(color, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(ClipSheet::Selection(m_chosen).adjusted(1, 1, -1, -1));
    painter.setPen(QPen(color, 1));
    painter.drawRect(ClipSheet::Frame(m_chosen).adjusted(0, 0, -1, -1));
}

// --- mouse and keys
// ------------------------------------------------------------------------------------------

void ClipView::mousePressEvent(QMouseEvent* event) {
    const qsizetype index = ClipSheet::IndexAt(event->position().toPoint(), Count());
    if (index < 0) return QWidget::mousePressEvent(event);
    Choose(index);
    if (event->button() == Qt::RightButton) emit PreviewWanted();
}

void ClipView::mouseDoubleClickEvent(QMouseEvent* event) {
    const bool chosen = ClipSheet::IndexAt(event->position().toPoint(), Count()) == m_chosen;
    if (m_chosen >= 0 && chosen && event->button() == Qt::LeftButton) emit PreviewWanted();
}

void ClipView::Walk(qsizetype step) {
    if (Count() == 0) return;
    Choose(m_chosen < 0 ? 0 : std::clamp<qsizetype>(m_chosen + step, 0, Count() - 1));
}

void ClipView::keyPressEvent(QKeyEvent* event) {
    constexpr qsizetype Page = qsizetype(PageRows) * ClipSheet::Columns;
    // upwards and downwards in the column, and no further than its end
    const auto climb = [this](qsizetype step) {
        const qsizetype to = m_chosen + step;
        if (m_chosen < 0 || (to >= 0 && to < Count())) return Walk(step);
        if (std::abs(step) != ClipSheet::Columns) Walk(step);
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return Walk(-1);
    case Qt::Key_Right:
        return Walk(1);
    case Qt::Key_Up:
        return climb(-ClipSheet::Columns);
    case Qt::Key_Down:
        return climb(ClipSheet::Columns);
    case Qt::Key_PageUp:
        return climb(-Page);
    case Qt::Key_PageDown:
        return climb(Page);
    case Qt::Key_Home:
        return Walk(-Count());
    case Qt::Key_End:
        return m_chosen < 0 ? Choose(Count() - 1) : Walk(Count());
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (m_chosen >= 0) emit PreviewWanted();
        return;
    case Qt::Key_Delete:
        if (m_chosen >= 0) emit RemovalWanted();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ClipView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void ClipView::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

bool ClipView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const qsizetype index = ClipSheet::IndexAt(help->pos(), Count());
    const QString name = index < 0 ? QString() : m_clips[index].name;
    QToolTip::showText(help->globalPos(), Qt::mightBeRichText(name) ? name.toHtmlEscaped() : name, this);
    return true;
}
