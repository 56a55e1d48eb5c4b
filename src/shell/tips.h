// SPDX-License-Identifier: MIT
#pragma once

namespace Tips {

// Reads tips.lst into the shared list, a tip a line; false for a missing file or one of more than 100 lines.
bool LoadTips();

} // namespace Tips
