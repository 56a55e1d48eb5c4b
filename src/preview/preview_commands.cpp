// SPDX-License-Identifier: MIT
#include "preview/preview_commands.h"

#include "documents/code_access.h"
#include "documents/code_box.h"
#include "documents/document_commands.h"
#include "documents/document_file.h"
#include "documents/paths.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/text.h"
#include "preview/wap_browser.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <algorithm>

namespace Preview {

namespace {

void Say(const QString& text) {
    if (Global::AssistantOpen) Neighbours::RunAnimation(1, text);
}

QString IndexFile() {
    const QString index = Neighbours::ReturnIndexFile();
    return index.isEmpty() ? Global::CurrentFile : index;
}

// Checks and saves the document. Returns whether it was saved.
bool SaveFirst() {
    if (!Global::DocOpen) return false; // the keys reach the items of a closed submenu, too
    if (Global::DebuggerOpen) Neighbours::CheckSyntax();
    // A picture cannot have changed, and saving ends a text with a line break.
    if (Global::DocType == u"IMG" && !Global::DocChanged) return true;
    Documents::Menu_File_Save_Click();
    return Global::SaveSucceeded;
}

bool TestKind(const QString& path) {
    if (CanBeShown(path)) return true;
    Say(u"Für diesen Dateityp ist keine Vorschau möglich."_s);
    return false;
}

// `text` without its last line where that is blank. Unlike in a saved file, blank lines ahead of it all stay.
QString WithoutBlankLine(const QString& text) {
    const qsizetype last = text.lastIndexOf(Text::LineBreak);
    if (last < 0) return text;
    const QStringView tail = QStringView(text).sliced(last);
    const bool blank = std::all_of(tail.begin(), tail.end(), [](QChar c) { return c.unicode() < 33; });
    return blank ? text.first(last) : text;
}

QString DocumentText() {
    QString text = Global::HeldSource;
    if (const CodeBox* box = Global::CodeWindowOpen ? Neighbours::TheCodeBox() : nullptr) text = box->Text();
    if (Commands::IsChecked(u"Menu_Tools_Option_2"_s) && Global::DocType != u"IMG") {
        CodeAccess::LowerCaseTags(text);
    }
    return WithoutBlankLine(text);
}

} // namespace

bool CanBeShown(const QString& path) {
    return !u"ßJSßVBSßCSSß"_s.contains(u'ß' + Text::UpperCase(Global::ExtensionOf(path)) + u'ß');
}

QString TemporaryFile() {
    return Files::ProgramDirectory() + u"\\temp."_s + Global::ExtensionOf(Global::CurrentFile, u"htm"_s);
}

void Menu_View_Browser_Once() {
    if (!SaveFirst() || !TestKind(Global::CurrentFile)) return;
    Say(u"Das ist die Vorschau der aktuellen Seite."_s);
    Neighbours::Browse(Global::CurrentFile);
}

void Menu_View_Browser_Project() {
    if (!SaveFirst()) return;
    const QString index = IndexFile();
    if (!TestKind(index)) return;
    Say(u"Das ist die Vorschau der Indexseite. Diese Vorschau ist sinnvoll, wenn Sie mit Frames arbeiten."_s);
    Neighbours::Browse(index);
}

void Menu_View_Browser_Temp() {
    if (!Global::DocOpen) return;
    const QString file = TemporaryFile();
    CodePage::Format format = Global::DocumentFormat; // the copy is encoded as the document itself
    if (!DocumentFile::Save(file, DocumentText(), format)) {
        Dialogs::Tell(u"Fehler"_s, u"Die Datei für die Temporärvorschau konnte nicht geschrieben werden."_s,
                      Dialogs::Icon::Critical);
        return;
    }
    if (Global::DebuggerOpen) Neighbours::CheckSyntax();
    Say(u"Das ist eine Temporärvorschau, sie kann nur einwandfrei funktionieren, wenn die aktuelle Datei "
        "keine externen CSS- oder Script- Dateien benutzt. Die aktuelle Datei wird bei dieser Vorschau nicht "
        "gespeichert."_s);
    Neighbours::Browse(file);
}

void Menu_View_Browser_WAP() {
    if (!SaveFirst() || !TestKind(Global::CurrentFile)) return;
    if (!WAPBrowser::GenerateWAPPreview()) return;
    Neighbours::Browse(WAPBrowser::StartPage());
    Say(u"Das ist die Vorschau der aktuellen Seite mit einem WAP-Emulator."_s);
}

} // namespace Preview
