// SPDX-License-Identifier: MIT
#pragma once

// Wires the calls that the debugger answers.
void WireDebugger();
