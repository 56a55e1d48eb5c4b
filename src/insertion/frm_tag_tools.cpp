// SPDX-License-Identifier: MIT
#include "insertion/frm_tag_tools.h"

#include "insertion/button_bar.h"
#include "insertion/tag_texts.h"
#include "platform/literals.h"

Frm_TagTools::Frm_TagTools()
    : ToolWindow({u"Frm_TagTools"_s, u"Tags"_s,
                  u"Dieses Tool erleichtert das Bearbeiten von Text. Markieren Sie einen Text und klicken "
                  u"Sie auf ein "
                  "Icon."_s,
                  &Global::TagToolOpen, &Global::TagToolPos, ToolPlace::Keeps::PlaceAndSize,
                  QSize(2625, 1695)}),
      Tlb_Tag(new ButtonBar(u"Tlb_Tag"_s, this)) {
    for (const TagTexts::Button& button : TagTexts::TagButtons()) {
        Tlb_Tag->Add(button.key, button.tip, button.icon, [this, key = button.key] {
            const TagTexts::Pair pair = TagTexts::PairFor(key, Global::DocType);
            Wrap(pair.before, pair.after);
        });
    }
    setMinimumSize(Tlb_Tag->minimumSizeHint());
}

void Frm_TagTools::resizeEvent(QResizeEvent*) { Tlb_Tag->setGeometry(rect()); }
