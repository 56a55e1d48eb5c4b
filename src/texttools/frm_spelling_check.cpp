// SPDX-License-Identifier: MIT
#include "texttools/frm_spelling_check.h"

#include "documents/code_box.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/literals.h"
#include "state/busy.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>

namespace {
QString Words(qsizetype count) { return count == 1 ? u"1 Wort"_s : QString::number(count) + u" Wörter"_s; }
} // namespace

Frm_SpellingCheck::Frm_SpellingCheck()
    : Txt_WordsFile(new QLineEdit(u"german.wds"_s)), Lbl_WordCount(new QLabel(u"0 Wörter"_s)),
      Lst_Words(new QListWidget) {
    setObjectName(u"Frm_SpellingCheck"_s);
    setWindowTitle(u"Rechtschreibung"_s);
    Txt_WordsFile->setObjectName(u"Txt_WordsFile"_s);
    Lbl_WordCount->setObjectName(u"Lbl_WordCount"_s);
    Lst_Words->setObjectName(u"Lst_Words"_s);
    Lst_Words->setAccessibleName(u"Unbekannte Wörter"_s);
    Lst_Words->setUniformItemSizes(true);
    auto* file = new QLabel(u"Datei:"_s);
    file->setBuddy(Txt_WordsFile);
    auto* all = new QGridLayout(this);
    all->addWidget(file, 0, 0);
    all->addWidget(Txt_WordsFile, 0, 1);
    all->addWidget(Lbl_WordCount, 0, 2);
    all->addWidget(Lst_Words, 1, 0, 1, 3);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    const auto add = [&](int index, const QString& caption, void (Frm_SpellingCheck::*press)()) {
        auto* button = new QPushButton(caption);
        button->setObjectName(u"Cmd_Control_"_s + QString::number(index));
        button->setAutoDefault(false);
        button->setDefault(index == 1);
        connect(button, &QPushButton::clicked, this, press);
        buttons->addWidget(button);
    };
    add(1, u"&Check"_s, &Frm_SpellingCheck::Check);
    add(0, u"&Alle hinzufügen"_s, &Frm_SpellingCheck::AddAll);
    all->addLayout(buttons, 2, 0, 1, 3);
    resize(420, 360);
}

void Frm_SpellingCheck::OnLoad() {
    const auto text = Files::ReadProgramText(Files::ProgramFile(Txt_WordsFile->text()));
    if (!text) {
        Dialogs::Tell(u"Fehler"_s,
                      u"Die Datei '"_s + Txt_WordsFile->text() + u"' kann nicht gelesen werden."_s,
                      Dialogs::Icon::Critical);
        return;
    }
    m_list = Spelling::WordList(*text);
    Lbl_WordCount->setText(QString::number(m_list.UpperBound()) + u" Wörter"_s);
    Dialogs::Tell(u"Bereit"_s, QString::number(m_list.UpperBound()), Dialogs::Icon::None);
}

void Frm_SpellingCheck::reject() {
    m_left = true;
    QDialog::reject();
}

void Frm_SpellingCheck::Check() {
    const CodeBox* box = Neighbours::TheCodeBox();
    if (!box || m_checking) return;
    m_checking = true;
    Lst_Words->clear();
    const QPointer<Frm_SpellingCheck> alive(this); // letting events run may end this window
    const Spelling::Plain plain = Spelling::WithoutTags(box->Text());
    const Spelling::WordList list = m_list;
    QStringList unknown;
    {
        Busy busy;
        unknown = Spelling::Unknown(plain.text, list, [&](int percent) {
            busy.Progress(percent, 100);
            Events::DoEvents();
            return alive && !m_left;
        });
    }
    if (!alive) return;
    m_checking = false;
    if (m_left) return;
    Lst_Words->addItems(unknown);
    if (!plain.whole) {
        return Dialogs::Tell(u"Fehler"_s, u"Ein Tag hat kein Ende. Es wurde nur der Text vor ihm geprüft."_s,
                             Dialogs::Icon::Critical);
    }
    Dialogs::Tell(u"Fertig"_s, Words(unknown.size()) + u" gefunden"_s, Dialogs::Icon::None);
}

void Frm_SpellingCheck::AddAll() {
    if (m_checking) return;
    // The words continue the one line of the file. A file that is there but cannot be read stays as it is.
    const QString file = Files::ProgramFile(Txt_WordsFile->text());
    const auto before = Files::ReadProgramText(file);
    QString words = before.value_or(QString());
    for (int row = 0; row < Lst_Words->count(); ++row) words += Lst_Words->item(row)->text() + u' ';
    const bool readable = before || Files::Canonical(file).isEmpty();
    if (!readable ||
        !Files::WriteProgramText(Files::ProgramDirectory() + u'\\' + Txt_WordsFile->text(), words)) {
        return Dialogs::Tell(u"Fehler"_s, u"Fehler beim Speichern der Datei."_s, Dialogs::Icon::Critical);
    }
    Dialogs::Tell(u"Fertig"_s, Words(Lst_Words->count()) + u" hinzugefügt"_s, Dialogs::Icon::None);
}
