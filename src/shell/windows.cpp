// SPDX-License-Identifier: MIT
// All windows of the program, a line each: this is where a new one is entered.
#include "state/windows.h"
#include "assistant/frm_assistant.h"
#include "assistant/frm_help.h"
#include "clips/frm_pab.h"
#include "clips/frm_pab_preview.h"
#include "debugger/frm_debug.h"
#include "documents/frm_code.h"
#include "editing/frm_line_zoom.h"
#include "insertion/frm_characters.h"
#include "insertion/frm_color.h"
#include "insertion/frm_default_styles.h"
#include "insertion/frm_events.h"
#include "insertion/frm_frames.h"
#include "insertion/frm_insert_script.h"
#include "insertion/frm_insert_style.h"
#include "insertion/frm_kcc.h"
#include "insertion/frm_list.h"
#include "insertion/frm_meta_tags.h"
#include "insertion/frm_table.h"
#include "insertion/frm_table_options.h"
#include "insertion/frm_tag_tools.h"
#include "platform/modal.h"
#include "preview/frm_browser.h"
#include "preview/frm_navigation.h"
#include "preview/wire_preview.h"
#include "printing/frm_print.h"
#include "printing/frm_print_preview.h"
#include "project/frm_page_info.h"
#include "project/frm_project_back_up.h"
#include "project/frm_project_manager.h"
#include "project/frm_speed_check.h"
#include "project/frm_upload_assistant.h"
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
#include "texttools/frm_delete_comments.h"
#include "texttools/frm_format_sub_class.h"
#include "texttools/frm_search.h"
#include "texttools/frm_spelling_check.h"
#include "texttools/frm_uml_correction.h"

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

// A small window that stays open beside the document.
template<class Window> constexpr Row Tool(QStringView name, QStringView command) {
    return {name, command, [] { Shared<Window>().Present(); }, [] { Unload<Window>(); }};
}

constexpr Row AllWindows[] = {
    Shown<Frm_Code>(u"Frm_Code", {}, [] { Neighbours::ShowCodeWindow(); }),
    Shown<Frm_Browser>(u"Frm_Browser", {}, Preview::StartBrowsing),
    {u"WAPBrowser", {}, Preview::StartWAPBrowsing}, // a mode of the browser, no window of its own
    Shown<Frm_Navigation>(u"Frm_Navigation", u"Menu_View_Navigation",
                          [] { Shared<Frm_Navigation>().Present(); }),
    Shown<Frm_DeBug>(u"Frm_DeBug", {}, [] { Shared<Frm_DeBug>().Present(); }),
    Shown<Frm_ProjectManager>(u"Frm_ProjectManager", u"Menu_Tools_ProjectManager",
                              Project::Menu_Tools_ProjectManager_Click),
    Shown<Frm_SpeedCheck>(u"Frm_SpeedCheck", u"Menu_Tools_SpeedCheck", Project::Menu_Tools_SpeedCheck_Click),
    Modal<Frm_ProjectBackUp>(u"Frm_ProjectBackUp", u"Menu_File_ProjectBackUp"),
    Modal<Frm_PageInfo>(u"Frm_PageInfo"),
    Modal<Frm_UploadAssistant>(u"Frm_UploadAssistant", u"Menu_File_UploadAssistant"),
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
    Tool<Frm_TagTools>(u"Frm_TagTools", u"Menu_View_TagTools"),
    Tool<Frm_Color>(u"Frm_Color", u"Menu_View_ColorStandard"),
    Tool<Frm_KCC>(u"Frm_KCC", u"Menu_View_ColorKCC"),
    Tool<Frm_Events>(u"Frm_Events", u"Menu_View_Events"),
    Tool<Frm_Characters>(u"Frm_Characters", u"Menu_View_Character"),
    Modal<Frm_Frames>(u"Frm_Frames", u"Menu_Insert_Frames"),
    Modal<Frm_Table>(u"Frm_Table", u"Menu_Insert_Table_Insert"),
    Modal<Frm_TableOptions>(u"Frm_TableOptions"),
    Modal<Frm_List>(u"Frm_List", u"Menu_Insert_List"),
    Modal<Frm_MetaTags>(u"Frm_MetaTags", u"Menu_Insert_MetaTags"),
    Modal<Frm_InsertScript>(u"Frm_InsertScript", u"Menu_Insert_Script"),
    Modal<Frm_InsertStyle>(u"Frm_InsertStyle", u"Menu_Insert_Style"),
    Modal<Frm_DefaultStyles>(u"Frm_DefaultStyles", u"Menu_Insert_StyleDefault"),
    Tool<Frm_PAB>(u"Frm_PAB", u"Menu_Insert_PageArtBox"),
    Modal<Frm_PABPreView>(u"Frm_PABPreView"),
    Tool<Frm_FormatSubClass>(u"Frm_FormatSubClass", u"Menu_View_FormatSubClass"),
    Tool<Frm_Search>(u"Frm_Search", u"Menu_Edit_Search"),
    Modal<Frm_UmlCorrection>(u"Frm_UmlCorrection", u"Menu_Tools_Uml"),
    Modal<Frm_DeleteComments>(u"Frm_DeleteComments", u"Menu_Tools_DeleteComment"),
    Modal<Frm_Print>(u"Frm_Print", u"Menu_File_Print"),
    Modal<Frm_PrintPreView>(u"Frm_PrintPreView", u"Menu_View_SyntaxPreView"),
    Modal<Frm_SpellingCheck>(u"Frm_SpellingCheck", u"Menu_Tools_SpellingCheck"),
};

} // namespace

void InstallWindows() { Windows::Install(AllWindows); }

} // namespace Wiring
