// SPDX-License-Identifier: MIT
#include "documents/tool_window.h"

#include "documents/insertion_point.h"
#include "platform/literals.h"
#include "platform/mdi_child.h"
#include "platform/screen_place.h"
#include "state/neighbours.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <algorithm>

namespace {
QWidget* MainWindow() { return MdiChild::Host() ? MdiChild::Host()->window() : nullptr; }
} // namespace

ToolWindow::ToolWindow(ToolKind kind) : QWidget(MainWindow(), Qt::Tool), m_kind(std::move(kind)) {
    setObjectName(m_kind.name);
    setWindowTitle(m_kind.caption);
    setAttribute(Qt::WA_ShowWithoutActivating);
}

void ToolWindow::OnLoad() {
    *m_kind.open = true;
    if (Global::AssistantOpen) Neighbours::RunAnimation(1, m_kind.line);
    if (m_kind.preset.isEmpty()) adjustSize(); // to what it holds
    ToolPlace::Restore(*this, *m_kind.place, m_kind.keeps, m_kind.preset);
    StepAside();
}

void ToolWindow::OnUnload() {
    if (Global::AssistantOpen) Neighbours::RunAnimation(0, {});
    *m_kind.open = false;
    ToolPlace::Store(*this, *m_kind.place, m_kind.keeps);
}

void ToolWindow::Present() {
    show();
    raise();
}

void ToolWindow::StepAside() {
    if (!parentWidget()) return;
    auto others = parentWidget()->findChildren<ToolWindow*>(Qt::FindDirectChildrenOnly);
    erase_if(others, [](const ToolWindow* other) { return !other->isVisible(); });
    std::ranges::sort(others, {}, &QWidget::y);
    for (const ToolWindow* other : others) {
        if ((other->pos() - pos()).manhattanLength() <= 2) move(x(), other->frameGeometry().bottom() + 5);
    }
    move(FittedToScreen(frameGeometry()).topLeft());
}

void ToolWindow::BackToCode() {
    if (parentWidget()) parentWidget()->activateWindow();
    Neighbours::FocusCode();
}

void ToolWindow::Wrap(const QString& before, const QString& after) {
    if (InsertionPoint::Wrap(before, after)) BackToCode();
}

void ToolWindow::Insert(const QString& text) {
    if (InsertionPoint::Insert(text)) BackToCode();
}

void ToolWindow::closeEvent(QCloseEvent* event) {
    event->accept();
    if (unloadSelf) unloadSelf();
}

// Esc goes back to the code; the window stays.
void ToolWindow::keyPressEvent(QKeyEvent* event) {
    if (!event->matches(QKeySequence::Cancel)) return QWidget::keyPressEvent(event);
    BackToCode();
}
