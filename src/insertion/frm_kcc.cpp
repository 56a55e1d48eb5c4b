// SPDX-License-Identifier: MIT
#include "insertion/frm_kcc.h"

#include "insertion/color_circuit.h"
#include "insertion/swatch.h"
#include "platform/literals.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

namespace {

constexpr int InARow = 8;

QIcon ColorIcon(const QColor& color, const QColor& edge) {
    QPixmap pixmap(32, 32);
    pixmap.fill(edge); // a thin edge keeps white and black apart from the window
    QPainter(&pixmap).fillRect(pixmap.rect().adjusted(2, 2, -2, -2), color);
    return QIcon(pixmap);
}

QLineEdit* MakeReadOnly(const QString& name, const QString& accessible) {
    auto* field = new QLineEdit;
    field->setObjectName(name);
    field->setAccessibleName(accessible);
    field->setReadOnly(true);
    return field;
}

} // namespace

Frm_KCC::Frm_KCC()
    : ToolWindow(
          {u"Frm_KCC"_s, u"Farbe  (KCC)"_s,
           u"Das ist der Kestrische Color Circuit. Mit ihm können Sie Farben einfügen, die man eigentlich "
           "auswendig kennen sollte."_s,
           &Global::KCCToolOpen, &Global::KCCToolPos}),
      Picture1(new QLabel), Txt_ColorName(MakeReadOnly(u"Txt_ColorName"_s, u"Name der Farbe"_s)),
      Txt_ColorHex(MakeReadOnly(u"Txt_ColorHex"_s, u"Farbwert"_s)) {
    auto* all = new QGridLayout(this);
    auto* colors = new QGridLayout;
    colors->setSpacing(2);
    int index = 0;
    for (const ColorCircuit::Color& color : ColorCircuit::Colors()) {
        auto* button = new QToolButton;
        button->setObjectName(u"Img_ColorChoice_"_s + QString::number(index));
        button->setToolTip(color.name.toString());
        button->setAccessibleName(color.name.toString());
        button->setAutoRaise(true);
        button->setIcon(
            ColorIcon(QColor(QString(u'#' + color.hex.toString())), palette().color(QPalette::WindowText)));
        connect(button, &QToolButton::clicked, this, [this, index] { Img_ColorChoice_Click(index); });
        colors->addWidget(button, index / InARow, index % InARow);
        ++index;
    }
    all->addLayout(colors, 0, 0, 1, 3);
    Picture1->setObjectName(u"Picture1"_s);
    Picture1->setFrameStyle(QFrame::Box | QFrame::Plain);
    Picture1->setMinimumSize(48, 24);
    all->addWidget(Picture1, 1, 0);
    all->addWidget(Txt_ColorName, 1, 1);
    all->addWidget(Txt_ColorHex, 1, 2);
    auto* insert = new QPushButton(u"&Einfügen"_s);
    insert->setObjectName(u"Cmd_Control"_s);
    connect(insert, &QPushButton::clicked, this, [this] { Insert(u'#' + m_hex); });
    all->addWidget(insert, 2, 0, 1, 3);
    all->setSizeConstraint(QLayout::SetFixedSize);
}

void Frm_KCC::Img_ColorChoice_Click(int index) {
    const ColorCircuit::Color& color = ColorCircuit::Colors()[static_cast<size_t>(index)];
    m_hex = color.hex.toString();
    Txt_ColorName->setText(color.name.toString());
    Txt_ColorHex->setText(m_hex);
    ShowSwatch(*Picture1, QColor(QString(u'#' + m_hex)));
}
