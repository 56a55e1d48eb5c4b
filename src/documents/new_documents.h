// SPDX-License-Identifier: MIT
// New documents of each kind. Each routine replaces the document that is there without asking; the menu
// commands ask about unsaved changes first.
#pragma once

namespace Documents {

void CreateNewHTMLFile();
void CreateNewXHTMLFile();
void CreateNewWMLFile();
void CreateNewJavaScript();
void CreateNewTextFile();

void Menu_File_NewPage();
void Menu_File_NewXHTMLFile();
void Menu_File_NewWAPPage();
void Menu_File_NewFile();
void Menu_File_NewDocument(); // shows the start dialog

} // namespace Documents
