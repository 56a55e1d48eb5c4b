// SPDX-License-Identifier: MIT
#include "insertion/frm_meta_tags.h"

#include "documents/insertion_point.h"
#include "platform/literals.h"
#include "state/global.h"
#include "state/lists.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

Frm_MetaTags::Frm_MetaTags()
    : ToolDialog(
          u"Frm_MetaTags"_s, u"Metatags"_s,
          u"Mit diesem Tool können Sie Metatags einfügen. Klicken Sie auf ein Attribut, das Sie einfügen "
          u"möchten und "
          "schreiben Sie einen Wert in das Textfeld. Wenn Sie auf 'Einfügen' klicken werden alle Attribute "
          "eingetragen, die mit einem Häkchen gekennzeichnet sind."_s),
      Lst_Attributes(new QListWidget), Txt_AttributeValue(new QLineEdit),
      m_entries(Lst_Attributes, Txt_AttributeValue) {
    SetHeading(u"insert_meta", u"Metatags einfügen..."_s);
    Lst_Attributes->setObjectName(u"Lst_Attributes"_s);
    Reserve(Lst_Attributes, {340, 190});
    Txt_AttributeValue->setObjectName(u"Txt_AttributeValue"_s);
    Content()->addWidget(
        LabelFor(Lst_Attributes, u"Lbl_Attributes"_s, u"Klicken Sie die benötigten Attribute an:"_s));
    Content()->addWidget(Lst_Attributes, 1);
    Content()->addWidget(LabelFor(Txt_AttributeValue, u"Lbl_AttributeValue"_s, u"Wert:"_s));
    Content()->addWidget(Txt_AttributeValue);
    AddControl(0, u"&Einfügen"_s, [this] { Insert(); });
    AddControl(1, u"S&chließen"_s, [this] { Leave(); });
}

void Frm_MetaTags::OnLoad() {
    for (const QString& name : Lists::MetaTagNames()) {
        auto* item = new QListWidgetItem(name + u':', Lst_Attributes);
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
}

void Frm_MetaTags::Insert() {
    QList<InsertTexts::Entry> chosen;
    for (int row = 0; row < Lst_Attributes->count(); ++row) {
        const QListWidgetItem* item = Lst_Attributes->item(row);
        if (item->checkState() == Qt::Checked) chosen.append({item->text()});
    }
    InsertionPoint::Insert(InsertTexts::MetaTags(chosen, Global::DocType));
    Leave();
}
