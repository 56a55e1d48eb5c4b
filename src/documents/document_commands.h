// SPDX-License-Identifier: MIT
// The file side of the one document: open, import, save, backup, close.
#pragma once

#include "platform/code_page.h"

#include <QString>

namespace Documents {

// What a document stands in on disk, and its name in the status bar.
void SetFormat(const CodePage::Format& format);

// The text that is open: the code box's, or the held one while its window is closed.
QString CurrentText();
// Ends what belongs to the present document alone; another one takes its place, or none.
void ForgetText();
// The status bar without a document.
void ShowAtRest();
// Puts a recovered text into the new document that is open.
void ShowRestored(const CodePage::Decoded& text);

enum class SaveFirst { MustSucceed, MayFail };
// Asks under `title` whether unsaved changes are to be saved, and saves them. Returns whether the command may
// go on: yes without changes and for the answer no, never for cancel, and after saving as told by `save`;
// where it may fail, a recovery copy must have been written instead.
bool AskToSave(const QString& title, SaveFirst save);

// Loads a file. `preview` asks for the browser view and comes back as whether the page is shown in it: not
// where the settings do not want it, nor for a file that is no page.
void OpenFile(const QString& path, bool& preview);
void OpenFile(const QString& path); // with the wish for the preview
// A file dropped on the main window.
void DropFile(const QString& path);

void Menu_File_Open_Click();
void Menu_File_Import();
void Menu_File_Save_Click();
// As save, without refreshing the project view, for callers inside it.
void FileSaveWithoutManager();
void Menu_File_SaveAs();
void Menu_File_Close();
// Writes the document to its path plus ".bak". Tells nothing of a failure; returns whether it was written.
bool SaveBackUp();

} // namespace Documents

namespace Global {

// Forgets the document and unloads all its windows.
void CloseDocument();

} // namespace Global
