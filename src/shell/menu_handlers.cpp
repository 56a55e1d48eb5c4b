// SPDX-License-Identifier: MIT
// What each menu item does. Tool windows are shown by their name; the rest is here.
#include "documents/code_access.h"
#include "documents/document_commands.h"
#include "documents/frm_code.h"
#include "documents/insertion_point.h"
#include "documents/new_documents.h"
#include "documents/recovery.h"
#include "documents/undo.h"
#include "editing/edit_commands.h"
#include "insertion/frm_table.h"
#include "insertion/insert_texts.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "preview/preview_commands.h"
#include "shell/addresses.h"
#include "shell/frm_main.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/windows.h"
#include "texttools/text_tool_commands.h"

#include <QFileInfo>
#include <QHash>
#include <QProcess>
#include <algorithm>

namespace {

void Say(const QString& text) {
    if (Global::AssistantOpen) Neighbours::RunAnimation(1, text);
}

// Flips the check mark of an item and returns the new state.
bool Flip(const QString& name) {
    Commands::SetChecked(name, !Commands::IsChecked(name));
    return Commands::IsChecked(name);
}

void Menu_File_Browser() {
    Documents::Menu_File_Close();
    if (Global::CloseSucceeded) Neighbours::StartBrowser();
}

void Menu_Debug_Start() {
    if (Global::DebuggerOpen) {
        Neighbours::CheckSyntax();
    } else {
        Neighbours::ShowDebugger();
    }
}

void Menu_Help_InWeb() {
    Say(u"Von dieser Internetseite können Sie das neueste Update des Sorvane HTML Editor 3.0 herunterladen. "
        u"Die "
        "Zip-Datei entpacken Sie in das Verzeichnis des Editors."_s);
    Dialogs::OpenAddress(Addresses::Support);
}

void Menu_Help_OnlineSupport() {
    Say(u"Auf dieser Internetseite finden Sie Hilfe zum Sorvane HTML Editor 3.0."_s);
    Dialogs::OpenAddress(Addresses::Support);
}

void Menu_Tools_Option() {
    if (!Flip(u"Menu_Tools_Option_2"_s)) return;
    Say(u"Sie haben eben 'Tags klein speichern' aktiviert. Beim Speichern werden alle gültigen Tags klein "
        "geschrieben."_s);
}

void Menu_Tools_AutoUml() {
    if (!Flip(u"Menu_Tools_AutoUml"_s)) return;
    Say(u"Sie haben eben 'AutoUmlaut' aktiviert. Umlaute, die Sie schreiben, werden jetzt sofort "
        u"umgewandelt: aus ä "
        "wird ae, und wenn Sie ein & davor schreiben, wird aus &ä &auml;."_s);
}

void Menu_View_CloseTools() {
    for (const QString& tool : {u"Frm_Color"_s, u"Frm_KCC"_s, u"Frm_TagTools"_s, u"Frm_Events"_s,
                                u"Frm_Characters"_s, u"Frm_FormatSubClass"_s}) {
        Windows::Unload(tool);
    }
}

void Menu_View_ShowJavaScriptBar() {
    Shared<Frm_Code>().ScriptBarShown = Flip(u"Menu_View_ShowJavaScriptBar"_s);
    Shared<Frm_Code>().ActivateToolBar();
    Neighbours::ActivateFunktions();
}

// A program, not an address: the desktop would look for something to open it with.
void Menu_Tools_Tramlink() {
    const QString program = Files::ToSystem(Files::ProgramFile(u"Tramlink.exe"_s));
    if (QProcess::startDetached(program, {}, QFileInfo(program).absolutePath())) return;
    Dialogs::Tell(u"Fehler"_s, u"Tramlink konnte nicht gestartet werden."_s, Dialogs::Icon::Critical);
}

void Menu_Insert_StyleTag() {
    if (InsertionPoint::Insert(InsertTexts::StyleTag())) InsertionPoint::MoveBack(InsertTexts::BehindStyle);
}

// The wizard with the draft of a table file in it.
void Menu_Insert_Table_Open() {
    Shared<Frm_Table>().LoadFile();
    Windows::Show(u"Frm_Table");
}

void OpenAddress(const QString& address) { Dialogs::OpenAddress(address); }

using Handlers = QHash<QString, std::function<void()>>;

void AddDocumentHandlers(Handlers& handlers) {
    using namespace Documents;
    handlers.insert({{u"Menu_File_NewXHTMLFile"_s, Menu_File_NewXHTMLFile},
                     {u"Menu_File_NewPage"_s, Menu_File_NewPage},
                     {u"Menu_File_NewWAPPage"_s, Menu_File_NewWAPPage},
                     {u"Menu_File_NewFile"_s, Menu_File_NewFile},
                     {u"Menu_File_NewDocument"_s, Menu_File_NewDocument},
                     {u"Menu_File_Browser"_s, Menu_File_Browser},
                     {u"Menu_File_Open"_s, Menu_File_Open_Click},
                     {u"Menu_File_Import"_s, Menu_File_Import},
                     {u"Menu_File_Close"_s, Documents::Menu_File_Close},
                     {u"Menu_File_Save"_s, Menu_File_Save_Click},
                     {u"Menu_File_SaveAs"_s, Menu_File_SaveAs},
                     {u"Menu_File_SaveBackUp"_s, SaveBackUp},
                     {u"Menu_File_RestoreFile"_s, Recovery::Menu_File_RestoreFile}});
}

void AddEditHandlers(Handlers& handlers) {
    using namespace EditCommands;
    handlers.insert({{u"Menu_Edit_Undo"_s, Undo::UndoStep},
                     {u"Menu_Edit_Redo"_s, Undo::RedoStep},
                     {u"Menu_Edit_Cut"_s, Menu_Edit_Cut_Click},
                     {u"Menu_Edit_Copy"_s, Menu_Edit_Copy_Click},
                     {u"Menu_Edit_Paste"_s, Menu_Edit_Paste_Click},
                     {u"Menu_Edit_Delete"_s, Menu_Edit_Delete},
                     {u"Menu_Edit_SelectAll"_s, Menu_Edit_SelectAll},
                     {u"Menu_Edit_EditString_UCase"_s, Menu_Edit_EditString_UCase},
                     {u"Menu_Edit_EditString_LCase"_s, Menu_Edit_EditString_LCase},
                     {u"Menu_Edit_EditString_Turn"_s, Menu_Edit_EditString_Turn},
                     {u"Menu_Edit_ChangeDigitSystem_Hex"_s, Menu_Edit_ChangeDigitSystem_Hex},
                     {u"Menu_Edit_ChangeDigitSystem_Okt"_s, Menu_Edit_ChangeDigitSystem_Okt},
                     {u"Menu_Edit_ChangeDigitSystem_Bin"_s, Menu_Edit_ChangeDigitSystem_Bin},
                     {u"Menu_Edit_CalculateText_ASCII"_s, Menu_Edit_CalculateText_ASCII},
                     {u"Menu_Edit_CalculateText_Average"_s, Menu_Edit_CalculateText_Average},
                     {u"Menu_Edit_CalculateText_Count"_s, Menu_Edit_CalculateText_Count},
                     {u"Menu_Edit_CalculateText_Total"_s, Menu_Edit_CalculateText_Total},
                     {u"Menu_Script_ManipulateNumbers"_s, Menu_Script_ManipulateNumbers},
                     {u"Menu_Insert_Date"_s, Menu_Insert_Date},
                     {u"Menu_Insert_Time"_s, Menu_Insert_Time},
                     {u"Menu_Insert_FileName"_s, Menu_Insert_FileName},
                     {u"Menu_Insert_CloseTag"_s, Menu_Insert_CloseTag},
                     {u"Menu_Insert_StyleTag"_s, Menu_Insert_StyleTag},
                     {u"Menu_Insert_Table_Open"_s, Menu_Insert_Table_Open},
                     {u"Menu_Insert_AutoWord"_s, [] { Neighbours::OpenAutoWord(0); }},
                     {u"Menu_Insert_JavaScript_CurrentVar"_s, [] { Neighbours::InsertCurrentVariable(); }},
                     {u"Menu_Tools_UCaseTags"_s, Menu_Tools_UCaseTags},
                     {u"Menu_Tools_LCaseTags"_s, Menu_Tools_LCaseTags},
                     {u"Menu_Tools_MadCode"_s, TextTools::Menu_Tools_MadCode},
                     {u"Menu_Menu_Code_Cut"_s, Menu_Edit_Cut_Click},
                     {u"Menu_Menu_Code_Copy"_s, Menu_Edit_Copy_Click},
                     {u"Menu_Menu_Code_Paste"_s, Menu_Edit_Paste_Click}});
}

void AddHelpHandlers(Handlers& handlers) {
    handlers.insert(
        {{u"Menu_Help_InWeb"_s, Menu_Help_InWeb},
         {u"Menu_Help_OnlineSupport"_s, Menu_Help_OnlineSupport},
         {u"Menu_Help_Internet_Webspace"_s, [] { OpenAddress(Addresses::Webspace); }},
         {u"Menu_Help_Internet_Domains"_s, [] { OpenAddress(Addresses::Domains); }},
         {u"Menu_Help_Internet_Tools"_s, [] { OpenAddress(Addresses::Tools); }},
         {u"Menu_Help_Internet_WAP"_s, [] { OpenAddress(Addresses::WAP); }},
         {u"Menu_Help_MailToVelonar"_s, [] { OpenAddress(Addresses::Mail); }},
         {u"Menu_Help_MailBug"_s, [] { OpenAddress(Addresses::MailBug); }},

         {u"Menu_Help_Assistant"_s, [] { Neighbours::ShowAssistant(Flip(u"Menu_Help_Assistant"_s)); }}});
}

void AddViewHandlers(Handlers& handlers) {
    handlers.insert({{u"Menu_View_Code"_s, [] { Neighbours::FocusCode(); }},
                     {u"Menu_View_Browser_Once"_s, Preview::Menu_View_Browser_Once},
                     {u"Menu_View_Browser_Temp"_s, Preview::Menu_View_Browser_Temp},
                     {u"Menu_View_Browser_Project"_s, Preview::Menu_View_Browser_Project},
                     {u"Menu_View_Browser_WAP"_s, Preview::Menu_View_Browser_WAP},

                     {u"Menu_View_CloseTools"_s, Menu_View_CloseTools},

                     {u"Menu_Menu_Code_Zoom"_s, [] { Windows::Show(u"Frm_LineZoom"); }},

                     {u"Menu_View_ShowJavaScriptBar"_s, Menu_View_ShowJavaScriptBar},
                     {u"Menu_Debug_Start"_s, Menu_Debug_Start},
                     {u"Menu_Debug_HTML"_s, [] { Flip(u"Menu_Debug_HTML"_s); }},
                     {u"Menu_Debug_CSS"_s, [] { Flip(u"Menu_Debug_CSS"_s); }},
                     {u"Menu_Debug_JavaScript"_s, [] { Flip(u"Menu_Debug_JavaScript"_s); }},
                     {u"Menu_Tools_Option_2"_s, Menu_Tools_Option},
                     {u"Menu_Tools_AutoUml"_s, Menu_Tools_AutoUml},
                     {u"Menu_Tools_Tramlink"_s, Menu_Tools_Tramlink}});
}

// Commands of the main window itself.
void AddWindowHandlers(Handlers& handlers) {
    handlers.insert({{u"Menu_File_Exit"_s, [] { Shared<Frm_Main>().close(); }},
                     {u"Menu_Window_MaximizeAll"_s, [] { Shared<Frm_Main>().Menu_Window_MaximizeAll(); }},
                     {u"Menu_Window_MinimizeAll"_s, [] { Shared<Frm_Main>().Menu_Window_MinimizeAll(); }},
                     {u"Menu_Window_SetH"_s, [] { Shared<Frm_Main>().Menu_Window_SetH(); }},
                     {u"Menu_Window_SetV"_s, [] { Shared<Frm_Main>().Menu_Window_SetV(); }}});
}

const Handlers& AllHandlers() {
    static const Handlers handlers = [] {
        Handlers all;
        AddDocumentHandlers(all);
        AddEditHandlers(all);
        AddHelpHandlers(all);
        AddViewHandlers(all);
        AddWindowHandlers(all);
        return all;
    }();
    return handlers;
}

} // namespace

bool Frm_Main::RunCommand(const QString& name) {
    const auto handler = AllHandlers().constFind(name);
    if (handler == AllHandlers().constEnd()) return Windows::ShowByCommand(name);
    (*handler)();
    return true;
}

bool Frm_Main::HasCommand(const QString& name) {
    const auto rows = Windows::Rows();
    return AllHandlers().contains(name) ||
           std::ranges::find(rows, name, &Windows::Row::command) != rows.end();
}
