// SPDX-License-Identifier: MIT
#include "insertion/frm_characters.h"

#include "insertion/button_bar.h"
#include "insertion/tag_texts.h"
#include "platform/literals.h"

Frm_Characters::Frm_Characters()
    : ToolWindow({u"Frm_Characters"_s, u"Sonderzeichen"_s,
                  u"Mit diesem Tool können Sie Sonderzeichen in die HTML-Seite einfügen."_s,
                  &Global::CharactersToolOpen, &Global::CharactersToolPos, ToolPlace::Keeps::PlaceAndSize,
                  QSize(1875, 1065)}),
      Tlb_Characters(new ButtonBar(u"Tlb_Characters"_s, this)) {
    for (const TagTexts::Button& button : TagTexts::CharacterButtons()) {
        Tlb_Characters->Add(button.key, button.tip, button.icon,
                            [this, key = button.key] { Insert(TagTexts::EntityFor(key)); });
    }
    setMinimumSize(Tlb_Characters->minimumSizeHint());
}

void Frm_Characters::resizeEvent(QResizeEvent*) { Tlb_Characters->setGeometry(rect()); }
