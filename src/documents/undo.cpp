// SPDX-License-Identifier: MIT
#include "documents/undo.h"

#include "documents/code_box.h"
#include "documents/text_history.h"
#include "platform/literals.h"
#include "platform/text.h"
#include "state/commands.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QScopedValueRollback>

namespace Undo {

namespace {

TextHistory& Ring() {
    static TextHistory ring;
    return ring;
}

void EnableUndo(bool enabled) {
    Commands::SetEnabled(u"Menu_Edit_Undo"_s, enabled);
    Commands::SetEnabled(u"ToolBar_Undo"_s, enabled);
}

void EnableRedo(bool enabled) {
    Commands::SetEnabled(u"Menu_Edit_Redo"_s, enabled);
    Commands::SetEnabled(u"ToolBar_Redo"_s, enabled);
}

bool Stepping = false;

void WriteText(CodeBox& box, const QString& text) {
    const qsizetype caret = box.SelStart();
    const QScopedValueRollback stepping(Stepping, true);
    box.SetText(text);
    box.SetSelStart(caret);
}

} // namespace

void PushUndo() {
    const CodeBox* box =
        Global::CodeWindowOpen ? Neighbours::TheCodeBox() : nullptr; // a copy opens no window
    if (!box) return;
    Ring().Push(box->Text(), Depth);
    UndoTouched = u"-"_s;
    EnableUndo(true);
    EnableRedo(false);
}

void UndoStep() {
    TextHistory& ring = Ring();
    CodeBox* box = Neighbours::TheCodeBox();
    if (!box || ring.Count() < 2) return;
    const bool full = ring.Count() == Depth;
    ring.Pop();
    if (full) ring.RepeatOldest(); // place 64 keeps its value when the others move forward
    Global::SkipUndoOnChange = true;
    WriteText(*box, ring.Newest());
    Global::SkipUndoOnChange = false;
}

void RedoStep() {
    TextHistory& ring = Ring();
    CodeBox* box = Neighbours::TheCodeBox();
    if (!box || ring.Count() < Depth) {
        EnableRedo(false);
        return;
    }
    EnableRedo(true);
    EnableUndo(true);
    const QString present = box->Text();
    WriteText(*box, ring.At(Depth - 1)); // a change like any other, which takes its own copy
    ring.Push(present, Depth);
}

bool IsStepping() { return Stepping; }

void UndoClear() {
    UndoTouched.clear();
    Ring().Clear();
    EnableUndo(false);
}

QString UndoRing(int place) {
    if (place < 1 || place > Depth) throw RuntimeError("undo ring: no such place");
    return place <= Ring().Count() ? Ring().At(place - 1) : FreeMarker;
}

} // namespace Undo
