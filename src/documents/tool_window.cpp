// SPDX-License-Identifier: MIT
#include "documents/tool_window.h"

#include "documents/insertion_point.h"
#include "platform/literals.h"
#include "platform/mdi_child.h"
#include "platform/screen_place.h"
#include "state/neighbours.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <algorithm>

namespace {

// How long after a click the desktop may still make the clicked window the active one; milliseconds.
constexpr int LateActivation = 500;

bool IsModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr ||
           key == Qt::Key_Meta;
}

} // namespace

ToolWindow::ToolWindow(ToolKind kind) : QWidget(MdiChild::HostWindow(), Qt::Tool), m_kind(std::move(kind)) {
    setObjectName(m_kind.name);
    setWindowTitle(m_kind.caption);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocus(); // its controls take keys only when their user goes to them
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
    m_wentBack.start();
    setFocus();
    if (parentWidget()) parentWidget()->activateWindow();
    Neighbours::FocusCode();
}

QAbstractButton* ToolWindow::ButtonFor(const QKeyEvent& event) const {
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return qobject_cast<QAbstractButton*>(focusWidget());
    const QList<QAbstractButton*> buttons = findChildren<QAbstractButton*>();
    const auto meant = [&](const QAbstractButton* button) {
        return !button->shortcut().isEmpty() && button->shortcut() == QKeySequence(event.keyCombination());
    };
    const auto button = std::ranges::find_if(buttons, meant);
    return button == buttons.end() ? nullptr : *button;
}

bool ToolWindow::event(QEvent* event) {
    // The access keys of the window that has the keys win over those of the main window's menus.
    if (event->type() == QEvent::ShortcutOverride && ButtonFor(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    const bool handled = QWidget::event(event);
    const bool late = event->type() == QEvent::WindowActivate && m_wentBack.isValid() &&
                      m_wentBack.elapsed() < LateActivation;
    if (late && parentWidget()) parentWidget()->activateWindow();
    return handled;
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

// Esc goes back to the code, and so does what is typed and no control wants; the window stays.
void ToolWindow::keyPressEvent(QKeyEvent* event) {
    if (QAbstractButton* button = ButtonFor(*event)) return button->click();
    if (IsModifier(event->key()) || !Global::CodeWindowOpen) return QWidget::keyPressEvent(event);
    BackToCode();
    QWidget* code = parentWidget() ? parentWidget()->focusWidget() : nullptr;
    if (code && !event->matches(QKeySequence::Cancel)) QCoreApplication::sendEvent(code, event);
}
