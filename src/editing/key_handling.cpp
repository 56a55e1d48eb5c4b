// SPDX-License-Identifier: MIT
#include "editing/key_handling.h"

#include "documents/code_box.h"
#include "documents/paths.h"
#include "editing/edit_commands.h"
#include "platform/text.h"
#include "state/global.h"
#include "state/neighbours.h"

namespace KeyHandling {

namespace {

constexpr int Tab = 9;
constexpr int Enter = 13;
constexpr int Space = 32;
constexpr int Left = 37;
constexpr int Down = 40;
constexpr int FirstComboKey = 48; // "0"
constexpr int C = 67;
constexpr int X = 88;
constexpr int Period = 190;
constexpr int Control = 2;

bool& CompletionPending() {
    static bool pending = false;
    return pending;
}

void ServeClipboardKeys(CodeBox& box, int key, int shift) {
    if (shift != Control || box.SelLength() == 0) return;
    // The cut itself is done by the key's combination text, which replaces the selection.
    if (key == X) EditCommands::Menu_Edit_Copy_Click();
    if (key == C) {
        EditCommands::Menu_Edit_Copy_Click();
        EditCommands::Menu_Edit_Paste_Click(); // leaves no selection that the combination text would replace
    }
}

void KeepSelectionFromTab(CodeBox& box, int key) {
    if (key == Tab && box.SelLength() > 0) box.SetSelLength(0);
}

void CheckWhenLeavingTheSpot(int key) {
    if ((key >= Left && key <= Down) || key == Enter) Neighbours::CheckOnce();
}

void InsertKeyCombo(CodeBox& box, int key) {
    const auto entry = static_cast<size_t>(key - FirstComboKey);
    // an empty entry deletes the selection
    if (entry < Global::KeyCombos.size()) box.SetSelText(Global::KeyCombos[entry]);
}

} // namespace

void KeyDown(CodeBox& box, int key, int shift) {
    Neighbours::HidePopupList();
    CompletionPending() = key == Space && shift == Control;
    Attempt([&] { ServeClipboardKeys(box, key, shift); });
    Attempt([&] { KeepSelectionFromTab(box, key); });
    CheckWhenLeavingTheSpot(key);
    if (shift != Control || key < FirstComboKey) return;
    Attempt([&] { InsertKeyCombo(box, key); });
    if (Global::DebuggerOpen) Neighbours::CheckSyntax();
}

Wish KeyUp(int key, int shift) {
    // Control may have been let go before the blank.
    const bool completes = key == Space && (shift == Control || CompletionPending());
    if (key == Space) CompletionPending() = false;
    if (completes) return Wish::CompleteWord;
    const bool script = Text::UpperCase(Global::ExtensionOf(Global::CurrentFile)) == u"JS";
    if (key == Period && (script || Neighbours::ScriptBarShown())) return Wish::ShowMembers;
    return Wish::None;
}

} // namespace KeyHandling
