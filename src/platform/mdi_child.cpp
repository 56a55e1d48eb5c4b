// SPDX-License-Identifier: MIT
#include "platform/mdi_child.h"

#include "platform/twips.h"

#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <cmath>

namespace {
QPointer<QMdiArea>& HostArea() {
    static QPointer<QMdiArea> area;
    return area;
}
} // namespace

void MdiChild::SetHost(QMdiArea* host) { HostArea() = host; }

QMdiArea* MdiChild::Host() { return HostArea(); }

QWidget* MdiChild::HostWindow() { return HostArea() ? HostArea()->window() : nullptr; }

MdiChild::MdiChild() {
    if (!HostArea()) {
        installEventFilter(this);
        return;
    }
    m_frame = new QMdiSubWindow(HostArea());
    m_frame->setAttribute(Qt::WA_DeleteOnClose, false);
    m_frame->setWidget(this);
    m_frame->setMinimumSize(80, 40);
    // the frame's own menu must not take keys that are commands of the program
    for (QAction* action : m_frame->systemMenu()->actions()) action->setShortcuts(QList<QKeySequence>());
    HostArea()->addSubWindow(m_frame);
    m_frame->hide();
    m_frame->installEventFilter(this);
    connect(m_frame, &QMdiSubWindow::aboutToActivate, this, [this] {
        // the area activates a window before it has the focus; the routine wants to find it active
        QMetaObject::invokeMethod(
            this,
            [this] {
                // by now it may have ended its life
                if (IsShown() && IsActiveChild()) Activated();
            },
            Qt::QueuedConnection);
    });
    connect(m_frame, &QMdiSubWindow::windowStateChanged, this,
            [this](Qt::WindowStates before, Qt::WindowStates now) {
                const Qt::WindowStates kinds = Qt::WindowMaximized | Qt::WindowMinimized;
                if ((before & kinds) != (now & kinds)) PlaceChanged(State());
                if ((before & Qt::WindowActive) && !(now & Qt::WindowActive)) Deactivated();
            });
}

QWidget* MdiChild::Frame() const {
    if (m_frame) return m_frame;
    return const_cast<MdiChild*>(this);
}

void MdiChild::SetPlace(int left, int top, int width, int height) {
    m_placing = true;
    m_place = {left, top, width, height};
    // Both edges are cut to whole pixels, so that neighbours meet without a gap and no window reaches beyond
    // the client area by part of a pixel.
    const auto edge = [](int twips) { return static_cast<int>(std::floor(double(twips) / Twips::PerPixel)); };
    const int x = edge(left);
    const int y = edge(top);
    Frame()->setGeometry(x, y, std::max(1, edge(left + width) - x), std::max(1, edge(top + height) - y));
    m_placing = false;
    PlaceChanged(State());
}

void MdiChild::TakePlace() {
    if (m_placing || State() != 0) return;
    const QRect place = Frame()->geometry();
    m_place = {Twips::FromPixels(place.x()), Twips::FromPixels(place.y()), Twips::FromPixels(place.width()),
               Twips::FromPixels(place.height())};
}

int MdiChild::State() const {
    if (Frame()->isMinimized()) return 1;
    return Frame()->isMaximized() ? 2 : 0;
}

void MdiChild::SetNormalState() {
    if (State() != 0)
        Frame()->setWindowState(Frame()->windowState() & ~(Qt::WindowMaximized | Qt::WindowMinimized));
}

void MdiChild::ShowMaximizedState() { Frame()->showMaximized(); }

bool MdiChild::IsShown() const { return Frame()->isVisible(); }

bool MdiChild::IsActiveChild() const { return !m_frame || HostArea()->activeSubWindow() == m_frame; }

void MdiChild::BringToFront() {
    if (Frame()->isMinimized()) SetNormalState();
    Frame()->show();
    show();
    Frame()->raise();
    if (m_frame) {
        HostArea()->setActiveSubWindow(m_frame);
    } else {
        activateWindow();
    }
}

void MdiChild::SetCaption(const QString& caption, const QIcon& icon) {
    Frame()->setWindowTitle(caption);
    setWindowTitle(caption);
    if (!icon.isNull()) Frame()->setWindowIcon(icon);
}

void MdiChild::closeEvent(QCloseEvent* event) {
    event->accept();
    if (unloadSelf) unloadSelf();
}

bool MdiChild::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Frame()) {
        if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
            TakePlace();
            if (event->type() == QEvent::Resize && !m_placing) PlaceChanged(State());
        } else if (event->type() == QEvent::Close && m_frame) {
            // the frame's close button ends the window's life
            event->ignore();
            if (unloadSelf) unloadSelf();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
