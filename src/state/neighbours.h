// SPDX-License-Identifier: MIT
// Calls to a window above or beside the caller, grouped by who answers them. The start wires each once; a
// call that nobody has wired does nothing and answers with an empty value. So every window can be built and
// tested with only what lies below it. Showing and ending windows by their names: state/windows.h.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <utility>

class CodeBox;
class CodeHost;

namespace Neighbours {

// What all calls have in common; each knows its name and enters itself in one list.
class AnyCall {
public:
    explicit AnyCall(const char* name);
    virtual ~AnyCall() = default;
    AnyCall(const AnyCall&) = delete;
    AnyCall& operator=(const AnyCall&) = delete;
    virtual bool IsAnswered() const = 0;
    virtual void Unwire() = 0;
    const char* Name() const { return m_name; }

private:
    const char* m_name;
};

template<class Signature> class Call;

template<class Result, class... Arguments> class Call<Result(Arguments...)> : public AnyCall {
public:
    using AnyCall::AnyCall;
    using Answer = std::function<Result(Arguments...)>;

    Result operator()(Arguments... arguments) const {
        if (!m_answer) return Result();
        return m_answer(std::forward<Arguments>(arguments)...);
    }
    // Wires the call; an empty answer unwires it.
    void AnsweredBy(Answer answer) { m_answer = std::move(answer); }
    bool IsAnswered() const override { return static_cast<bool>(m_answer); }
    void Unwire() override { m_answer = {}; }

private:
    Answer m_answer;
};

// Names of the calls that nobody answers; all of them before the start.
QStringList Unanswered();
// Unwires everything; for tests.
void Reset();

// --- Frm_Main: the main window
// ----------------------------------------------------------------------------------

// Place and state of the main window as the settings hold them, in twips.
struct MainPlace {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int state = 0; // 0 normal, 1 minimised, 2 maximised
};
inline Call<MainPlace()> ReadMainPlace{"ReadMainPlace"};
// The main window's size as the layout formulas take it, in twips: its client area plus 180 in width and 1370
// in height. 0 before it exists.
struct Size {
    int width = 0;
    int height = 0;
};
inline Call<Size()> MainSize{"MainSize"};
inline Call<void()> ActivateFunktions{"ActivateFunktions"};         // recomputes which commands are open
inline Call<void(const QString&)> SetMainCaption{"SetMainCaption"}; // window title; empty for the one at rest
// The panels of the status bar, by their numbers; Work is the room for what long work has to say.
enum Panel {
    TypePanel = 1,
    StatePanel,
    WorkPanel,
    RowPanel,
    ColumnPanel,
    DatePanel,
    TimePanel,
    EncodingPanel
};
inline Call<void(int, const QString&)> SetStatusPanel{"SetStatusPanel"}; // panel and its text
inline Call<void(bool)> ShowPleaseWait{"ShowPleaseWait"};                // the busy picture
inline Call<void(int)> SetWorkProgress{"SetWorkProgress"}; // percent of Prb_Work; below 0 hides it
inline Call<void(const QString&, const QString&)> AddMenuAttribute{"AddMenuAttribute"}; // caption and tag
inline Call<void()> UnloadMenuAttributes{"UnloadMenuAttributes"};
inline Call<void(int, int)> PopupCodeMenu{"PopupCodeMenu"}; // Menu_Code at a place of the screen, in pixels

// --- Frm_Code: the document window
// ------------------------------------------------------------------------------

// The code box of the one document window, which is loaded by this call if needed; nothing while no text
// document is open (Global::HasTextDocument).
inline Call<CodeBox*()> TheCodeBox{"TheCodeBox"};
// The same for the routines that are about to open or create a text document: it always comes.
inline Call<CodeBox*()> OpenCodeBox{"OpenCodeBox"};
inline Call<void()> FocusCode{"FocusCode"}; // to the front, focus in the code box; only with a text document
inline Call<void()> ShowCodeWindow{"ShowCodeWindow"};   // to the front; only with a text document
inline Call<bool()> ScriptBarShown{"ScriptBarShown"};   // whether its script bar is uncovered
inline Call<void()> ActivateToolBar{"ActivateToolBar"}; // in line with the document type
inline Call<void()> CheckOnce{"CheckOnce"}; // the check, if the debugger is shown, once per change

// --- the aids that are attached to the code box (editing)
// -------------------------------------------------------

inline Call<void(CodeHost*)> AttachToCode{"AttachToCode"}; // the window is loading; nothing when it has gone
inline Call<void()> HidePopupList{"HidePopupList"};        // Lvw_Attributes and Pic_Shadow
inline Call<void(const QString&)> InsertAttribute{"InsertAttribute"}; // of the tag under the last right click
inline Call<void(double)> OpenAutoWord{"OpenAutoWord"}; // completes the word at the caret plus the offset
inline Call<void()> InsertCurrentVariable{"InsertCurrentVariable"}; // the one chosen in the script bar
inline Call<void()> WatchTagForAssistant{"WatchTagForAssistant"};   // after a change
inline Call<void()> SubstituteUmlauts{"SubstituteUmlauts"};         // after a change
inline Call<void(int, int)> CodeKeyDown{"CodeKeyDown"}; // key code and shift mask, before the box acts
inline Call<void(int, int)> CodeKeyUp{"CodeKeyUp"};     // key code and shift mask, behind the box's action
inline Call<void(int, int, double, double)> CodeMouseDown{
    "CodeMouseDown"};                                             // button, shift mask, x, y in twips
inline Call<void(double, double)> CodeMouseMove{"CodeMouseMove"}; // x and y in twips
inline Call<void()> CodeLostFocus{"CodeLostFocus"};

// --- Frm_Assistant
// ----------------------------------------------------------------------------------------------

inline Call<void(int, const QString&)> RunAnimation{"RunAnimation"}; // animation and text
inline Call<void(bool)> ShowAssistant{"ShowAssistant"};              // show or unload
inline Call<int()> AssistantWidth{"AssistantWidth"};                 // twips, 0 when not loaded
inline Call<void()> LayoutAssistant{"LayoutAssistant"};              // at the right edge

// --- Frm_DeBug: the debugger
// ------------------------------------------------------------------------------------

inline Call<void()> CheckSyntax{"CheckSyntax"};
inline Call<void()> ShowDebugger{"ShowDebugger"};
inline Call<int()> DebuggerHeight{"DebuggerHeight"}; // twips, 0 when not loaded
inline Call<void()> LayoutDebugger{"LayoutDebugger"};

// --- Frm_ProjectManager
// -----------------------------------------------------------------------------------------

inline Call<void()> ShowProjectManager{"ShowProjectManager"};
inline Call<int()> ProjectManagerWidth{"ProjectManagerWidth"}; // twips, 0 when not loaded
inline Call<void()> LayoutProjectManager{"LayoutProjectManager"};
inline Call<void()> SearchLinks{"SearchLinks"};
inline Call<void()> DeleteFileIndex{"DeleteFileIndex"};    // empties its list
inline Call<void()> RefreshProject{"RefreshProject"};      // refreshes its list
inline Call<QString()> ReturnIndexFile{"ReturnIndexFile"}; // path of the project's index page

// --- Frm_FormatSubClass: the class list
// -------------------------------------------------------------------------

inline Call<void()> UpdateClassList{"UpdateClassList"};

// --- Frm_Browser: the preview
// -----------------------------------------------------------------------------------

inline Call<void(const QString&)> Browse{"Browse"};     // to the front, navigates to the path
inline Call<void()> StartBrowser{"StartBrowser"};       // browsing without a document
inline Call<void()> StartWAPBrowser{"StartWAPBrowser"}; // its counterpart for the WAP simulation
inline Call<void()> LayoutBrowser{"LayoutBrowser"};
inline Call<void(bool)> FitBrowser{"FitBrowser"}; // whether it is held to the main window's client area
inline Call<void(int, int, int, int)> PlaceBrowser{"PlaceBrowser"}; // left, top, width, height in twips

// --- the update check
// -------------------------------------------------------------------------------------------

inline Call<void()> CheckForUpdate{
    "CheckForUpdate"}; // looks for a newer version; shows its status on the splash

} // namespace Neighbours
