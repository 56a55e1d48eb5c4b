// SPDX-License-Identifier: MIT
#include "editing/script_bar.h"

#include "documents/code_access.h"
#include "documents/code_host.h"
#include "documents/txt_code.h"
#include "documents/undo.h"
#include "platform/drop_down_list.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "platform/text.h"

#include <QToolBar>
#include <QToolButton>

namespace ScriptBar {

namespace {

void JumpToFunction(CodeHost& window, const QString& name) {
    Txt_Code& box = window.Box();
    // With a blank between name and bracket it is not found; then the caret stays and the selection
    // collapses.
    Attempt([&] { box.SetSelStart(Text::Find(box.Text(), QString(u"function " + name + u'(')) - 1); });
    box.SetSelLength(0);
    box.SetFocus();
}

void InsertVariable(CodeHost& window, const QString& name) {
    Undo::PushUndo();
    window.Box().SetSelText(name);
    window.Box().SetFocus();
}

void InsertNewFunction(CodeHost& window) {
    Txt_Code& box = window.Box();
    Undo::PushUndo();
    box.SetSelText(u"function NeueFunktion()\r\n{\r\n\t\r\n\t\r\n}"_s);
    constexpr qsizetype BehindTheTab = 3; // the line break and the closing brace
    box.SetSelStart(box.SelStart() - BehindTheTab);
    box.SetFocus();
}

} // namespace

void Attach(CodeHost& window) {
    CodeHost* const code = &window;
    const CodeHost::ScriptControls bar = window.ScriptBar();
    bar.functions->setPlaceholderText(u"Funktionen"_s);
    bar.functions->setAccessibleName(u"Funktionen"_s);
    bar.functions->entries = [code] { return CodeAccess::ScanFunctions(code->Box().Text()); };
    bar.variables->setPlaceholderText(u"Variablen"_s);
    bar.variables->setAccessibleName(u"Variablen"_s);
    bar.variables->entries = [code] { return CodeAccess::ScanVariables(code->Box().Text()); };
    QObject::connect(bar.functions, &QComboBox::textActivated, code->Window(),
                     [code](const QString& name) { JumpToFunction(*code, name); });
    QObject::connect(bar.variables, &QComboBox::textActivated, code->Window(),
                     [code](const QString& name) { InsertVariable(*code, name); });
    QAction* create = bar.tools->addAction(Icons::Named(u"insert"), u"Neue Funktion"_s);
    create->setObjectName(u"Tlb_JavaScript_NewFunction"_s);
    create->setToolTip(u"Neue Funktion einfügen"_s);
    bar.tools->setIconSize({16, 16});
    bar.tools->setContentsMargins(0, 0, 0, 0);
    QObject::connect(create, &QAction::triggered, code->Window(), [code] { InsertNewFunction(*code); });
}

void InsertCurrentVariable(CodeHost& window) {
    const QString name = window.ScriptBar().variables->currentText();
    if (!name.isEmpty()) InsertVariable(window, name);
}

} // namespace ScriptBar
