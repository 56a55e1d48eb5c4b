// SPDX-License-Identifier: MIT
#include "insertion/frm_insert_style.h"

#include "documents/insertion_point.h"
#include "insertion/style_list.h"
#include "platform/literals.h"
#include "state/lists.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

Frm_InsertStyle::Frm_InsertStyle()
    : ToolDialog(u"Frm_InsertStyle"_s, u"Syle einfügen"_s, // the spelling is meant to stay
                 u"Mit diesem Werkzeug können Sie Styles einfügen. Erstellen Sie zuerst die Style-Definition "
                 u"indem Sie auf "
                 "'Style-Tag einfügen' klicken. Wählen Sie dann ein Element aus, markieren die Attribute, "
                 "die Sie haben "
                 "möchten, und geben Sie die Werte ein. Klicken Sie auf Einfügen und Wiederholen Sie diesen "
                 "Vorgang mit "
                 "einem anderen Element."_s),
      Cmb_Object(new QComboBox), Lst_AllAttributes(new QListWidget), Txt_AttributeValue(new QLineEdit),
      Chk_Option_0(new QCheckBox(u"Nur eine Zeile ohne Tag und geschweifte Klammern erstellen."_s)),
      Chk_Option_1(new QCheckBox(u"Mehrere Zeilen ohne Tag und geschweifte Klammern erstellen."_s)),
      m_entries(Lst_AllAttributes, Txt_AttributeValue) {
    SetHeading(u"insert_style", u"Styleelement einfügen..."_s);
    Cmb_Object->setObjectName(u"Cmb_Object"_s);
    Cmb_Object->setEditable(true);
    Cmb_Object->setInsertPolicy(QComboBox::NoInsert);
    Cmb_Object->setCompleter(nullptr); // "b" is an element of its own and not the beginning of "body"
    Lst_AllAttributes->setObjectName(u"Lst_AllAttributes"_s);
    Lst_AllAttributes->setAccessibleName(u"Attribute"_s);
    Lst_AllAttributes->setSelectionMode(QAbstractItemView::ExtendedSelection);
    Reserve(Lst_AllAttributes, {380, 190});
    Txt_AttributeValue->setObjectName(u"Txt_AttributeValue"_s);
    Chk_Option_0->setObjectName(u"Chk_Option_0"_s);
    Chk_Option_1->setObjectName(u"Chk_Option_1"_s);
    connect(Chk_Option_0, &QCheckBox::clicked, this, [this](bool on) {
        if (on) Chk_Option_1->setChecked(false);
    });
    connect(Chk_Option_1, &QCheckBox::clicked, this, [this](bool on) {
        if (on) Chk_Option_0->setChecked(false);
    });
    Content()->addWidget(LabelFor(Cmb_Object, u"Lbl_Object"_s, u"Wählen Sie ein Element aus:"_s));
    Content()->addWidget(Cmb_Object);
    Content()->addWidget(Lst_AllAttributes, 1);
    Content()->addWidget(LabelFor(Txt_AttributeValue, u"Lbl_AttributeValue"_s, u"Wert:"_s));
    Content()->addWidget(Txt_AttributeValue);
    Content()->addWidget(Chk_Option_0);
    Content()->addWidget(Chk_Option_1);
    AddControl(0, u"&Einfügen"_s, [this] { Insert(); });
    AddControl(1, u"S&chließen"_s, [this] { Leave(); });
}

void Frm_InsertStyle::OnLoad() {
    const StyleList::Reading objects = StyleList::Objects();
    Cmb_Object->addItems(objects.entries);
    connect(Cmb_Object, &QComboBox::editTextChanged, this, &Frm_InsertStyle::Cmb_Object_Change);
    Cmb_Object_Change();
    Cmb_Object->lineEdit()->selectAll();
    if (!objects.whole) Lists::TellBroken(u"styles.lst"_s);
}

void Frm_InsertStyle::Cmb_Object_Change() {
    Lst_AllAttributes->clear();
    Txt_AttributeValue->clear();
    Lst_AllAttributes->addItems(StyleList::EntriesOf(Cmb_Object->currentText()).entries);
}

void Frm_InsertStyle::Insert() {
    QStringList entries;
    for (int row = 0; row < Lst_AllAttributes->count(); ++row) {
        if (Lst_AllAttributes->item(row)->isSelected()) entries << Lst_AllAttributes->item(row)->text();
    }
    using InsertTexts::RuleForm;
    const RuleForm form = Chk_Option_1->isChecked()   ? RuleForm::Lines
                          : Chk_Option_0->isChecked() ? RuleForm::OneLine
                                                      : RuleForm::Rule;
    InsertionPoint::Insert(InsertTexts::StyleRule(Cmb_Object->currentText(), entries, form));
    Lst_AllAttributes->clearSelection();
    Lst_AllAttributes->setCurrentItem(nullptr);
    Txt_AttributeValue->clear();
}
