// SPDX-License-Identifier: MIT
#include "insertion/design_link.h"

#include "documents/code_box.h"
#include "documents/paths.h"
#include "platform/literals.h"
#include "platform/text.h"

namespace DesignLink {

Outcome Write(CodeBox& box, const QString& target, const QString& page) {
    const QString text = box.Text();
    const qsizetype head = Text::Find(Text::UpperCase(text), u"<HEAD"_s);
    if (head == 0) return Outcome::NoHead;
    const qsizetype end = Text::Find(text, u">"_s, head);
    if (end == 0) return Outcome::BrokenHead;
    const QString folder = page.first(page.lastIndexOf(u'\\') + 1);
    box.SetSelStart(end + 1);
    box.SetSelLength(0);
    box.SetSelText(u"\r\n\t\t<style> <!-- @import url("_s + Global::RelativePathOf(target, folder) +
                   u"); --> </style>"_s);
    return Outcome::Written;
}

} // namespace DesignLink
