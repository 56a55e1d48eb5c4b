// SPDX-License-Identifier: MIT
#include "shell/neighbours.h"

namespace Neighbours {

void Reset() {
    const auto unwire = [](auto&... calls) { (calls.AnsweredBy({}), ...); };
    unwire(ReadMainPlace, MainSize, AttachToCode, ActivateFunktions, SetMainCaption, SetStatusPanel,
           AddMenuAttribute, UnloadMenuAttributes, ShowPleaseWait, SetWorkProgress, TheCodeBox, OpenCodeBox,
           FocusCode, ShowCodeWindow, ScriptBarShown, ActivateToolBar, HidePopupList, CheckOnce, OpenAutoWord,
           InsertCurrentVariable, WatchTagForAssistant, SubstituteUmlauts, CodeKeyDown, CodeKeyUp,
           CodeMouseDown, CodeMouseMove, CodeLostFocus, RunAnimation, ShowAssistant, AssistantWidth,
           LayoutAssistant, CheckSyntax, ShowDebugger, DebuggerHeight, LayoutDebugger, ShowProjectManager,
           ProjectManagerWidth, LayoutProjectManager, SearchLinks, DeleteFileIndex, RefreshProject,
           UpdateClassList, Browse, StartBrowser, StartWAPBrowser, LayoutBrowser, FitBrowser, PlaceBrowser,
           GenerateWAPPreview, ReturnIndexFile, CheckForUpdate, PopupCodeMenu, InsertAttribute, UnloadWindow,
           RunTool);
}

} // namespace Neighbours
