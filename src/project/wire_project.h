// SPDX-License-Identifier: MIT
#pragma once

namespace Project {

// Answers the neighbour calls that mean the project window.
void WireProject();

void Menu_Tools_ProjectManager_Click();
// Saves the document and shows what it costs its readers.
void Menu_Tools_SpeedCheck_Click();

} // namespace Project
