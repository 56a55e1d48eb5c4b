// SPDX-License-Identifier: MIT
#include "shell/frm_load.h"

#include "platform/events.h"
#include "platform/icons.h"
#include "platform/literals.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QSvgRenderer>

Frm_Load::Frm_Load()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      Lbl_LoadText(new QLabel(u"Lade Einstellungen..."_s, this)) {
    setObjectName(u"Frm_Load"_s);
    QSvgRenderer drawing(Icons::Path(u"splash"));
    const QSize size = drawing.defaultSize();
    setFixedSize(size);
    QPixmap pixmap(size * devicePixelRatioF());
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawing.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    auto* picture = new QLabel(this);
    picture->setPixmap(pixmap);
    picture->setGeometry(rect());
    Lbl_LoadText->setObjectName(u"Lbl_LoadText"_s);
    Lbl_LoadText->setGeometry(20, size.height() - 44, size.width() - 40, 28);
    Lbl_LoadText->setStyleSheet(u"color: #24577f"_s); // the picture is light in every palette
    Lbl_LoadText->raise();
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    move(screen.center() - rect().center());
}

void Frm_Load::OnLoad() { Lbl_LoadText->clear(); }

void Frm_Load::SetStatus(const QString& text) {
    Lbl_LoadText->setText(text);
    Events::DoEvents();
}
