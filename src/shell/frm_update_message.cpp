// SPDX-License-Identifier: MIT
#include "shell/frm_update_message.h"

#include "platform/files.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "shell/update_log.h"

#include <QCheckBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

Frm_UpdateMessage::Frm_UpdateMessage()
    : Txt_UpdateInfo(new QPlainTextEdit),
      Chk_DontShowThisInFuture(new QCheckBox(u"Diese Meldung nicht mehr anzeigen."_s)) {
    setObjectName(u"Frm_UpdateMessage"_s);
    setWindowTitle(u"Neues Update"_s);
    auto* picture = new QLabel;
    picture->setPixmap(Icons::Named(u"update").pixmap(48, 48));
    auto* title = new QLabel(u"Update-Informationen..."_s);
    title->setObjectName(u"Lbl_Title"_s);
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    big.setBold(true);
    title->setFont(big);
    auto* text =
        new QLabel(u"Wenn Sie gerade das Update installiert haben, sollten Sie sich die folgenden Änderungen "
                   "einmal ansehen. Es kann auch sein, dass im Optionsmenü einige Einstellungen erneuert "
                   "werden müssen."_s);
    text->setObjectName(u"Lbl_Text"_s);
    text->setWordWrap(true);
    Txt_UpdateInfo->setObjectName(u"Txt_UpdateInfo"_s);
    Txt_UpdateInfo->setAccessibleName(u"Änderungen"_s);
    Txt_UpdateInfo->setReadOnly(true);
    Txt_UpdateInfo->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    Txt_UpdateInfo->setTabChangesFocus(true);
    Txt_UpdateInfo->setTabStopDistance(Txt_UpdateInfo->fontMetrics().horizontalAdvance(u"xxx"_s));
    Chk_DontShowThisInFuture->setObjectName(u"Chk_DontShowThisInFuture"_s);
    auto* ok = new QPushButton(u"&Ok"_s);
    ok->setObjectName(u"Cmd_Control_0"_s);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, [this] {
        if (unloadSelf) unloadSelf();
    });

    auto* texts = new QVBoxLayout;
    texts->addWidget(title);
    texts->addWidget(text);
    auto* top = new QHBoxLayout;
    top->addWidget(picture, 0, Qt::AlignTop);
    top->addSpacing(8);
    top->addLayout(texts, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(Chk_DontShowThisInFuture);
    bottom->addStretch();
    bottom->addWidget(ok);
    auto* all = new QVBoxLayout(this);
    all->addLayout(top);
    all->addSpacing(6);
    all->addWidget(Txt_UpdateInfo, 1);
    all->addSpacing(6);
    all->addLayout(bottom);
    resize(520, 420);
    ok->setFocus();
}

void Frm_UpdateMessage::OnLoad() {
    // Without the file the dialog stays empty.
    const auto bytes = Files::Read(Files::ProgramFile(u"update.log"_s));
    if (bytes) Txt_UpdateInfo->setPlainText(UpdateLog::ReadableText(*bytes));
}

void Frm_UpdateMessage::OnUnload() {
    if (Chk_DontShowThisInFuture->isChecked()) Files::Remove(Files::ProgramFile(u"update.log"_s));
    done(QDialog::Accepted);
}
