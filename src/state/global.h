// SPDX-License-Identifier: MIT
// The state that all windows share: one program, one document.
#pragma once

#include "platform/code_page.h"

#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>

namespace Global {

inline const QString ProgramName = QStringLiteral("Sorvane HTML Editor 3.0");

// The document.
inline QString CurrentFile; // full path; empty for a new document without a name
inline QString DocType;     // "HTML", "XHTML", "WML", "JS", "VBS", "CSS", "Text" or "IMG"
inline QString
    CurrentExtension; // of the opened file, lower case, without the dot; "none" if the path has none
inline bool DocOpen = false;
inline bool DocChanged = false;
inline bool SaveSucceeded = false;
inline bool CloseSucceeded = false;
inline QString HeldSource; // the document's text while Frm_Code is closed
inline QString TextBeforeSelection;
inline QString TextAfterSelection;
inline QString DialogFile; // path last chosen in a file dialog by import and the tools
inline QString LastFile;   // path last saved
inline bool PicturePreview = false;
inline bool OpenFailed = false; // CurrentFile names a file that could not be read; nobody holds a text of it
inline CodePage::Format DocumentFormat; // how the document stands on disk
inline bool SkipUndoOnChange = false;   // the coming change is the undo's own

// Windows, each true exactly while it is loaded.
inline bool CodeWindowOpen = false;
inline bool BrowserOpen = false;
inline bool DebuggerOpen = false;
inline bool AssistantOpen = false;
inline bool ProjectWindowOpen = false;
inline bool AutoScan = false; // SearchLinks scans; otherwise it only empties the project window's list
inline bool TagToolOpen = false;
inline bool KCCToolOpen = false;
inline bool ColorToolOpen = false;
inline bool EventToolOpen = false;
inline bool CharactersToolOpen = false;
inline bool FormatSubClassOpen = false;
inline bool NavigationBarOpen = false;
inline bool ClipWindowOpen = false;
inline bool LineZoomOpen = false;

// Settings.
inline bool AutoDebug = false;
inline bool AutoProjectManager = false;
inline bool AutoMaximize = false;
inline bool AutoPreView = false;
inline bool ShowDebugReport = false;
inline bool ListLinkErrors = false;
inline bool UseWindowsMenu = false;
inline bool ShowExternLinks = false;
inline bool DontShowNewUpdate = false;
inline std::int16_t DebugAccuracy = 0; // percent
inline std::int16_t MaxLinkDeep = 0;
inline std::int16_t CurrentTip = 0;
inline QString ProjectFiles; // extensions, each ended by a hyphen
inline QString WorkScreenSkin;
inline QString FTP_Address;
inline QString FTP_UserName;
inline std::array<QString, 100> KeyCombos;

// Place of a tool window as decimal text in twips: 1 left, 2 top, 3 width, 4 height. Element 0 says "True"
// when the tool was open as the document window last closed.
using ToolPos = std::array<QString, 5>;
inline ToolPos TagToolPos;
inline ToolPos ColorToolPos;
inline ToolPos KCCToolPos;
inline ToolPos EventToolPos;
inline ToolPos CharactersToolPos;
inline ToolPos FormatSubClassPos;
inline ToolPos NavigationPos;
inline ToolPos LineZoomPos;

// Start.
inline bool StartPending = false;
inline std::int16_t FirstStart = 0; // not zero when this run had to create the settings file
inline bool SkinFileExists = false;
inline bool SettingsRead = false; // edit.ini has been read or made; until then nothing is written over it

// Lists, read-only once the start has loaded them.
inline QString KnownTagString;
inline QString NoCloseTagString;
inline QString WordChangeList;
inline std::array<QString, 101> EventNameList; // element 0: the count as text
inline std::array<QString, 101> TipList;       // element 0: the count as text

// Whether a document is open that may be saved: not so behind a failed opening.
inline bool HasDocument() { return DocOpen && !OpenFailed; }
// The document window comes only for a text document that is open: not for a picture, nor for a file that
// could not be read, nor when there is none.
inline bool HasTextDocument() { return HasDocument() && !PicturePreview; }

// Handles window events until `seconds` have passed.
void Wait(double seconds);
// Makes the directory `path` current, leaves it current on success and says whether that worked.
bool DirectoryExists(const QString& path);
// Whether update.log stands in the program directory and can be opened.
bool UpdateLogExists();

// Everything as it is before the program has started; for tests.
void Reset();

} // namespace Global
