// SPDX-License-Identifier: MIT
#include "shell/frm_key_combo.h"

#include "documents/txt_code.h"
#include "editing/plain_text_box.h"
#include "platform/literals.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

Frm_KeyCombo::Frm_KeyCombo()
    : ToolDialog(
          u"Frm_KeyCombo"_s, u"Tastenkürtzel festlegen"_s, // the spelling is meant to stay
          u"Hier können Sie Tastenkürtzel festlegen, die die Arbeit beschleunigen können. Wählen sie eine "
          "Kombination aus und geben Sie den Text ein der beim Betätigen dieser Tastenkombination in das "
          "Dokument eingefügt werden soll. Klicken Sie nach jeder Änderung auf 'Übernehmen'."_s),
      Cmb_Keys(new QComboBox),
      Txt_InsertText(MakePlainTextBox(u"Txt_InsertText"_s, u"Text des Tastenkürzels"_s)) {
    Cmb_Keys->setObjectName(u"Cmb_Keys"_s);
    Txt_InsertText->setTabChangesFocus(true);
    auto* keys = new QHBoxLayout;
    keys->addWidget(LabelFor(Cmb_Keys, u"Lbl_Keys"_s, u"Wählen Sie eine Tastenkombination aus:"_s));
    keys->addWidget(Cmb_Keys);
    keys->addStretch();
    Content()->addLayout(keys);
    Content()->addWidget(LabelFor(Txt_InsertText, u"Lbl_InsertText"_s, u"Tastenkürzel festlegen..."_s));
    Content()->addWidget(Txt_InsertText, 1);
    AddControl(0, u"Ü&bernehmen"_s, [this] { StoredText() = Txt_InsertText->Text(); })->setDefault(false);
    AddControl(1, u"S&chließen"_s, [this] { Leave(); });
    resize(440, 280);
}

void Frm_KeyCombo::OnLoad() {
    for (int key = 0; key <= 9; ++key) Cmb_Keys->addItem(u"Strg + %1"_s.arg(key));
    connect(Cmb_Keys, &QComboBox::currentIndexChanged, this, &Frm_KeyCombo::Cmb_Keys_Click);
    Cmb_Keys->setCurrentIndex(0);
    Cmb_Keys_Click();
}

void Frm_KeyCombo::OnUnload() {
    if (Global::AssistantOpen) Neighbours::RunAnimation(0, {});
}

QString& Frm_KeyCombo::StoredText() const {
    return Global::KeyCombos[static_cast<size_t>(Cmb_Keys->currentIndex())];
}

void Frm_KeyCombo::Cmb_Keys_Click() {
    Txt_InsertText->SetText(StoredText());
    Txt_InsertText->document()->clearUndoRedoStacks(); // undoing must not bring in another entry's text
}
