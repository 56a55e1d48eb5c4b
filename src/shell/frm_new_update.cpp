// SPDX-License-Identifier: MIT
#include "shell/frm_new_update.h"

#include "platform/dialogs.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "shell/addresses.h"
#include "state/global.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

Frm_NewUpdate::Frm_NewUpdate()
    : Chk_DontShowThisInFuture(new QCheckBox(u"Diese Meldung nicht mehr anzeigen."_s)) {
    setObjectName(u"Frm_NewUpdate"_s);
    setWindowTitle(u"Neues Update verfügbar"_s);
    auto* picture = new QLabel;
    picture->setPixmap(Icons::Named(u"update").pixmap(48, 48));
    auto* title = new QLabel(u"Neues Update "_s);
    title->setObjectName(u"Lbl_Title"_s);
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    big.setBold(true);
    title->setFont(big);
    auto* text = new QLabel(
        u"Im Internet steht ein neues Update zur Verfügung. Klicken Sie auf 'Download', um das Update "
        u"herunterzuladen. "
        "Entpacken Sie anschließend das ZIP-Archiv in das Programmverzeichnis des Sorvane HTML Editors."_s);
    text->setObjectName(u"Lbl_Text"_s);
    text->setWordWrap(true);
    text->setMinimumWidth(340);
    Chk_DontShowThisInFuture->setObjectName(u"Chk_DontShowThisInFuture"_s);
    auto* download = new QPushButton(u"&Download"_s);
    download->setObjectName(u"Cmd_Control_1"_s);
    download->setDefault(true);
    auto* close = new QPushButton(u"&Schließen"_s);
    close->setObjectName(u"Cmd_Control_0"_s);
    connect(download, &QPushButton::clicked, this, [this] { Cmd_Control(1); });
    connect(close, &QPushButton::clicked, this, [this] { Cmd_Control(0); });

    auto* texts = new QVBoxLayout;
    texts->addWidget(title);
    texts->addSpacing(4);
    texts->addWidget(text);
    texts->addSpacing(10);
    texts->addWidget(Chk_DontShowThisInFuture);
    auto* top = new QHBoxLayout;
    top->addWidget(picture, 0, Qt::AlignTop);
    top->addSpacing(12);
    top->addLayout(texts, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(download);
    bottom->addWidget(close);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(18, 18, 18, 14);
    all->addLayout(top);
    all->addSpacing(14);
    all->addLayout(bottom);
    all->setSizeConstraint(QLayout::SetFixedSize);
    download->setFocus();
}

void Frm_NewUpdate::Cmd_Control(int index) {
    Global::DontShowNewUpdate = Chk_DontShowThisInFuture->isChecked();
    if (index == 1) Dialogs::OpenAddress(Addresses::UpdateArchive);
    if (unloadSelf) unloadSelf();
}

void Frm_NewUpdate::OnUnload() { done(QDialog::Accepted); }
