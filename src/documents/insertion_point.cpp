// SPDX-License-Identifier: MIT
#include "documents/insertion_point.h"

#include "documents/code_box.h"
#include "documents/undo.h"
#include "platform/text.h"
#include "state/global.h"
#include "state/neighbours.h"

namespace InsertionPoint {

namespace {

CodeBox* Box() { return Global::CodeWindowOpen ? Neighbours::TheCodeBox() : nullptr; }

} // namespace

bool Wrap(const QString& before, const QString& after) {
    const CodeBox* box = Box();
    return box && Insert(before + box->SelText() + after);
}

bool Insert(const QString& text) {
    CodeBox* box = Box();
    if (!box) return false;
    Undo::PushUndo();
    box->SetSelText(text);
    Neighbours::FocusCode();
    return true;
}

void MoveBack(qsizetype characters) {
    if (CodeBox* box = Box()) Attempt([&] { box->SetSelStart(box->SelStart() - characters); });
}

} // namespace InsertionPoint
