// SPDX-License-Identifier: MIT
#include "insertion/frm_table_options.h"

#include "insertion/frm_table.h"
#include "platform/literals.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {
constexpr int Borders[] = {0, 1, 5};
} // namespace

Frm_TableOptions::Frm_TableOptions()
    : ToolDialog(u"Frm_TableOptions"_s, u"Tabellenoptionen"_s, {}), Txt_Width(new QLineEdit),
      Txt_Height(new QLineEdit), Txt_BackColor(new QLineEdit), Cmb_Default(new QComboBox) {
    auto* frame = new QGroupBox(u"Rahmen"_s);
    frame->setObjectName(u"Frame1"_s);
    auto* choices = new QHBoxLayout(frame);
    const QString captions[] = {u"kein"_s, u"dünn"_s, u"3-D"_s};
    for (int i = 0; i < 3; ++i) {
        Opt_Frame[i] = new QRadioButton(captions[i]);
        Opt_Frame[i]->setObjectName(u"Opt_Frame_"_s + QString::number(i));
        choices->addWidget(Opt_Frame[i]);
    }
    Txt_Width->setObjectName(u"Txt_Width"_s);
    Txt_Height->setObjectName(u"Txt_Height"_s);
    Txt_BackColor->setObjectName(u"Txt_BackColor"_s);
    Cmb_Default->setObjectName(u"Cmb_Default"_s);
    Cmb_Default->setEditable(true);
    Cmb_Default->setCompleter(nullptr); // what is typed stands, and not an entry that begins like it
    Cmb_Default->addItems({QString(), u"&nbsp;"_s});
    auto* form = new QFormLayout;
    form->addRow(LabelFor(Txt_Width, u"Lbl_Width"_s, u"Breite:"_s), Txt_Width);
    form->addRow(LabelFor(Txt_Height, u"Lbl_Height"_s, u"Höhe:"_s), Txt_Height);
    form->addRow(LabelFor(Txt_BackColor, u"Lbl_BackColor"_s, u"Hintergrundfarbe:"_s), Txt_BackColor);
    form->addRow(LabelFor(Cmb_Default, u"Lbl_Default"_s, u"Leeres Feld:"_s), Cmb_Default);
    Content()->addWidget(frame);
    Content()->addLayout(form);
    AddControl(0, u"S&chließen"_s, [this] { Take(); })->setObjectName(u"Cmd_Control"_s);
    Opt_Frame[0]->setChecked(true);
    if (Loaded<Frm_Table>()) Show(Shared<Frm_Table>().Look());
}

void Frm_TableOptions::Show(const TableLook& look) {
    for (int i = 0; i < 3; ++i) Opt_Frame[i]->setChecked(Borders[i] == look.border);
    Txt_Width->setText(look.width);
    Txt_Height->setText(look.height);
    Txt_BackColor->setText(look.background);
    Cmb_Default->setEditText(look.emptyCell);
}

TableLook Frm_TableOptions::Look() const {
    TableLook look;
    for (int i = 0; i < 3; ++i) {
        if (Opt_Frame[i]->isChecked()) look.border = Borders[i];
    }
    look.background = Txt_BackColor->text();
    look.width = Txt_Width->text();
    look.height = Txt_Height->text();
    look.emptyCell = Cmb_Default->currentText();
    return look;
}

void Frm_TableOptions::Take() {
    if (Loaded<Frm_Table>()) Shared<Frm_Table>().GetOptions();
    Leave();
}
