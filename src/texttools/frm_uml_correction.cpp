// SPDX-License-Identifier: MIT
#include "texttools/frm_uml_correction.h"

#include "documents/code_box.h"
#include "documents/undo.h"
#include "platform/dialogs.h"
#include "platform/literals.h"
#include "state/busy.h"
#include "texttools/umlaut_correction.h"

#include <QLabel>
#include <QLocale>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

// A capital Ü near the top of a page makes it grow beyond all measure; whether that is wanted.
bool GoesOnInSpiteOf(qsizetype growth) {
    if (growth == 0) return true;
    const QString text = u"Der Text enthält ein großes Ü. Beim Codieren wird daraus keine gültige "
                         u"HTML-Schreibweise: An seiner "
                         "Stelle kommen %1 Zeichen hinzu. Möchten Sie trotzdem fortfahren?"_s.arg(
                             QLocale(QLocale::German).toString(growth));
    return Dialogs::MsgBox({u"Umlautkorrektur"_s, text, Dialogs::Icon::Exclamation, Dialogs::Buttons::YesNo,
                            Dialogs::Answer::No}) == Dialogs::Answer::Yes;
}

} // namespace

Frm_UmlCorrection::Frm_UmlCorrection()
    : ToolDialog(u"Frm_UmlCorrection"_s, u"Umlautkorrektur"_s,
                 u"Die Umlautkorrektur verschlüsselt Umlaute und SZ-Zeichen. Markieren Sie dazu 'Umlaute "
                 "codieren' und klicken Sie auf 'Ok'. Mit 'Umlaute decodieren' lässt sich dieses auch "
                 "rückgängig machen."_s),
      Opt_UmlOptions_0(new QRadioButton(u"Umlaute codieren"_s)),
      Opt_UmlOptions_1(new QRadioButton(u"Umlaute decodieren"_s)) {
    SetHeading(u"uml", u"Umlaute korrigieren..."_s);
    Opt_UmlOptions_0->setObjectName(u"Opt_UmlOptions_0"_s);
    Opt_UmlOptions_1->setObjectName(u"Opt_UmlOptions_1"_s);
    Opt_UmlOptions_0->setChecked(true);
    auto* Label2 = new QLabel(u"Wählen Sie eine Korrekturoption aus:"_s);
    Label2->setObjectName(u"Label2"_s);
    Content()->addWidget(Label2);
    Content()->addWidget(Opt_UmlOptions_0);
    Content()->addWidget(Opt_UmlOptions_1);
    Content()->addStretch();
    AddControl(0, u"&Ok"_s, [this] { Correct(); });
    AddControl(1, u"S&chließen"_s, [this] { Leave(); });
}

void Frm_UmlCorrection::Correct() {
    CodeBox* box = Neighbours::TheCodeBox();
    if (!box) return Leave();
    const QString text = box->Text();
    const bool encode = Opt_UmlOptions_0->isChecked();
    if (encode && !GoesOnInSpiteOf(UmlautCorrection::GrowthOfCapitalUe(text))) return;
    {
        Busy busy;
        busy.Progress(0, text.size());
        Undo::PushUndo();
        const QString corrected = encode ? UmlautCorrection::Encode(text) : UmlautCorrection::Decode(text);
        if (corrected != text) CodeAccess::ReplaceCodeRange(corrected, 0, text.size());
    }
    Leave();
}
