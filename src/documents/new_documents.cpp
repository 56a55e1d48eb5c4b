// SPDX-License-Identifier: MIT
#include "documents/new_documents.h"

#include "documents/code_box.h"
#include "documents/document_commands.h"
#include "documents/templates.h"
#include "documents/undo.h"
#include "platform/literals.h"
#include "state/global.h"
#include "state/neighbours.h"
#include "state/windows.h"

namespace Documents {

namespace {

struct Kind {
    QString type;
    QString panel; // a new WML document shows "WML", an opened one "WAP": both are meant
    QString caption;
    QString text;
    bool plainText = false; // no change to lose, and no helper windows
};

void Create(const Kind& kind) {
    Undo::UndoClear();
    Windows::Unload(u"Frm_Welcome");
    Global::DocType = kind.type;
    Neighbours::SetStatusPanel(Neighbours::TypePanel, kind.panel);
    ForgetText();
    CodeBox* box = Neighbours::OpenCodeBox();
    Neighbours::HidePopupList();
    if (box) box->BeginDocument(kind.text);
    Neighbours::SetMainCaption(u"%1 [%2]"_s.arg(Global::ProgramName, kind.caption));
    Global::DocOpen = true;
    Global::CurrentFile.clear();
    Global::DocChanged = !kind.plainText; // an empty text file closes without a question
    if (kind.plainText) Neighbours::SetStatusPanel(Neighbours::StatePanel, u"Bereit"_s);
    SetFormat({});
    Neighbours::ActivateFunktions();
    Neighbours::ActivateToolBar();
    if (Global::ProjectWindowOpen) Neighbours::SearchLinks();
    if (Global::FormatSubClassOpen) Neighbours::UpdateClassList();
    Windows::Unload(u"Frm_Browser");
    if (!kind.plainText) {
        if (Global::AutoDebug) Neighbours::ShowDebugger();
        if (Global::AutoProjectManager) {
            Neighbours::ShowProjectManager();
            Neighbours::SearchLinks();
        }
    }
    Neighbours::FocusCode();
}

void AskAndThen(void (*create)()) {
    if (AskToSave(u"Neue Datei"_s, SaveFirst::MustSucceed)) create();
}

} // namespace

void CreateNewHTMLFile() { Create({u"HTML"_s, u"HTML"_s, u"HTML"_s, Templates::Html()}); }

void CreateNewXHTMLFile() { Create({u"XHTML"_s, u"XHTML"_s, u"XHTML"_s, Templates::Xhtml()}); }

void CreateNewWMLFile() {
    Create({u"WML"_s, u"WML"_s, u"WML"_s, Templates::Wml()});
    if (!Global::AssistantOpen) return;
    Neighbours::RunAnimation(1, u"Sie erstellen eine WAP-Seite. Beachten Sie, dass Sie nicht einfach alle "
                                u"HTML-Regeln übernehmen dürfen. "
                                "Die Syntax für WAP-Sites ist etwas anders. Sie können eine WAP-Site testen, "
                                "indem Sie im Menü 'Ansicht' "
                                "auf 'Vorschau' & 'WAP-Simulation' klicken."_s);
}

void CreateNewJavaScript() { Create({u"JS"_s, u"JavaScript"_s, u"JavaScript"_s, {}}); }

void CreateNewTextFile() { Create({u"Text"_s, u"Text"_s, u"Textdatei"_s, {}, true}); }

void Menu_File_NewPage() { AskAndThen(CreateNewHTMLFile); }
void Menu_File_NewXHTMLFile() { AskAndThen(CreateNewXHTMLFile); }
void Menu_File_NewWAPPage() { AskAndThen(CreateNewWMLFile); }
void Menu_File_NewFile() { AskAndThen(CreateNewTextFile); }

void Menu_File_NewDocument() {
    AskAndThen([] { Windows::Show(u"Frm_Welcome"); });
}

} // namespace Documents
