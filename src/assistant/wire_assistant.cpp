// SPDX-License-Identifier: MIT
#include "assistant/wire_assistant.h"

#include "assistant/frm_assistant.h"
#include "state/global.h"
#include "state/neighbours.h"

namespace {

void ShowAssistant(bool show) {
    if (!show) return Unload<Frm_Assistant>();
    Shared<Frm_Assistant>().BringToFront();
    // the user goes on writing
    if (Global::CodeWindowOpen) Neighbours::FocusCode();
}

} // namespace

void WireAssistant() {
    Neighbours::RunAnimation.AnsweredBy([](int animation, const QString& text) {
        if (Global::AssistantOpen) Shared<Frm_Assistant>().RunAnimation(animation, text);
    });
    Neighbours::ShowAssistant.AnsweredBy(ShowAssistant);
    Neighbours::AssistantWidth.AnsweredBy(
        [] { return Global::AssistantOpen ? Shared<Frm_Assistant>().Width() : 0; });
    Neighbours::LayoutAssistant.AnsweredBy([] {
        if (Global::AssistantOpen) Shared<Frm_Assistant>().ActualizeSize();
    });
}
