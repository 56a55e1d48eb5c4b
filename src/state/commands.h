// SPDX-License-Identifier: MIT
// The commands of the main window as one table, and their present state. Menus and tool bar are built from
// the table; the state is kept here and shown by whoever watches it, so that logic can ask and set it without
// a window.
#pragma once

#include <QString>
#include <QStringView>
#include <functional>
#include <span>

namespace Commands {

enum Flag : unsigned {
    None = 0,
    Hidden = 1,     // exists, but is not visible at start
    Checked = 2,    // begins with a check mark
    Checkable = 4,  // shows a check mark when it is set
    Submenu = 8,    // holds the rows below it that stand one level deeper
    Separator = 16, // a line; has no name of its own
};

// One row of the menu tree, in its order. `level` 0 is the menu bar.
struct MenuRow {
    int level;
    QStringView name;
    QStringView caption;  // "&" marks the access key
    QStringView shortcut; // portable text, such as "Ctrl+S"
    unsigned flags = None;
    QStringView icon = {};
};
std::span<const MenuRow> MenuTree();

// One of the 32 places of the tool bar; a place without a key is a separator. `command` names the menu item
// whose routine it runs.
struct ToolBarRow {
    QStringView key;
    QStringView tip;
    QStringView command;
    QStringView icon;
};
inline constexpr int ToolBarPlaces = 32;
std::span<const ToolBarRow> ToolBar(); // element 0 is place 1

// An entry of the drop-down of a tool button.
struct DropDownRow {
    QStringView button; // key of the button
    QStringView key;
    QStringView text; // with a tab before the shortcut text
    QStringView command;
    QStringView icon;
};
std::span<const DropDownRow> DropDowns();

// Object names of tool buttons and drop-down entries: "ToolBar_SaveFile", "ToolBar_Browser_Temp".
QString ButtonName(QStringView key);
QString EntryName(QStringView button, QStringView key);
// The object name of the button at one of the places 1 to 32; empty for a separator.
QString ButtonAt(int place);

struct State {
    bool enabled = true;
    bool visible = true;
    bool checked = false;
};

// State of a menu item, tool button or drop-down entry by its object name. Asking for a name that is in no
// table is a fault of the program and ends it in a debug build.
const State& StateOf(const QString& name);
void SetEnabled(const QString& name, bool enabled);
void SetVisible(const QString& name, bool visible);
void SetChecked(const QString& name, bool checked);
bool IsChecked(const QString& name);
// Puts every command back into its state at start.
void ResetStates();

// Called with the name of a command behind each change of its state.
void Watch(std::function<void(const QString&)> watcher);

} // namespace Commands
