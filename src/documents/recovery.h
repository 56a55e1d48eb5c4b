// SPDX-License-Identifier: MIT
// The recovery copy bckup.tmp in the program directory: a text that could not be saved. It goes once its text
// is saved, or once the user has answered that it need not be.
#pragma once

namespace Recovery {

// Writes the document's text to the copy, which from then on belongs to the open document. Returns whether it
// worked.
bool Write();
// Whether there is a copy to restore.
bool Exists();
// Opens the copy as a new, changed document of the type that its text tells. Asks about unsaved text before;
// a copy that cannot be read leaves all as it is.
void Menu_File_RestoreFile();

// The open document's text has been saved, or its user has declined to: its copy goes.
void Settle();
// Another document takes the open one's place, or it closes: the copy stays for the next start.
void Leave();

} // namespace Recovery
