// SPDX-License-Identifier: MIT
#include "editing/umlauts.h"

#include "documents/code_box.h"
#include "platform/literals.h"

namespace Umlauts {

namespace {

struct Form {
    char16_t umlaut;
    QStringView entityTail; // behind "&"
    QStringView plain;
};
// There is no form for "ß".
constexpr Form Forms[] = {{u'ä', u"auml;", u"ae"}, {u'Ä', u"Auml;", u"Ae"}, {u'ö', u"ouml;", u"oe"},
                          {u'Ö', u"Ouml;", u"Oe"}, {u'ü', u"uuml;", u"ue"}, {u'Ü', u"Uuml;", u"Ue"}};

} // namespace

void SubstituteUmlauts(CodeBox& box) {
    const qsizetype caret = box.SelStart();
    if (caret < 1) return;
    const QString text = box.Text();
    for (const Form& form : Forms) {
        if (text[caret - 1] != form.umlaut) continue;
        const bool entity = caret >= 2 && text[caret - 2] == u'&';
        box.SetSelStart(caret - 1);
        box.SetSelLength(0);
        box.SetSelText((entity ? form.entityTail : form.plain).toString());
        box.SetSelLength(1); // the umlaut, which now stands behind
        box.SetSelText({});
        return;
    }
}

} // namespace Umlauts
