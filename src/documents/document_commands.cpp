// SPDX-License-Identifier: MIT
#include "documents/document_commands.h"

#include "documents/code_access.h"
#include "documents/code_box.h"
#include "documents/document_file.h"
#include "documents/paths.h"
#include "documents/recovery.h"
#include "documents/undo.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/text.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/windows.h"

namespace Documents {

namespace {

using Dialogs::Answer;

const QString UnsavedQuestion =
    QStringLiteral("Die aktuelle Datei wurde noch nicht gespeichert. Möchten Sie das jetzt tun?");

const QString FileGroups = QStringLiteral(
    "Internet-Seiten (*.htm;*.html)|*.htm;*.html|WAP-Seiten (*.wml)|*.wml|StyleSheets (*.css)|*.css|"
    "Textdateien (*.txt)|*.txt|");
const QString LastGroups = QStringLiteral("Scripte (*.js;*.vbs)|*.js;*.vbs|Alle Dateien (*.*)|*.*");
const QString OpenFilter = QStringLiteral("Alle unterstützten Dateien "
                                          "(*.htm;*.html;*.wml;*.css;*.bak;*.txt;*.js;*.vbs)|"
                                          "*.htm;*.html;*.wml;*.css;*.bak;*.txt;*.js;*.vbs;*.wml|") +
                           FileGroups + QStringLiteral("Backupdateien (*.bak)|*.bak|") + LastGroups;
const QString ImportFilter = QStringLiteral("Alle unterstützten Dateien "
                                            "(*.htm;*.html;*.wml;*.css;*.bak;*.txt;*.vbs;*.js)|"
                                            "*.htm;*.html;*.wml;*.css;*.bak;*.txt;*.vbs;*.js|") +
                             FileGroups + QStringLiteral("Backupdateien (*.bak)|*.bak|") + LastGroups;
const QString SaveFilter = FileGroups + LastGroups;

void TellError(const QString& text) { Dialogs::Tell(u"Fehler"_s, text, Dialogs::Icon::Critical); }

void SetType(const QString& type, const QString& remark) {
    if (type.isEmpty() && Global::AssistantOpen) Neighbours::RunAnimation(2, remark);
    Global::DocType = type.isEmpty() ? u"Text"_s : type;
    Neighbours::SetStatusPanel(Neighbours::TypePanel, DocumentFile::PanelText(Global::DocType));
}

void ShowFileCaption(const QString& path) {
    Neighbours::SetMainCaption(u"%1 [%2]"_s.arg(Global::ProgramName, Global::FileNameOf(path)));
}

// CurrentFile keeps the name of the file that could not be read, but no text goes under that name: the one
// that was open has had its question, and goes with its window.
void FailToOpen() {
    if (Global::CodeWindowOpen) Windows::Unload(u"Frm_Code");
    if (Global::BrowserOpen) Windows::Unload(u"Frm_Browser");
    ForgetText();
    Global::OpenFailed = true;
    ShowAtRest();
    Neighbours::ActivateFunktions();
    TellError(
        u"Fehler beim Laden der Datei. Stellen Sie sicher, dass die Datei existiert und nicht geschützt ist."_s);
}

bool OpenPicture(const QString& path) {
    auto picture = DocumentFile::LoadRaw(path);
    if (!picture) return false;
    Neighbours::ActivateToolBar();
    Windows::Unload(u"Frm_Code");
    ForgetText();
    Global::PicturePreview = true;
    // The bytes are kept as they are: a save must not take them for text.
    Global::HeldSource = std::move(picture->text);
    picture->format.lfOnly = false;
    SetFormat(picture->format);
    Neighbours::SetStatusPanel(Neighbours::EncodingPanel, {}); // bytes, no text
    Neighbours::Browse(path);
    SetType(u"IMG"_s, {});
    return true;
}

void RefreshWindows() {
    if (Global::DebuggerOpen) Neighbours::CheckSyntax();
    if (Global::ProjectWindowOpen) Neighbours::SearchLinks();
    if (Global::FormatSubClassOpen) Neighbours::UpdateClassList();
    if (Global::AutoDebug) Neighbours::ShowDebugger();
    if (Global::AutoProjectManager && !Global::ProjectWindowOpen) {
        Neighbours::ShowProjectManager();
        Neighbours::SearchLinks();
    }
}

// `preview` comes back as whether the page is shown in the preview, which only a page can be.
bool OpenText(const QString& path, bool& preview) {
    auto document = DocumentFile::Load(path);
    if (!document) return false;
    ForgetText();
    CodeBox* box = Neighbours::OpenCodeBox();
    if (!box) return false;
    Neighbours::HidePopupList();
    box->BeginDocument(document->text);
    SetFormat(document->format);
    Neighbours::ActivateToolBar();
    preview = preview && Text::UpperCase(Global::CurrentExtension).startsWith(u"HTM");
    if (preview) {
        Neighbours::ShowCodeWindow(); // behind the preview, where its user finds it
        Neighbours::Browse(path);
    } else {
        Neighbours::FocusCode();
    }
    SetType(DocumentFile::TypeOnOpen(document->text, Global::CurrentExtension),
            u"Huston, wir haben ein Problem. Der Dokumenttyp konnte nicht ermittelt werden. Die Datei wird "
            u"als Text "
            "geöffnet."_s);
    Neighbours::ActivateToolBar(); // once more, now that the type is known: a script before must leave no
                                   // trace
    return true;
}

} // namespace

void SetFormat(const CodePage::Format& format) {
    Global::DocumentFormat = format;
    Neighbours::SetStatusPanel(Neighbours::EncodingPanel, CodePage::Name(format));
}

QString CurrentText() {
    const CodeBox* box = Global::CodeWindowOpen ? Neighbours::TheCodeBox() : nullptr;
    return box ? box->Text() : Global::HeldSource;
}

void ForgetText() {
    Recovery::Leave();
    Global::HeldSource.clear();
    Global::PicturePreview = Global::OpenFailed = Global::DocChanged = false;
    Neighbours::SetStatusPanel(Neighbours::WorkPanel, {}); // what was said of the document before
}

void ShowAtRest() {
    Neighbours::SetStatusPanel(Neighbours::TypePanel, u"Bereit"_s);
    Neighbours::SetStatusPanel(Neighbours::StatePanel, u"Bereit"_s);
    Neighbours::SetStatusPanel(Neighbours::EncodingPanel, {});
}

bool AskToSave(const QString& title, SaveFirst save) {
    Recovery::Decline(false);
    if (!Global::DocChanged) return true;
    switch (
        Dialogs::MsgBox({title, UnsavedQuestion, Dialogs::Icon::Question, Dialogs::Buttons::YesNoCancel})) {
    case Answer::Yes:
        Menu_File_Save_Click();
        // A text that was to be saved is not given up before there is a copy of it.
        return Global::SaveSucceeded || (save == SaveFirst::MayFail && Recovery::Write());
    case Answer::No:
        Recovery::Decline(true);
        return true;
    default:
        return false;
    }
}

void OpenFile(const QString& path, bool& preview) {
    Undo::UndoClear();
    if (!Global::AutoPreView) preview = false;
    Global::CurrentFile = path;
    Global::CurrentExtension = Global::ExtensionOf(path);
    Windows::Unload(u"Frm_Welcome");
    const bool picture = DocumentFile::IsPicture(Global::CurrentExtension);
    if (picture ? !OpenPicture(path) : !OpenText(path, preview)) {
        FailToOpen();
        return;
    }
    ShowFileCaption(path);
    Global::DocOpen = true;
    Global::DocChanged = false;
    Neighbours::SetStatusPanel(Neighbours::StatePanel, u"gespeichert"_s);
    Neighbours::ActivateFunktions();
    if (picture) return;
    // The scan of the links lets events run: whatever its user does meanwhile must not be undone behind it,
    // so the document's state is settled before.
    RefreshWindows();
    const bool same = Global::CurrentFile == path && Global::CodeWindowOpen;
    // the user types on in the page, not in a window that has just come up
    if (same && !preview) Neighbours::FocusCode();
    Neighbours::ActivateFunktions();
}

void OpenFile(const QString& path) {
    bool preview = true;
    OpenFile(path, preview);
}

void DropFile(const QString& path) {
    if (AskToSave(u"Schließen"_s, SaveFirst::MustSucceed)) OpenFile(path);
}

void Menu_File_Open_Click() {
    Windows::Unload(u"Frm_Welcome");
    if (!AskToSave(u"Datei öffnen"_s, SaveFirst::MayFail)) return;
    const QString path = Dialogs::OpenFileDialog(u"Öffnen"_s, OpenFilter);
    if (path.isEmpty()) return;
    if (Global::ProjectWindowOpen) Neighbours::DeleteFileIndex();
    OpenFile(path);
}

void Menu_File_Import() {
    const QString path = Dialogs::OpenFileDialog(u"Importieren"_s, ImportFilter);
    if (path.isEmpty()) return;
    Global::DialogFile = path;
    Undo::PushUndo();
    const auto document = DocumentFile::Load(path);
    CodeBox* box = document ? Neighbours::TheCodeBox() : nullptr;
    if (!box) {
        TellError(u"Fehler beim Laden der Datei."_s);
        return;
    }
    QString text = document->text;
    if (!text.isEmpty() && !text.endsWith(Text::LineBreak)) text += Text::LineBreak;
    box->SetSelText(text);
}

namespace {

// The bytes of a picture are no text: nothing is taken from them but the line end that is added again.
QString PictureToWrite(const QString& bytes) {
    return bytes.endsWith(Text::LineBreak) ? bytes.chopped(Text::LineBreak.size()) : bytes;
}

// The text as it goes to disk. Tabs become 6 blanks in the box of a WML document and 3 in the held text; both
// stand as designed.
QString TextToWrite(bool wml) {
    const bool lower = Commands::IsChecked(u"Menu_Tools_Option_2"_s);
    QString text;
    if (CodeBox* box = Global::CodeWindowOpen ? Neighbours::TheCodeBox() : nullptr) {
        if (wml && box->Text().contains(u'\t')) {
            const qsizetype caret = box->SelStart();
            const qsizetype tabs = QStringView(box->Text()).first(caret).count(u'\t');
            box->SetText(box->Text().replace(u'\t', u"      "_s));
            box->SetSelStart(caret + 5 * tabs); // the caret stays at its character
        }
        text = box->Text();
    } else {
        text = Global::HeldSource;
    }
    if (Global::PicturePreview) return PictureToWrite(text);
    if (lower) CodeAccess::LowerCaseTags(text);
    text = DocumentFile::TrimTail(text);
    if (wml) text.replace(u'\t', u"   "_s);
    return text;
}

void WriteDocument(bool refreshProject) {
    if (Global::OpenFailed) return;
    const QString path = Global::CurrentFile;
    const QString extension = Global::ExtensionOf(path);
    const QString text = TextToWrite(extension == u"wml");
    CodePage::Format format = Global::DocumentFormat;
    if (!DocumentFile::Save(path, text, format)) {
        TellError(
            u"Fehler beim Speichern der Datei. Stellen Sie sicher, dass die Datei nicht schreibgeschützt ist."_s);
        Global::CurrentFile.clear(); // the next save asks for a name
        // whatever the disk held before may be gone: the text is not saved
        Global::DocChanged = true;
        Neighbours::SetStatusPanel(Neighbours::StatePanel, u"geändert"_s);
        if (Global::ProjectWindowOpen) Neighbours::RefreshProject();
        Neighbours::ActivateFunktions();
        return;
    }
    Recovery::Settle();
    if (!Global::PicturePreview) SetFormat(format);
    ShowFileCaption(path);
    Global::LastFile = path;
    Global::SaveSucceeded = Global::DocOpen = true;
    Global::DocChanged = false;
    Neighbours::SetStatusPanel(Neighbours::StatePanel, u"gespeichert"_s);
    // There is no extension test here but for wml: saving a style sheet turns its type into "Text". A
    // picture, which has no text to look into, stays one.
    if (!Global::PicturePreview) {
        SetType(DocumentFile::TypeOnSave(text, extension),
                u"Der Dokumenttyp konnte nicht ermittelt werden. Die Datei ist als Text geöffnet."_s);
    }
    if (refreshProject && Global::ProjectWindowOpen) Neighbours::SearchLinks();
    if (Global::FormatSubClassOpen) Neighbours::UpdateClassList();
    Neighbours::ActivateToolBar();
    Neighbours::ActivateFunktions();
}

void Save(bool refreshProject) {
    Global::SaveSucceeded = false;
    if (Global::CurrentFile.isEmpty()) {
        Menu_File_SaveAs();
    } else {
        WriteDocument(refreshProject);
    }
}

} // namespace

void Menu_File_Save_Click() { Save(true); }

void FileSaveWithoutManager() { Save(false); }

void Menu_File_SaveAs() {
    Global::SaveSucceeded = false;
    if (Global::OpenFailed) return;
    const QString path = Dialogs::SaveFileDialog(u"Speichern unter"_s, SaveFilter);
    if (path.isEmpty()) return;
    if (!Dialogs::MayOverwrite(path, Dialogs::Icon::Question, Dialogs::Answer::No)) return;
    Global::CurrentFile = path;
    WriteDocument(true);
}

bool SaveBackUp() {
    if (Global::OpenFailed) return false;
    CodePage::Format format = Global::DocumentFormat;
    const QString text =
        Global::PicturePreview ? PictureToWrite(CurrentText()) : DocumentFile::TrimTail(CurrentText());
    return DocumentFile::Save(Global::CurrentFile + u".bak"_s, text, format);
}

void Menu_File_Close() {
    Global::CloseSucceeded = false;
    if (!AskToSave(u"Schließen"_s, SaveFirst::MustSucceed)) return;
    Global::CloseDocument();
    Global::CloseSucceeded = true;
}

void ShowRestored(const CodePage::Decoded& text) {
    CodeBox* box = Neighbours::TheCodeBox();
    if (!box) return;
    Undo::UndoClear(); // no step leads back to the empty document that it is put into
    box->BeginDocument(text.text);
    SetFormat(text.format);
    const QString type = DocumentFile::TypeByMarker(text.text);
    if (!type.isEmpty()) SetType(type, {});
    Global::DocChanged = true;
    Neighbours::ActivateToolBar();
    Neighbours::ActivateFunktions();
}

} // namespace Documents

namespace Global {

void CloseDocument() {
    CurrentFile.clear();
    DocOpen = DocChanged = false;
    for (const QString& window :
         {u"Frm_Code"_s, u"Frm_Browser"_s, u"Frm_Color"_s, u"Frm_DeBug"_s, u"Frm_InsertStyle"_s, u"Frm_KCC"_s,
          u"Frm_Search"_s, u"Frm_TagTools"_s, u"Frm_UmlCorrection"_s, u"Frm_Characters"_s, u"Frm_Events"_s,
          u"Frm_ProjectManager"_s}) {
        Windows::Unload(window);
    }
    Documents::ForgetText(); // once the windows are gone, which may have touched it
    Documents::ShowAtRest();
    Neighbours::ActivateFunktions();
    Neighbours::SetMainCaption({});
}

} // namespace Global
