// SPDX-License-Identifier: MIT
#include "insertion/frm_events.h"

#include "platform/literals.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>

namespace {

// Each choice writes into the document at once. So only its open list chooses: the wheel passes over the box,
// and keys that would step through the closed one open it.
class ChoiceBox : public QComboBox {
protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
    void keyPressEvent(QKeyEvent* event) override {
        const bool steps = event->key() >= Qt::Key_Home && event->key() <= Qt::Key_PageDown;
        const bool plain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
        const bool letter = plain && !event->text().isEmpty() && event->text().at(0).isLetter();
        if (!steps && !letter) return QComboBox::keyPressEvent(event);
        showPopup();
        if (letter) QCoreApplication::sendEvent(view(), event);
    }
};

} // namespace

Frm_Events::Frm_Events()
    : ToolWindow({u"Frm_Events"_s, u"ScriptEvents"_s,
                  u"Mit diesem Tool können Sie die Events der Scriptsprachen einfügen."_s,
                  &Global::EventToolOpen, &Global::EventToolPos}) {
    auto* Cmb_Event = new ChoiceBox;
    Cmb_Event->setObjectName(u"Cmb_Event"_s);
    Cmb_Event->setAccessibleName(u"Event"_s);
    Cmb_Event->setMinimumContentsLength(18);
    Cmb_Event->setMaxVisibleItems(16);
    Cmb_Event->setStyleSheet(u"combobox-popup: 0"_s); // a list with a scroll bar, not as high as the screen
    const size_t count =
        std::min<size_t>(Global::EventNameList[0].toUInt(), Global::EventNameList.size() - 1);
    for (size_t i = 1; i <= count; ++i) Cmb_Event->addItem(Global::EventNameList[i]);
    Cmb_Event->setCurrentIndex(-1);
    Cmb_Event->setPlaceholderText(u"Event wählen"_s);
    connect(Cmb_Event, &QComboBox::textActivated, this, [this](const QString& name) { Insert(name); });
    auto* all = new QVBoxLayout(this);
    all->addWidget(Cmb_Event);
    all->setSizeConstraint(QLayout::SetFixedSize);
}
