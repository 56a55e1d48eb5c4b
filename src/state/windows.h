// SPDX-License-Identifier: MIT
// Showing and ending windows by their names. The rows are the one registry of windows; they stand in
// shell/windows.cpp, which knows all of them.
#pragma once

#include <QString>
#include <QStringView>
#include <functional>
#include <span>

namespace Windows {

struct Row {
    QStringView name;    // the window's own: "Frm_TagTools"
    QStringView command; // the menu item that shows it; empty where a handler of its own does
    void (*show)() = nullptr;
    void (*unload)() = nullptr;
};

// Sets the rows, which must outlive their use; none of them: no window answers, as in a test of a lower
// floor.
void Install(std::span<const Row> rows);
std::span<const Row> Rows();

// Shows a window. A name that no row answers is a fault of the program and told on the error channel.
void Show(QStringView name);
// Ends a window's life; does nothing when it is not loaded. Names as in Show().
void Unload(QStringView name);
// Shows the window that the menu item opens; returns whether there is one.
bool ShowByCommand(QStringView command);
void UnloadAll();

// Asked instead of the rows where it is set; for tests of a lower floor.
struct Stand {
    std::function<void(const QString&)> show;
    std::function<void(const QString&)> unload;
};
void StandIn(Stand stand);

} // namespace Windows
