// SPDX-License-Identifier: MIT
// The recovery copy bckup.tmp in the program directory: a text that could not be saved. It goes once its text
// is saved, or once its user has given it up. A copy of another text is never written over: it steps back as
// bckup1.tmp, bckup2.tmp ... and comes forward again.
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

// The open document's text has been saved or is given up: its copy goes.
void Settle();
// Whether the user has answered that the open text need not be saved. It counts once the text really goes.
void Decline(bool declined);
// Another document takes the open one's place, or it closes: a declined copy goes, any other stays for the
// next start.
void Leave();

} // namespace Recovery
