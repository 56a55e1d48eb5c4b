// SPDX-License-Identifier: MIT
// Which window answers which neighbour call: the one place that knows all windows.
#pragma once

#include <exception>

namespace Program {

// Thrown by the load of the main window when the program cannot go on; its message has been shown.
struct StartEnded : std::exception {};

} // namespace Program

namespace Wiring {

// Wires all neighbour calls and enters all windows.
void WireWindows();
// Enters all windows, so that they can be shown and ended by their names.
void InstallWindows();
// Ends the life of every window that still exists.
void UnloadAll();

} // namespace Wiring
