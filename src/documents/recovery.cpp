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

bool& IsDeclined() {
    static bool declined = false;
    return declined;
}

QString Path() { return Files::ProgramDirectory() + u"\\bckup.tmp"_s; }

// The copies of other texts, the last one the youngest.
QString OlderPath(int number) { return Files::ProgramDirectory() + u"\\bckup%1.tmp"_s.arg(number); }

int CountOfOlder() {
    int count = 0;
    while (Files::CanRead(OlderPath(count + 1))) ++count;
    return count;
}

// Makes room for a copy of the open document's text. Returns whether there is room.
bool StepBack() {
    if (BelongsToDocument() || !Exists()) return true;
    return Files::Rename(Path(), OlderPath(CountOfOlder() + 1));
}

void StepForward() {
    if (const int older = CountOfOlder(); older > 0 && !Exists()) Files::Rename(OlderPath(older), Path());
}

void ShowCommand() { Commands::SetVisible(u"Menu_File_RestoreFile"_s, Exists()); }

} // namespace

bool Write() {
    CodePage::Format format = Global::DocumentFormat;
    const bool written = StepBack() && DocumentFile::Save(Path(), Documents::CurrentText(), format);
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
    StepForward();
    ShowCommand();
}

void Decline(bool declined) { IsDeclined() = declined; }

void Leave() {
    if (std::exchange(IsDeclined(), false)) Settle();
    BelongsToDocument() = false;
}

} // namespace Recovery
