// SPDX-License-Identifier: MIT
#include "insertion/frm_events.h"

#include "platform/literals.h"

#include <QComboBox>
#include <QVBoxLayout>
#include <algorithm>

Frm_Events::Frm_Events()
    : ToolWindow({u"Frm_Events"_s, u"ScriptEvents"_s,
                  u"Mit diesem Tool können Sie die Events der Scriptsprachen einfügen."_s,
                  &Global::EventToolOpen, &Global::EventToolPos}) {
    auto* Cmb_Event = new QComboBox;
    Cmb_Event->setObjectName(u"Cmb_Event"_s);
    Cmb_Event->setAccessibleName(u"Event"_s);
    Cmb_Event->setMinimumContentsLength(18);
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
