// SPDX-License-Identifier: MIT
#pragma once

// The aids that are attached to the document window: keys, popup list, script bar, the watch on the tag.
namespace CodeAids {

// Wires the neighbour calls that these aids answer.
void Wire();

} // namespace CodeAids
