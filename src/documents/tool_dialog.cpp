// SPDX-License-Identifier: MIT
#include "documents/tool_dialog.h"

#include "platform/icons.h"
#include "platform/literals.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace {
constexpr int PictureSize = 48; // pixels
constexpr int LeastHeight = 60; // of a control for which room is reserved
constexpr int RestHeight = 250; // of the dialog around it, with its frame
} // namespace

ToolDialog::ToolDialog(const QString& name, const QString& caption, QString line)
    : m_line(std::move(line)), m_heading(new QHBoxLayout), m_content(new QVBoxLayout),
      m_controls(new QHBoxLayout) {
    setObjectName(name);
    setWindowTitle(caption);
    auto* all = new QVBoxLayout(this);
    all->setSpacing(12);
    all->addLayout(m_heading);
    all->addLayout(m_content, 1);
    all->addLayout(m_controls);
    m_controls->addStretch();
}

void ToolDialog::SetHeading(QStringView picture, const QString& heading) {
    auto* image = new QLabel;
    image->setObjectName(u"Pic_InsertPicture"_s);
    image->setPixmap(Icons::Named(picture).pixmap(PictureSize, PictureSize));
    auto* text = new QLabel(heading);
    text->setObjectName(u"Label1"_s);
    QFont font = text->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    font.setBold(true);
    text->setFont(font);
    m_heading->addWidget(image);
    m_heading->addSpacing(8);
    m_heading->addWidget(text, 1);
}

QLabel* ToolDialog::LabelFor(QWidget* control, const QString& name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(name);
    label->setBuddy(control);
    if (control->accessibleName().isEmpty())
        control->setAccessibleName(QString(text).remove(u'&').remove(u':'));
    return label;
}

void ToolDialog::Reserve(QWidget* control, QSize wanted) const {
    const int room = std::max(LeastHeight, screen()->availableGeometry().height() - RestHeight);
    control->setMinimumSize(wanted.width(), std::min(wanted.height(), room));
}

QPushButton* ToolDialog::AddControl(int index, const QString& caption, std::function<void()> press) {
    auto* button = new QPushButton(caption);
    button->setObjectName(u"Cmd_Control_"_s + QString::number(index));
    button->setAutoDefault(false);
    if (m_controls->count() == 1) button->setDefault(true);
    connect(button, &QPushButton::clicked, this, [press = std::move(press)] { press(); });
    m_controls->addWidget(button);
    return button;
}

void ToolDialog::Leave() {
    if (unloadSelf) unloadSelf();
}

bool ToolDialog::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && Global::AssistantOpen && !m_line.isEmpty()) {
        Neighbours::RunAnimation(1, m_line);
    }
    return QDialog::event(event);
}
