// SPDX-License-Identifier: MIT
#include "insertion/frm_color.h"

#include "insertion/color_circuit.h"
#include "insertion/swatch.h"
#include "platform/literals.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

Frm_Color::Frm_Color()
    : ToolWindow({u"Frm_Color"_s, u"Farbe (RGB)"_s,
                  u"Mit diesem Tool können Sie Farben mischen und diese einfügen."_s, &Global::ColorToolOpen,
                  &Global::ColorToolPos}),
      Pic_ShowColor(new QLabel) {
    auto* all = new QGridLayout(this);
    const QString letters[] = {u"R"_s, u"G"_s, u"B"_s};
    const QString names[] = {u"Rot"_s, u"Grün"_s, u"Blau"_s};
    for (int i = 0; i < 3; ++i) {
        auto* slider = new QSlider(Qt::Horizontal);
        slider->setObjectName(u"Sld_RGB_"_s + QString::number(i));
        slider->setAccessibleName(names[i]);
        slider->setRange(0, 255);
        slider->setPageStep(16);
        slider->setMinimumWidth(140);
        auto* label = new QLabel(letters[i]);
        label->setBuddy(slider);
        all->addWidget(label, i, 0);
        all->addWidget(slider, i, 1);
        connect(slider, &QSlider::valueChanged, this, &Frm_Color::Sld_RGB_Change);
        Sld_RGB[static_cast<size_t>(i)] = slider;
    }
    Pic_ShowColor->setObjectName(u"Pic_ShowColor"_s);
    Pic_ShowColor->setMinimumWidth(56);
    Pic_ShowColor->setFrameStyle(QFrame::Box | QFrame::Plain); // an edge for every colour on every window
    all->addWidget(Pic_ShowColor, 0, 2, 3, 1);
    auto* insert = new QPushButton(u"&Einfügen"_s);
    insert->setObjectName(u"Cmd_Control"_s);
    connect(insert, &QPushButton::clicked, this, [this] {
        Insert(ColorCircuit::Hex(Sld_RGB[0]->value(), Sld_RGB[1]->value(), Sld_RGB[2]->value()));
    });
    all->addWidget(insert, 3, 0, 1, 3);
    all->setSizeConstraint(QLayout::SetFixedSize);
    Sld_RGB_Change();
}

void Frm_Color::Sld_RGB_Change() {
    ShowSwatch(*Pic_ShowColor, QColor(Sld_RGB[0]->value(), Sld_RGB[1]->value(), Sld_RGB[2]->value()));
    for (QSlider* slider : Sld_RGB) slider->setToolTip(QString::number(slider->value()));
}
