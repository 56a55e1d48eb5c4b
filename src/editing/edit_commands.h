// SPDX-License-Identifier: MIT
// The commands that work on the selection of the code box or at its caret. Those that change the text take an
// undo copy first.
#pragma once

#include <QString>

namespace Global {

// The text turned around, with its line breaks kept as CR LF.
QString ReverseText(const QString& text);
// Writes `replacement` over each `marker` in `text`, from the first on; both must have the same length.
// The search goes on from the hit and not from its own last start: from there it would take the end of one
// new line break and the start of the next for a marker.
void ReplaceSameLength(QString& text, QStringView marker, QStringView replacement);

} // namespace Global

namespace EditCommands {

void Menu_Edit_Cut_Click();
void Menu_Edit_Copy_Click();
void Menu_Edit_Paste_Click();
void Menu_Edit_Delete();
void Menu_Edit_SelectAll();

void Menu_Edit_EditString_UCase();
void Menu_Edit_EditString_LCase();
void Menu_Edit_EditString_Turn();

void Menu_Edit_ChangeDigitSystem_Hex();
void Menu_Edit_ChangeDigitSystem_Okt();
void Menu_Edit_ChangeDigitSystem_Bin();

void Menu_Edit_CalculateText_ASCII();
void Menu_Edit_CalculateText_Average();
void Menu_Edit_CalculateText_Count();
void Menu_Edit_CalculateText_Total();

void Menu_Script_ManipulateNumbers();

void Menu_Insert_Date();
void Menu_Insert_Time();
void Menu_Insert_FileName();
void Menu_Insert_CloseTag();

void Menu_Tools_UCaseTags();
void Menu_Tools_LCaseTags();

} // namespace EditCommands
