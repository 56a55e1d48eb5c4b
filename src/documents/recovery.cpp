// SPDX-License-Identifier: MIT
#include "documents/recovery.h"

#include "documents/code_box.h"
#include "documents/document_commands.h"
#include "documents/document_file.h"
#include "documents/new_documents.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <utility>

namespace Recovery {

namespace {

// Whether the copy holds a text of the open document.
bool& BelongsToDocument() {
    static bool belongs = false;
    return belongs;
}

QString Path() { return Files::ProgramDirectory() + u"\\bckup.tmp"_s; }

void ShowCommand() { Commands::SetVisible(u"Menu_File_RestoreFile"_s, Exists()); }

} // namespace

bool Write() {
    CodePage::Format format = Global::DocumentFormat;
    const bool written = DocumentFile::Save(Path(), Documents::CurrentText(), format);
    if (written) BelongsToDocument() = true;
    ShowCommand();
    return written;
}

bool Exists() { return Files::CanRead(Path()); }

void Menu_File_RestoreFile() {
    const auto copy = DocumentFile::Load(Path());
    if (!copy) return;
    // "No" to the text that is open must not take the copy away that is about to be restored.
    const bool belonged = std::exchange(BelongsToDocument(), false);
    if (!Documents::AskToSave(u"Datei öffnen"_s, Documents::SaveFirst::MustSucceed)) {
        BelongsToDocument() = belonged;
        return;
    }
    Documents::CreateNewTextFile();
    Documents::ShowRestored(*copy);
    BelongsToDocument() = true;
}

void Settle() {
    if (!std::exchange(BelongsToDocument(), false)) return;
    Files::Remove(Path());
    ShowCommand();
}

void Leave() { BelongsToDocument() = false; }

} // namespace Recovery
