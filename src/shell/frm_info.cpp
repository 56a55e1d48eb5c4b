// SPDX-License-Identifier: MIT
#include "shell/frm_info.h"

#include "platform/dialogs.h"
#include "platform/icons.h"
#include "platform/literals.h"
#include "shell/addresses.h"
#include "state/global.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

QLabel* MakeLink(const QString& name, const QString& text, const QString& address) {
    auto* label = new QLabel(u"<a href=\"%1\">%2</a>"_s.arg(address.toHtmlEscaped(), text));
    label->setObjectName(name);
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    QObject::connect(label, &QLabel::linkActivated, label,
                     [](const QString& link) { Dialogs::OpenAddress(link); });
    return label;
}

} // namespace

Frm_Info::Frm_Info() {
    setObjectName(u"Frm_Info"_s);
    setWindowTitle(u"Info"_s);
    auto* picture = new QLabel;
    picture->setPixmap(Icons::Named(u"sorvane").pixmap(64, 64));
    auto* name = new QLabel(Global::ProgramName);
    name->setObjectName(u"Lbl_ProgramName"_s);
    QFont big = name->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    big.setBold(true);
    name->setFont(big);
    // The line stands there although the update number is another.
    auto* version = new QLabel(u"Update 9.0 - 22.12.01 "_s);
    version->setObjectName(u"Lbl_Version"_s);
    auto* exit = new QPushButton(u"&Ok"_s);
    exit->setObjectName(u"Cmd_Exit"_s);
    exit->setDefault(true);
    connect(exit, &QPushButton::clicked, this, &QDialog::accept);

    auto* texts = new QVBoxLayout;
    texts->addWidget(name);
    texts->addWidget(version);
    texts->addSpacing(8);
    texts->addWidget(MakeLink(u"Lbl_Web"_s, u"Velonar im Internet"_s, Addresses::Home));
    texts->addWidget(MakeLink(u"Lbl_Mail"_s, u"E-Mail an Velonar"_s, Addresses::Mail));
    auto* top = new QHBoxLayout;
    top->addWidget(picture, 0, Qt::AlignTop);
    top->addSpacing(12);
    top->addLayout(texts);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(exit);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(18, 18, 18, 14);
    all->addLayout(top);
    all->addSpacing(14);
    all->addLayout(bottom);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}
