// SPDX-License-Identifier: MIT
#include "insertion/frm_default_styles.h"

#include "documents/code_box.h"
#include "documents/undo.h"
#include "insertion/design_link.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "state/global.h"
#include "state/neighbours.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize PreviewSize(240, 180); // pixels; the pictures are twice as fine

const QString Caption = QStringLiteral("Vordefinierte StyleSheets");

const QStringList& Designs() {
    static const QStringList designs{u"Velonar (blau/grau)"_s,
                                     u"bunt und zentriert"_s,
                                     u"cool"_s,
                                     u"rot/gelb"_s,
                                     u"schwarz/weiss"_s,
                                     u"Mirabel"_s,
                                     u"Nacht (schwarz/gelb)"_s,
                                     u"grün/weiss"_s};
    return designs;
}

QString SheetPath(int number) { return Files::ProgramFile(u"defstyle%1.css"_s.arg(number)); }

} // namespace

Frm_DefaultStyles::Frm_DefaultStyles()
    : ToolDialog(u"Frm_DefaultStyles"_s, Caption, {}), Lst_Design(new QListWidget), Pic_PreView(new QLabel) {
    SetHeading(u"insert_designs", u"Vordefinierte StyleSheets einfügen..."_s);
    Lst_Design->setObjectName(u"Lst_Design"_s);
    Lst_Design->setMinimumWidth(200);
    Pic_PreView->setObjectName(u"Pic_PreView"_s);
    Pic_PreView->setFixedSize(PreviewSize + QSize(2, 2));
    Pic_PreView->setFrameShape(QFrame::Box);
    auto* list = new QVBoxLayout;
    list->addWidget(LabelFor(Lst_Design, u"Lbl_Design"_s, u"Wählen Sie ein Design aus:"_s));
    list->addWidget(Lst_Design, 1);
    auto* preview = new QVBoxLayout;
    preview->addWidget(LabelFor(Pic_PreView, u"Lbl_PreView"_s, u"Vorschau:"_s));
    preview->addWidget(Pic_PreView);
    preview->addStretch();
    auto* row = new QHBoxLayout;
    row->addLayout(list, 1);
    row->addLayout(preview);
    Content()->addLayout(row, 1);
    m_insert = AddControl(0, u"&Einfügen"_s, [this] { Insert(); });
    m_insert->setEnabled(false);
    AddControl(1, u"S&chließen"_s, [this] { Leave(); });
    // a selection, not the row that the keyboard stands on
    connect(Lst_Design, &QListWidget::itemSelectionChanged, this, [this] {
        Lst_Design_Click(Lst_Design->selectedItems().isEmpty() ? -1 : Lst_Design->currentRow());
    });
}

void Frm_DefaultStyles::OnLoad() {
    if (Global::AssistantOpen) {
        Neighbours::RunAnimation(
            1, u"Hier können Sie verschiedene Designs für Ihre Seite auswählen. Damit das "
               "fehlerfrei geschieht sollten sie die aktuelle Datei bereits gespeichert haben."_s);
    }
    for (int i = 0; i < Designs().size(); ++i) {
        if (Files::CanRead(SheetPath(i + 1))) Lst_Design->addItem(Designs()[i]);
    }
    Lst_Design->setCurrentRow(-1);
}

void Frm_DefaultStyles::OnUnload() {
    if (!Global::AssistantOpen) return;
    if (m_linkWritten) {
        Neighbours::RunAnimation(
            1,
            u"Im Head-Bereich wurde jetzt ein Link zu der Datei angelegt, die Sie gerade gespeichert haben."_s);
    } else {
        Neighbours::RunAnimation(0, {});
    }
}

void Frm_DefaultStyles::Lst_Design_Click(int row) {
    m_insert->setEnabled(row >= 0);
    if (row < 0) return Pic_PreView->clear();
    QPixmap picture(u":/icons/designs/design%1.png"_s.arg(row + 1));
    picture =
        picture.scaled(PreviewSize * devicePixelRatioF(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(devicePixelRatioF());
    Pic_PreView->setPixmap(picture);
    Pic_PreView->setAccessibleName(u"Vorschau: "_s + Lst_Design->item(row)->text());
}

void Frm_DefaultStyles::Insert() {
    // By its place in the list: a sheet that is missing shifts those behind it, and that is meant to stay.
    const QString source = SheetPath(Lst_Design->currentRow() + 1);
    const QString target =
        Dialogs::SaveFileDialog(u"Design speichern unter"_s, u"StyleSheets (*.css)|*.css"_s);
    if (target.isEmpty()) return;
    if (!Dialogs::MayOverwrite(target, Dialogs::Icon::Exclamation, Dialogs::Answer::Yes)) return;
    CopyAndLink(source, target);
}

void Frm_DefaultStyles::CopyAndLink(const QString& source, const QString& target) {
    CodeBox* box = Global::CodeWindowOpen ? Neighbours::TheCodeBox() : nullptr;
    if (!box || !Files::Copy(source, target)) {
        Dialogs::Tell(u"Fehler"_s, u"Beim Erstellen des Designs ist ein Fehler aufgetreten."_s,
                      Dialogs::Icon::Critical);
        return;
    }
    Undo::PushUndo();
    switch (DesignLink::Write(*box, target, Global::CurrentFile)) {
    case DesignLink::Outcome::Written:
        m_linkWritten = true;
        break;
    case DesignLink::Outcome::NoHead:
        Dialogs::Tell(
            Caption,
            u"In dem Dokument wurde kein Head-Bereich gefunden. Das Style kann nicht eingefügt werden."_s,
            Dialogs::Icon::Exclamation);
        break;
    case DesignLink::Outcome::BrokenHead:
        Dialogs::Tell(Caption,
                      u"Der Head-Bereich enthält einen Fehler. Das Style kann nicht eingefügt werden."_s,
                      Dialogs::Icon::Exclamation);
        break;
    }
}
