// SPDX-License-Identifier: MIT
// The commands of the menu "Vorschau".
#pragma once

#include <QString>

namespace Preview {

// Whether the file is of a kind that a browser shows: anything but scripts and style sheets.
bool CanBeShown(const QString& path);
// Path of the temporary copy of the current document.
QString TemporaryFile();

void Menu_View_Browser_Once();
void Menu_View_Browser_Temp();
void Menu_View_Browser_Project();
void Menu_View_Browser_WAP();

} // namespace Preview
