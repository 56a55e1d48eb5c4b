// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Txt_Code;

// A text box like the code box for a dialog: no character changes in it. It has a frame, the usual pop-up
// menu and the object name `name`; `label` is what assistive tools call it.
Txt_Code* MakePlainTextBox(const QString& name, const QString& label);
