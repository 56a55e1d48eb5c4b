// SPDX-License-Identifier: MIT
// Which commands are open, as a pure function of the state they depend on.
#pragma once

#include <QString>
#include <utility>
#include <vector>

namespace Activation {

// All that the enabled state of the commands depends on.
struct Snapshot {
    bool hasFile = false; // CurrentFile is not empty
    bool projectWindowOpen = false;
    bool browserOpen = false;
    bool docOpen = false;
    bool codeWindowOpen = false;
    bool undoTouched = false;
    bool scriptCommands = false; // script bar uncovered, extension JS or document type "JS"
    bool hasSelection = false;

    bool operator==(const Snapshot&) const = default;
};

// Object names with the state to set, in the order in which they are to be set; a name may stand twice, and
// the later one holds. Names that are not listed keep their state.
using Changes = std::vector<std::pair<QString, bool>>;
Changes Evaluate(const Snapshot& state);

// Sets the commands to `changes`.
void Apply(const Changes& changes);

} // namespace Activation
