// SPDX-License-Identifier: MIT
#include "insertion/frm_list.h"

#include "documents/insertion_point.h"
#include "insertion/insert_texts.h"
#include "platform/literals.h"

#include <QComboBox>
#include <QCompleter>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

Frm_List::Frm_List()
    : ToolDialog(u"Frm_List"_s, u"Liste"_s,
                 u"Dieses Werkzeug fügt geordnete oder ungeordnete Listen in Ihre Seite ein. Wählen Sie ein "
                 u"Listentyp und "
                 "ein Zeichen aus. Sie können für eine geordnete Liste einen Startwert eingeben. Dieser muss "
                 "eine Zahl "
                 "sein."_s),
      Opt_ListType_0(new QRadioButton(u"geordnet"_s)), Opt_ListType_1(new QRadioButton(u"ungeordnet"_s)),
      Cmb_ListType(new QComboBox), Txt_Start(new QLineEdit) {
    SetHeading(u"insert_list", u"Liste einfügen..."_s);
    Opt_ListType_0->setObjectName(u"Opt_ListType_0"_s);
    Opt_ListType_1->setObjectName(u"Opt_ListType_1"_s);
    Cmb_ListType->setObjectName(u"Cmb_ListType"_s);
    Cmb_ListType->setEditable(true);
    Cmb_ListType->completer()->setCaseSensitivity(Qt::CaseSensitive); // "A" is another sign than "a"
    Txt_Start->setObjectName(u"Txt_Start"_s);
    Content()->addWidget(Opt_ListType_0);
    Content()->addWidget(Opt_ListType_1);
    auto* form = new QFormLayout;
    form->addRow(LabelFor(Cmb_ListType, u"Lbl_ListType"_s, u"Zeichen:"_s), Cmb_ListType);
    form->addRow(LabelFor(Txt_Start, u"Lbl_Start"_s, u"Startwert:"_s), Txt_Start);
    Content()->addLayout(form);
    AddControl(0, u"&Einfügen"_s, [this] { Insert(); });
    AddControl(1, u"S&chließen"_s, [this] { Leave(); });
    connect(Opt_ListType_0, &QRadioButton::toggled, this, &Frm_List::Opt_ListType_Click);
    Opt_ListType_0->setChecked(true);
}

void Frm_List::Opt_ListType_Click(bool ordered) {
    Cmb_ListType->clear();
    Cmb_ListType->addItems(ordered ? QStringList{u"1"_s, u"a"_s, u"A"_s, u"i"_s, u"I"_s}
                                   : QStringList{u"disc"_s, u"square"_s, u"circle"_s});
    Txt_Start->setEnabled(ordered);
    if (!ordered) Txt_Start->clear();
}

void Frm_List::Insert() {
    InsertionPoint::Insert(
        InsertTexts::List(Opt_ListType_0->isChecked(), Cmb_ListType->currentText(), Txt_Start->text()));
    Leave();
}
