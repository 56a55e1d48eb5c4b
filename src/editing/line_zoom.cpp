// SPDX-License-Identifier: MIT
#include "editing/line_zoom.h"

#include "documents/code_box.h"
#include "documents/undo.h"
#include "platform/text.h"

namespace LineZoom {

QString ReadCurrentLine(CodeBox& box) {
    if (box.SelStart() == 0) box.SetSelStart(1);
    const QString text = box.Text();
    // In an empty text there is nothing to search, and an empty last line has a length below zero: both leave
    // nothing selected.
    qsizetype start = 0;
    Attempt([&] { start = Text::FindBack(text, Text::LineBreak, box.SelStart()); });
    qsizetype end = Text::Find(text, Text::LineBreak, start + 1);
    if (start > 0) ++start;
    if (end == 0) end = text.size();
    box.SetSelStart(start);
    Attempt([&] { box.SetSelLength(end - start - 1); });
    return box.SelText();
}

void SaveLine(CodeBox& box, const QString& line) {
    Undo::PushUndo();
    box.SetSelText(line);
}

} // namespace LineZoom
