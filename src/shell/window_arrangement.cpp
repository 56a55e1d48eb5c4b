// SPDX-License-Identifier: MIT
// The commands of the menu "Fenster". All lengths in twips.
#include "documents/frm_code.h"
#include "platform/mdi_child.h"
#include "shell/frm_main.h"
#include "state/global.h"

namespace {

struct Room {
    int left;
    int width;
    int height;
};

Room FreeRoom(const Neighbours::Size& main) {
    Room room{0, main.width - 200, main.height - 660 - 700};
    if (Global::AssistantOpen) room.width -= Neighbours::AssistantWidth();
    if (Global::ProjectWindowOpen) {
        room.width -= Neighbours::ProjectManagerWidth();
        room.left = Neighbours::ProjectManagerWidth(); // the windows must not lie under it
    }
    if (Global::DebuggerOpen) room.height -= Neighbours::DebuggerHeight();
    return room;
}

} // namespace

void Frm_Main::Menu_Window_MaximizeAll() {
    if (Global::CodeWindowOpen && Shared<Frm_Code>().FitMode != 2) Shared<Frm_Code>().ShowMaximizedState();
    if (Global::BrowserOpen) Neighbours::FitBrowser(true);
}

void Frm_Main::Menu_Window_MinimizeAll() {
    // The fitted place is what the window has for a maximised one.
    if (Global::CodeWindowOpen && Shared<Frm_Code>().FitMode == 2) Shared<Frm_Code>().ShowMaximizedState();
    if (Global::CodeWindowOpen) Shared<Frm_Code>().SetNormalState();
    if (Global::BrowserOpen) Neighbours::FitBrowser(false);
}

void Frm_Main::Menu_Window_SetH() {
    const Room room = FreeRoom(LayoutSize());
    Frm_Code& code = Shared<Frm_Code>();
    code.FitMode = 0; // the window now has a place of its own
    code.SetPlace(room.left, 0, room.width, room.height / 2);
    Neighbours::PlaceBrowser(room.left, code.Top() + code.Height(), room.width, room.height / 2 - 15);
}

void Frm_Main::Menu_Window_SetV() {
    const Room room = FreeRoom(LayoutSize());
    Frm_Code& code = Shared<Frm_Code>();
    code.FitMode = 0;
    code.SetPlace(room.left, 0, room.width / 2, room.height);
    Neighbours::PlaceBrowser(code.Left() + code.Width(), 0, room.width / 2 - 15, room.height);
}
