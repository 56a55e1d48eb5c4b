// SPDX-License-Identifier: MIT
#include "insertion/button_bar.h"

#include "platform/icons.h"
#include "platform/literals.h"

#include <QKeyEvent>
#include <QToolButton>
#include <algorithm>

namespace {
constexpr QSize ButtonSize(23, 22); // pixels
constexpr int IconSize = 16;
} // namespace

ButtonBar::ButtonBar(const QString& name, QWidget* parent) : QWidget(parent) { setObjectName(name); }

void ButtonBar::Add(QStringView key, QStringView tip, QStringView icon, std::function<void()> press) {
    auto* button = new QToolButton(this);
    button->setObjectName(objectName() + u'_' + key);
    button->setIcon(Icons::Named(icon));
    button->setIconSize({IconSize, IconSize});
    button->setToolTip(tip.toString());
    button->setAccessibleName(tip.toString());
    button->setAutoRaise(true);
    // one of them is reached by Tab; a click leaves the focus where it is
    button->setFocusPolicy(m_buttons.isEmpty() ? Qt::TabFocus : Qt::NoFocus);
    button->installEventFilter(this);
    connect(button, &QToolButton::clicked, this, [press = std::move(press)] { press(); });
    m_buttons.append(button);
}

QSize ButtonBar::minimumSizeHint() const { return ButtonSize; }

int ButtonBar::Columns() const { return std::max(1, width() / ButtonSize.width()); }

void ButtonBar::resizeEvent(QResizeEvent*) {
    for (int i = 0; i < m_buttons.size(); ++i) {
        const QPoint place(i % Columns() * ButtonSize.width(), i / Columns() * ButtonSize.height());
        m_buttons[i]->setGeometry(QRect(place, ButtonSize));
    }
}

bool ButtonBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const int step = [&] {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Left:
            return -1;
        case Qt::Key_Right:
            return 1;
        case Qt::Key_Up:
            return -Columns();
        case Qt::Key_Down:
            return Columns();
        default:
            return 0;
        }
    }();
    if (step == 0) return QWidget::eventFilter(watched, event);
    const auto at = m_buttons.indexOf(static_cast<QToolButton*>(watched)) + step;
    if (at >= 0 && at < m_buttons.size()) m_buttons[at]->setFocus(Qt::TabFocusReason);
    return true;
}
