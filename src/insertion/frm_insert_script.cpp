// SPDX-License-Identifier: MIT
#include "insertion/frm_insert_script.h"

#include "documents/insertion_point.h"
#include "insertion/insert_texts.h"
#include "platform/literals.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

Frm_InsertScript::Frm_InsertScript()
    : ToolDialog(u"Frm_InsertScript"_s, u"Script einfügen"_s,
                 u"Wählen Sie hier eine Scriptsprache aus, für die ein Script-Tag eingefügt werden soll."_s) {
    SetHeading(u"insert_script", u"Script einfügen..."_s);
    auto* Cmb_Language = new QComboBox;
    Cmb_Language->setObjectName(u"Cmb_Language"_s);
    Cmb_Language->addItems({u"JavaScript"_s, u"VBScript"_s});
    Content()->addWidget(LabelFor(Cmb_Language, u"Lbl_Language"_s, u"Wählen Sie eine Scriptsprache aus:"_s));
    Content()->addWidget(Cmb_Language);
    AddControl(0, u"&Ok"_s, [this, Cmb_Language] {
        InsertionPoint::Insert(InsertTexts::Script(Cmb_Language->currentText()));
        InsertionPoint::MoveBack(InsertTexts::BehindScript);
        Leave();
    });
    AddControl(1, u"S&chließen"_s, [this] { Leave(); });
}
