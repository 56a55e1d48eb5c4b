// SPDX-License-Identifier: MIT
#include "platform/screen_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

QRect FittedToScreen(QRect place, const QList<QRect>& screens, QSize least) {
    QRect screen = screens.constFirst();
    const auto shown = [&](const QRect& one) {
        const QRect part = one.intersected(place);
        return part.isEmpty() ? 0 : qint64(part.width()) * part.height();
    };
    for (const QRect& one : screens) {
        if (shown(one) > shown(screen)) screen = one;
    }
    place.setSize(place.size().expandedTo(least).boundedTo(screen.size()));
    place.moveLeft(std::clamp(place.left(), screen.left(), screen.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), screen.top(), screen.bottom() + 1 - place.height()));
    return place;
}

QRect FittedToScreen(QRect place, QSize least) {
    QList<QRect> screens{QGuiApplication::primaryScreen()->availableGeometry()};
    for (const QScreen* screen : QGuiApplication::screens()) screens.append(screen->availableGeometry());
    return FittedToScreen(place, screens, least);
}
