// SPDX-License-Identifier: MIT
#include "texttools/frm_delete_comments.h"

#include "documents/undo.h"
#include "platform/dialogs.h"
#include "platform/literals.h"
#include "state/global.h"
#include "texttools/code_packing.h"
#include "texttools/text_tool_commands.h"

#include <QRadioButton>
#include <QVBoxLayout>

Frm_DeleteComments::Frm_DeleteComments()
    : ToolDialog(u"Frm_DeleteComments"_s, u"Kommentare löschen"_s,
                 u"Dieser Tool löscht alle Kommentare in dieser Datei, die nicht für Scripte oder Styles "
                 "verwendet werden. Achten Sie darauf, das eine Sicherheitskopie erstellt wird, wenn Sie die "
                 "Kommentare nicht vollständig verlieren wollen."_s),
      Opt_BackUp_0(new QRadioButton(u"Sicherheitskopie dieser Seite erstellen"_s)),
      Opt_BackUp_1(new QRadioButton(u"keine Sicherheitskopie erstellen"_s)) {
    SetHeading(u"delete_comments", u"Kommentare löschen..."_s);
    Opt_BackUp_0->setObjectName(u"Opt_BackUp_0"_s);
    Opt_BackUp_1->setObjectName(u"Opt_BackUp_1"_s);
    const bool hasFile = !Global::CurrentFile.isEmpty();
    Opt_BackUp_0->setEnabled(hasFile);
    (hasFile ? Opt_BackUp_0 : Opt_BackUp_1)->setChecked(true);
    Content()->addWidget(Opt_BackUp_0);
    Content()->addWidget(Opt_BackUp_1);
    Content()->addStretch();
    AddControl(0, u"&Löschen"_s, [this] { Delete(); });
    AddControl(1, u"A&bbrechen"_s, [this] { Leave(); });
}

void Frm_DeleteComments::Delete() {
    if (Opt_BackUp_0->isChecked()) {
        if (!TextTools::MakeBackUp(windowTitle())) return;
    } else if (Dialogs::MsgBox({windowTitle(),
                                u"Sind Sie sicher, dass Sie keine Sicherheitskopie machen wollen?"_s,
                                Dialogs::Icon::Question, Dialogs::Buttons::YesNo}) != Dialogs::Answer::Yes) {
        return;
    }
    Undo::PushUndo();
    CodeAccess::DeleteComments();
    Leave();
}
