// SPDX-License-Identifier: MIT
// Which window answers which neighbour call: the one place that knows all windows.
#pragma once

#include <exception>

namespace Program {

// Thrown by the load of the main window when the program cannot go on; its message has been shown.
struct StartEnded : std::exception {};

} // namespace Program

namespace Wiring {

// Wires the calls that end or show a window by its name, and those that single windows answer.
void WireWindows();
// Ends the life of every window that still exists.
void UnloadAll();

} // namespace Wiring
