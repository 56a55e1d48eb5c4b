// SPDX-License-Identifier: MIT
#include "state/global.h"

#include "platform/events.h"
#include "platform/files.h"
#include "platform/literals.h"

#include <QDir>

namespace Global {

void Wait(double seconds) { Events::Wait(seconds); }

bool DirectoryExists(const QString& path) {
    return Files::FolderExists(path) && QDir::setCurrent(Files::ToSystem(path));
}

bool UpdateLogExists() { return Files::CanRead(Files::ProgramFile(u"update.log"_s)); }

void Reset() {
    for (QString* text : {&CurrentFile, &DocType, &CurrentExtension, &HeldSource, &TextBeforeSelection,
                          &TextAfterSelection, &DialogFile, &LastFile, &ProjectFiles, &WorkScreenSkin,
                          &FTP_Address, &FTP_UserName, &KnownTagString, &NoCloseTagString, &WordChangeList}) {
        text->clear();
    }
    for (bool* flag : {&DocOpen,           &DocChanged,         &SaveSucceeded,      &CloseSucceeded,
                       &PicturePreview,    &OpenFailed,         &SettingsRead,       &SkipUndoOnChange,
                       &AutoDebug,         &AutoProjectManager, &AutoMaximize,       &AutoPreView,
                       &ShowDebugReport,   &ListLinkErrors,     &UseWindowsMenu,     &ShowExternLinks,
                       &DontShowNewUpdate, &StartPending,       &AutoScan,           &SkinFileExists,
                       &CodeWindowOpen,    &BrowserOpen,        &DebuggerOpen,       &AssistantOpen,
                       &ProjectWindowOpen, &TagToolOpen,        &KCCToolOpen,        &ColorToolOpen,
                       &EventToolOpen,     &CharactersToolOpen, &FormatSubClassOpen, &NavigationBarOpen,
                       &ClipWindowOpen,    &LineZoomOpen}) {
        *flag = false;
    }
    DebugAccuracy = MaxLinkDeep = CurrentTip = FirstStart = 0;
    DocumentFormat = {};
    KeyCombos.fill({});
    EventNameList.fill({});
    TipList.fill({});
    for (ToolPos* place : {&TagToolPos, &ColorToolPos, &KCCToolPos, &EventToolPos, &CharactersToolPos,
                           &FormatSubClassPos, &NavigationPos, &LineZoomPos}) {
        place->fill({});
    }
}

} // namespace Global
