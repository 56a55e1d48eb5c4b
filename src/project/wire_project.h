// SPDX-License-Identifier: MIT
#pragma once

namespace Project {

// Answers the neighbour calls that mean the project window.
void WireProject();

void Menu_Tools_ProjectManager_Click();

} // namespace Project
