// SPDX-License-Identifier: MIT
#include "editing/code_aids.h"

#include "documents/code_host.h"
#include "documents/txt_code.h"
#include "editing/key_handling.h"
#include "editing/popup_list.h"
#include "editing/script_bar.h"
#include "editing/tag_watch.h"
#include "editing/umlauts.h"
#include "platform/literals.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QPointer>

namespace CodeAids {

namespace {

// What is attached to the present document window; both go with it.
struct Attached {
    CodeHost* window = nullptr;
    QPointer<PopupList> list;
};
Attached& Present() {
    static Attached present;
    return present;
}

void Attach(CodeHost* window) {
    Present() = {};
    if (!window) return;
    Present() = {window, new PopupList(window)};
    ScriptBar::Attach(*window);
}

void WatchTag() {
    if (!Present().window || !Commands::IsChecked(u"Menu_Help_Assistant"_s) || !Global::AssistantOpen) return;
    Neighbours::RunAnimation(0, {});
    const Txt_Code& box = Present().window->Box();
    const auto remark = TagWatch::Watch(box.Text(), box.SelStart(), Present().window->HelpFile());
    if (remark) Neighbours::RunAnimation(remark->urgency, remark->text);
}

void KeyUp(int key, int shift) {
    if (!Present().list) return;
    switch (KeyHandling::KeyUp(key, shift)) {
    case KeyHandling::Wish::CompleteWord:
        Present().list->OpenAutoWord(-1);
        break;
    case KeyHandling::Wish::ShowMembers:
        Present().list->ShowMembersAtDot();
        break;
    case KeyHandling::Wish::None:
        break;
    }
}

void MouseDown(int button, double x, double y) {
    if (!Present().list) return;
    if (button == 2) {
        Present().list->RightClick(x, y);
    } else {
        Present().list->LeftClick();
    }
}

} // namespace

void Wire() {
    using namespace Neighbours;
    AttachToCode.AnsweredBy(Attach);
    HidePopupList.AnsweredBy([] {
        if (Present().list) Present().list->Hide();
    });
    WatchTagForAssistant.AnsweredBy(WatchTag);
    Neighbours::SubstituteUmlauts.AnsweredBy([] {
        if (!Present().window) return;
        Txt_Code& box = Present().window->Box();
        const Txt_Code::OneStep step(box); // one undo takes the substitution back
        Umlauts::SubstituteUmlauts(box);
    });
    CodeKeyDown.AnsweredBy([](int key, int shift) {
        if (Present().window) KeyHandling::KeyDown(Present().window->Box(), key, shift);
    });
    CodeKeyUp.AnsweredBy(KeyUp);
    CodeMouseDown.AnsweredBy([](int button, int, double x, double y) { MouseDown(button, x, y); });
    CodeMouseMove.AnsweredBy([](double x, double y) {
        if (Present().list) Present().list->MouseMoved(x, y);
    });
    Neighbours::CodeLostFocus.AnsweredBy([] {
        if (Present().list) Present().list->CodeLostFocus();
    });
    Neighbours::InsertAttribute.AnsweredBy([](const QString& text) {
        if (Present().list) Present().list->InsertAttribute(text);
    });
    OpenAutoWord.AnsweredBy([](double offset) {
        if (Present().list) Present().list->OpenAutoWord(offset);
    });
    InsertCurrentVariable.AnsweredBy([] {
        if (Present().window) ScriptBar::InsertCurrentVariable(*Present().window);
    });
}

} // namespace CodeAids
