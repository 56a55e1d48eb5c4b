// SPDX-License-Identifier: MIT
#include "editing/script_bar.h"

#include "documents/code_access.h"
#include "documents/frm_code.h"
#include "documents/undo.h"
#include "platform/drop_down_list.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/text.h"

#include <QToolBar>
#include <QToolButton>

namespace ScriptBar {

namespace {

void JumpToFunction(Frm_Code& window, const QString& name) {
    Txt_Code& box = *window.TextBox;
    // With a blank between name and bracket it is not found; then the caret stays and the selection
    // collapses.
    Attempt([&] { box.SetSelStart(Text::Find(box.Text(), QString(u"function " + name + u'(')) - 1); });
    box.SetSelLength(0);
    box.SetFocus();
}

void InsertVariable(Frm_Code& window, const QString& name) {
    Undo::PushUndo();
    window.TextBox->SetSelText(name);
    window.TextBox->SetFocus();
}

void InsertNewFunction(Frm_Code& window) {
    Txt_Code& box = *window.TextBox;
    Undo::PushUndo();
    box.SetSelText(u"function NeueFunktion()\r\n{\r\n\t\r\n\t\r\n}"_s);
    constexpr qsizetype BehindTheTab = 3; // the line break and the closing brace
    box.SetSelStart(box.SelStart() - BehindTheTab);
    box.SetFocus();
}

} // namespace

void Attach(Frm_Code& window) {
    Frm_Code* const code = &window;
    window.Cmb_Functions->setPlaceholderText(u"Funktionen"_s);
    window.Cmb_Functions->setAccessibleName(u"Funktionen"_s);
    window.Cmb_Functions->entries = [code] { return CodeAccess::ScanFunctions(code->TextBox->Text()); };
    window.Cmb_Variables->setPlaceholderText(u"Variablen"_s);
    window.Cmb_Variables->setAccessibleName(u"Variablen"_s);
    window.Cmb_Variables->entries = [code] { return CodeAccess::ScanVariables(code->TextBox->Text()); };
    QObject::connect(window.Cmb_Functions, &QComboBox::textActivated, code,
                     [code](const QString& name) { JumpToFunction(*code, name); });
    QObject::connect(window.Cmb_Variables, &QComboBox::textActivated, code,
                     [code](const QString& name) { InsertVariable(*code, name); });
    QAction* create = window.Tlb_JavaScript->addAction(Icons::Named(u"insert"), u"Neue Funktion"_s);
    create->setObjectName(u"Tlb_JavaScript_NewFunction"_s);
    create->setToolTip(u"Neue Funktion einfügen"_s);
    window.Tlb_JavaScript->setIconSize({16, 16});
    window.Tlb_JavaScript->setContentsMargins(0, 0, 0, 0);
    QObject::connect(create, &QAction::triggered, code, [code] { InsertNewFunction(*code); });
}

void InsertCurrentVariable(Frm_Code& window) {
    if (!window.Cmb_Variables->currentText().isEmpty())
        InsertVariable(window, window.Cmb_Variables->currentText());
}

} // namespace ScriptBar
