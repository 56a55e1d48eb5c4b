// SPDX-License-Identifier: MIT
// What keys do in the code box besides what the box does with them. The steps of each handler run in their
// order, each on its own; one that fails is passed over.
#pragma once

class CodeBox;

namespace KeyHandling {

// Before the box acts. `key` and `shift` as the code box numbers them.
void KeyDown(CodeBox& box, int key, int shift);

// What a key's going up asks for.
enum class Wish { None, CompleteWord, ShowMembers };
Wish KeyUp(int key, int shift);

} // namespace KeyHandling
