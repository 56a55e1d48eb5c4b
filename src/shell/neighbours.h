// SPDX-License-Identifier: MIT
// Calls to a window above or beside the caller. The start wires each once; a call that nobody has wired does
// nothing and answers with an empty value. So every window can be built and tested with only what lies below
// it.
#pragma once

#include <QString>
#include <functional>
#include <utility>

class CodeBox;
class Frm_Code;

template<class Signature> class Neighbour;

template<class Result, class... Arguments> class Neighbour<Result(Arguments...)> {
public:
    using Answer = std::function<Result(Arguments...)>;

    Result operator()(Arguments... arguments) const {
        if (!m_answer) return Result();
        return m_answer(std::forward<Arguments>(arguments)...);
    }
    // Wires the call; an empty answer unwires it.
    void AnsweredBy(Answer answer) { m_answer = std::move(answer); }
    bool IsAnswered() const { return static_cast<bool>(m_answer); }

private:
    Answer m_answer;
};

namespace Neighbours {

// Place and state of the main window as the settings hold them, in twips. Answered by Frm_Main.
struct MainPlace {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int state = 0; // 0 normal, 1 minimised, 2 maximised
};
inline Neighbour<MainPlace()> ReadMainPlace;

// The main window's size as the layout formulas take it, in twips: its client area plus 180 in width and 1370
// in height. 0 before it exists. Answered by Frm_Main.
struct Size {
    int width = 0;
    int height = 0;
};
inline Neighbour<Size()> MainSize;

// Frm_Main.
inline Neighbour<void()> ActivateFunktions;                 // recomputes which commands are open
inline Neighbour<void(const QString&)> SetMainCaption;      // window title; empty for the one at rest
inline Neighbour<void(int, const QString&)> SetStatusPanel; // panel of the status bar, from 1, and its text
inline Neighbour<void(const QString&, const QString&)>
    AddMenuAttribute; // caption and tag of a new menu entry
inline Neighbour<void()> UnloadMenuAttributes;
inline Neighbour<void(int, int)> PopupCodeMenu; // Menu_Code at a place of the screen, in pixels
inline Neighbour<void(bool)> ShowPleaseWait;    // the busy picture
inline Neighbour<void(int)> SetWorkProgress;    // percent of Prb_Work; below 0 hides it

// The code box of the one document window, which is loaded by this call if needed; nothing while no text
// document is open (Global::HasTextDocument). Answered by Frm_Code.
inline Neighbour<CodeBox*()> TheCodeBox;
// The same for the routines that are about to open or create a text document: it always comes.
inline Neighbour<CodeBox*()> OpenCodeBox;
inline Neighbour<void()> FocusCode; // brings Frm_Code to the front, focus in the code box; without text: no
inline Neighbour<void()> ShowCodeWindow;  // brings Frm_Code to the front; without a text document nothing
inline Neighbour<bool()> ScriptBarShown;  // whether the script bar of a loaded Frm_Code is uncovered
inline Neighbour<void()> ActivateToolBar; // of Frm_Code
inline Neighbour<void()> CheckOnce; // runs the check, if the debugger is shown, once per change of the text

// The aids that are attached to the code box. Answered by the editing folder.
inline Neighbour<void(Frm_Code*)> AttachToCode;         // the window is loading; nothing when it has gone
inline Neighbour<void()> HidePopupList;                 // Lvw_Attributes and Pic_Shadow
inline Neighbour<void(const QString&)> InsertAttribute; // of the tag under the last right click
inline Neighbour<void(double)> OpenAutoWord; // completes the word at the caret, to which the offset is added
inline Neighbour<void()> InsertCurrentVariable; // the one chosen in the script bar
inline Neighbour<void()> WatchTagForAssistant;  // after a change
inline Neighbour<void()> SubstituteUmlauts;     // after a change
inline Neighbour<void(int, int)> CodeKeyDown;   // key code and shift mask, before the box acts
inline Neighbour<void(int, int)> CodeKeyUp;     // key code and shift mask, behind the box's action
inline Neighbour<void(int, int, double, double)> CodeMouseDown; // button, shift mask, x and y in twips
inline Neighbour<void(double, double)> CodeMouseMove;           // x and y in twips
inline Neighbour<void()> CodeLostFocus;

// The other windows. Each is answered by the window named.
inline Neighbour<void(int, const QString&)> RunAnimation; // Frm_Assistant: animation and text
inline Neighbour<void(bool)> ShowAssistant;               // Frm_Assistant: show or unload
inline Neighbour<int()> AssistantWidth;                   // twips, 0 when not loaded
inline Neighbour<void()> LayoutAssistant;                 // Frm_Assistant: place at the right edge
inline Neighbour<void()> CheckSyntax;                     // Frm_DeBug
inline Neighbour<void()> ShowDebugger;                    // Frm_DeBug
inline Neighbour<int()> DebuggerHeight;                   // twips, 0 when not loaded
inline Neighbour<void()> LayoutDebugger;
inline Neighbour<void()> ShowProjectManager;
inline Neighbour<int()> ProjectManagerWidth; // twips, 0 when not loaded
inline Neighbour<void()> LayoutProjectManager;
inline Neighbour<void()> SearchLinks;          // Frm_ProjectManager
inline Neighbour<void()> DeleteFileIndex;      // Frm_ProjectManager: empties its list
inline Neighbour<void()> RefreshProject;       // Frm_ProjectManager: refreshes its list
inline Neighbour<QString()> ReturnIndexFile;   // Frm_ProjectManager: path of the project's index page
inline Neighbour<void()> UpdateClassList;      // Frm_FormatSubClass
inline Neighbour<void(const QString&)> Browse; // Frm_Browser: to the front, navigates to the path
inline Neighbour<void()> StartBrowser;         // browsing without a document
inline Neighbour<void()> StartWAPBrowser;      // its counterpart for the WAP simulation
inline Neighbour<void()> LayoutBrowser;
inline Neighbour<void(bool)> FitBrowser; // whether it is to be held to the main window's client area
inline Neighbour<void(int, int, int, int)> PlaceBrowser; // left, top, width, height in twips
// WAPBrowser: copies and converts the current page's site for the preview; returns whether that was done.
inline Neighbour<bool()> GenerateWAPPreview;
inline Neighbour<void()> CheckForUpdate; // looks for a newer version; shows its status on the splash

// Ends a window's life by its name; does nothing when it is not loaded. Answered by the start.
inline Neighbour<void(const QString&)> UnloadWindow;
// Carries out the command of a menu item by its name, as far as its window is built. Answered by the start.
inline Neighbour<void(const QString&)> RunTool;

// Unwires everything; for tests.
void Reset();

} // namespace Neighbours
