// SPDX-License-Identifier: MIT
#include "state/activation.h"

#include "platform/literals.h"
#include "state/commands.h"

namespace Activation {

namespace {

class Collector {
public:
    void Set(bool enabled, std::initializer_list<const char*> names) {
        for (const char* name : names) m_changes.emplace_back(QString::fromLatin1(name), enabled);
    }
    void SetButtons(bool enabled, std::initializer_list<int> places) {
        for (const int place : places) {
            const QString name = Commands::ButtonAt(place);
            if (!name.isEmpty()) m_changes.emplace_back(name, enabled); // place 20 is a separator
        }
    }
    void SetBranch(bool enabled, QStringView top) {
        int level = -1;
        for (const Commands::MenuRow& row : Commands::MenuTree()) {
            if (row.name == top) {
                level = row.level;
            } else if (level >= 0 && row.level <= level) {
                return;
            }
            if (level >= 0 && !row.name.isEmpty()) m_changes.emplace_back(row.name.toString(), enabled);
        }
    }
    Changes Take() { return std::move(m_changes); }

private:
    Changes m_changes;
};

void SetCodeCommands(Collector& set, bool open) {
    set.Set(open, {"Menu_Edit_Undo", "Menu_Edit_Redo"});
    set.SetButtons(open, {7, 8, 10, 11, 15, 16, 17, 18, 19, 21, 22, 23, 27, 28, 29, 30, 31, 32});
    set.Set(open,
            {"Menu_File_Import", "Menu_Edit_Cut", "Menu_Edit_Copy", "Menu_Edit_Paste", "Menu_Edit_Delete",
             "Menu_Edit_Search", "Menu_Edit_SelectAll", "Menu_Edit_EditString", "Menu_Edit_ChangeDigitSystem",
             "Menu_Edit_CalculateText", "Menu_View_Zoom", "Menu_Debug_Start", "Menu_Tools_Uml",
             "Menu_Tools_DeleteComment", "Menu_Tools_MadCode", "Menu_Tools_SpellingCheck"});
    set.SetBranch(open, u"Menu_Insert");
    set.Set(open, {"Menu_Tools_LCaseTags", "Menu_Tools_UCaseTags", "Menu_View_ColorStandard",
                   "Menu_View_ColorKCC", "Menu_View_TagTools", "Menu_View_Events", "Menu_View_Character",
                   "Menu_View_CloseTools", "Menu_View_FormatSubClass", "Menu_View_ShowJavaScriptBar"});
}

} // namespace

Changes Evaluate(const Snapshot& state) {
    Collector set;
    set.Set(state.hasFile, {"Menu_File_SaveBackUp", "Menu_File_ProjectBackUp", "Menu_File_UploadAssistant"});
    set.Set(state.projectWindowOpen, {"ToolBar_Browser_Project", "Menu_View_Browser_Project"});
    set.Set(state.browserOpen, {"Menu_View_Navigation"});

    set.Set(state.docOpen, {"Menu_File_Close"});
    set.SetButtons(state.docOpen, {3, 13, 14, 24, 25});
    set.Set(state.docOpen,
            {"Menu_File_Save", "Menu_File_SaveAs", "Menu_File_Print", "Menu_View_Code", "Menu_View_Browser",
             "Menu_View_SyntaxPreView", "Menu_Tools_ProjectManager", "Menu_Tools_SpeedCheck"});
    if (!state.docOpen) {
        set.SetButtons(false, {15, 16, 17, 20, 21});
        set.Set(false, {"Menu_View_ColorStandard", "Menu_View_ColorKCC", "Menu_View_TagTools"});
    }

    if (!state.browserOpen && !state.codeWindowOpen) {
        set.Set(false, {"Menu_Window_MaximizeAll", "Menu_Window_MinimizeAll"});
    }
    set.Set(state.browserOpen && state.codeWindowOpen, {"Menu_Window_SetH", "Menu_Window_SetV"});
    if (state.browserOpen) set.Set(true, {"Menu_Window_MaximizeAll", "Menu_Window_MinimizeAll"});

    SetCodeCommands(set, state.codeWindowOpen);
    set.SetButtons(state.codeWindowOpen && state.hasSelection, {5, 6});
    if (state.codeWindowOpen) {
        set.Set(state.undoTouched, {"Menu_Edit_Undo", "Menu_Edit_Redo"});
        set.SetButtons(state.undoTouched, {10, 11});
        set.Set(state.scriptCommands, {"Menu_Insert_JavaScript", "Menu_Insert_JavaScript_CurrentVar"});
        set.Set(state.hasSelection,
                {"Menu_Edit_Cut", "Menu_Edit_Copy", "Menu_Edit_Delete", "Menu_Edit_EditString",
                 "Menu_Edit_ChangeDigitSystem", "Menu_Edit_CalculateText"});
    }
    return set.Take();
}

void Apply(const Changes& changes) {
    for (const auto& [name, enabled] : changes) Commands::SetEnabled(name, enabled);
}

} // namespace Activation
