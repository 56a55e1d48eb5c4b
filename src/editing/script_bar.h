// SPDX-License-Identifier: MIT
// The bar above the code: functions and variables of the script, and a new function with one click.
#pragma once

class CodeHost;

namespace ScriptBar {

// Makes the controls of the window's bar work. Its lists are filled when they drop down.
void Attach(CodeHost& window);
// Inserts the chosen variable at the caret.
void InsertCurrentVariable(CodeHost& window);

} // namespace ScriptBar
