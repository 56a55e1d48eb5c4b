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

Frm_KeyCombo::Frm_KeyCombo()
    : Cmb_Keys(new QComboBox),
      Txt_InsertText(MakePlainTextBox(u"Txt_InsertText"_s, u"Text des Tastenkürzels"_s)) {
    setObjectName(u"Frm_KeyCombo"_s);
    setWindowTitle(u"Tastenkürtzel festlegen"_s); // the spelling is meant to stay
    auto* choose = new QLabel(u"Wählen Sie eine Tastenkombination aus:"_s);
    choose->setObjectName(u"Lbl_Keys"_s);
    choose->setBuddy(Cmb_Keys);
    auto* define = new QLabel(u"Tastenkürzel festlegen..."_s);
    define->setObjectName(u"Lbl_InsertText"_s);
    define->setBuddy(Txt_InsertText);
    Cmb_Keys->setObjectName(u"Cmb_Keys"_s);
    Txt_InsertText->setTabChangesFocus(true);

    auto* all = new QVBoxLayout(this);
    auto* keys = new QHBoxLayout;
    keys->addWidget(choose);
    keys->addWidget(Cmb_Keys);
    keys->addStretch();
    all->addLayout(keys);
    all->addSpacing(6);
    all->addWidget(define);
    all->addWidget(Txt_InsertText, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    const QString captions[] = {u"Ü&bernehmen"_s, u"S&chließen"_s};
    for (int index : {0, 1}) {
        auto* button = new QPushButton(captions[index]);
        button->setObjectName(u"Cmd_Control_"_s + QString::number(index));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, index] { Cmd_Control(index); });
        buttons->addWidget(button);
    }
    all->addLayout(buttons);
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

void Frm_KeyCombo::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (Global::AssistantOpen) {
        Neighbours::RunAnimation(
            1,
            u"Hier können Sie Tastenkürtzel festlegen, die die Arbeit beschleunigen können. Wählen sie eine "
            "Kombination aus und geben Sie den Text ein der beim Betätigen dieser Tastenkombination in das "
            "Dokument "
            "eingefügt werden soll. Klicken Sie nach jeder Änderung auf 'Übernehmen'."_s);
    }
}

QString& Frm_KeyCombo::StoredText() const {
    return Global::KeyCombos[static_cast<size_t>(Cmb_Keys->currentIndex())];
}

void Frm_KeyCombo::Cmb_Keys_Click() {
    Txt_InsertText->SetText(StoredText());
    Txt_InsertText->document()->clearUndoRedoStacks(); // undoing must not bring in another entry's text
}

void Frm_KeyCombo::Cmd_Control(int index) {
    if (index == 0) {
        StoredText() = Txt_InsertText->Text();
    } else if (unloadSelf) {
        unloadSelf();
    }
}
