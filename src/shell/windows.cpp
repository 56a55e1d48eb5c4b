// SPDX-License-Identifier: MIT
// All windows of the program, a line each: this is where a new one is entered.
#include "state/windows.h"
#include "assistant/frm_assistant.h"
#include "assistant/frm_help.h"
#include "debugger/frm_debug.h"
#include "documents/frm_code.h"
#include "editing/frm_line_zoom.h"
#include "platform/modal.h"
#include "preview/frm_browser.h"
#include "preview/frm_navigation.h"
#include "preview/wire_preview.h"
#include "project/frm_project_manager.h"
#include "project/wire_project.h"
#include "shell/frm_info.h"
#include "shell/frm_key_combo.h"
#include "shell/frm_load.h"
#include "shell/frm_new_update.h"
#include "shell/frm_options.h"
#include "shell/frm_update_message.h"
#include "shell/frm_welcome.h"
#include "shell/wiring.h"
#include "state/neighbours.h"

namespace Wiring {

namespace {

using Windows::Row;

// A dialog, modal to the main window.
template<class Dialog> constexpr Row Modal(QStringView name, QStringView command = {}) {
    return {name, command, [] { ShowModal<Dialog>(); }, [] { Unload<Dialog>(); }};
}

// A window that shows itself by `show`.
template<class Window> constexpr Row Shown(QStringView name, QStringView command, void (*show)()) {
    return {name, command, show, [] { Unload<Window>(); }};
}

// A window that others speak of and that is not built yet.
constexpr Row ToCome(QStringView name) { return {name, {}}; }

constexpr Row AllWindows[] = {
    Shown<Frm_Code>(u"Frm_Code", {}, [] { Neighbours::ShowCodeWindow(); }),
    Shown<Frm_Browser>(u"Frm_Browser", {}, Preview::StartBrowsing),
    {u"WAPBrowser", {}, Preview::StartWAPBrowsing}, // a mode of the browser, no window of its own
    Shown<Frm_Navigation>(u"Frm_Navigation", u"Menu_View_Navigation",
                          [] { Shared<Frm_Navigation>().Present(); }),
    Shown<Frm_DeBug>(u"Frm_DeBug", {}, [] { Shared<Frm_DeBug>().Present(); }),
    Shown<Frm_ProjectManager>(u"Frm_ProjectManager", u"Menu_Tools_ProjectManager",
                              Project::Menu_Tools_ProjectManager_Click),
    Shown<Frm_Assistant>(u"Frm_Assistant", {}, [] { Neighbours::ShowAssistant(true); }),
    Shown<Frm_Help>(u"Frm_Help", u"Menu_Help_Index", [] { Shared<Frm_Help>().BringToFront(); }),
    Shown<Frm_Load>(u"Frm_Load", {}, [] { Shared<Frm_Load>().show(); }),
    Modal<Frm_Welcome>(u"Frm_Welcome"),
    Modal<Frm_Info>(u"Frm_Info", u"Menu_Help_Info"),
    Modal<Frm_Options>(u"Frm_Options", u"Menu_Tools_Options"),
    Modal<Frm_KeyCombo>(u"Frm_KeyCombo", u"Menu_Tools_KeyCombo"),
    Modal<Frm_LineZoom>(u"Frm_LineZoom", u"Menu_View_Zoom"),
    Modal<Frm_NewUpdate>(u"Frm_NewUpdate"),
    Modal<Frm_UpdateMessage>(u"Frm_UpdateMessage"),
    ToCome(u"Frm_TagTools"),
    ToCome(u"Frm_Color"),
    ToCome(u"Frm_KCC"),
    ToCome(u"Frm_Events"),
    ToCome(u"Frm_Characters"),
    ToCome(u"Frm_FormatSubClass"),
    ToCome(u"Frm_InsertStyle"),
    ToCome(u"Frm_Search"),
    ToCome(u"Frm_UmlCorrection"),
};

} // namespace

void InstallWindows() { Windows::Install(AllWindows); }

} // namespace Wiring
