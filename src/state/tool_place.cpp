// SPDX-License-Identifier: MIT
#include "state/tool_place.h"

#include "platform/numbers.h"
#include "platform/screen_place.h"
#include "platform/text.h"
#include "platform/twips.h"

#include <QWidget>

namespace ToolPlace {

QSize Inner(double width, double height) {
    return {Twips::ToPixels(width - BorderWidth), Twips::ToPixels(height - BorderHeight)};
}

void Restore(QWidget& window, const Global::ToolPos& place, Keeps keeps, QSize preset) {
    double left = Twips::FromPixels(window.x());
    double top = Twips::FromPixels(window.y());
    double width = preset.width();
    double height = preset.height();
    Attempt([&] { left = Numbers::ReadNumber(place[1]); });
    Attempt([&] { top = Numbers::ReadNumber(place[2]); });
    if (keeps == Keeps::PlaceAndSize) {
        Attempt([&] { width = Numbers::ReadNumber(place[3]); });
        Attempt([&] { height = Numbers::ReadNumber(place[4]); });
    }
    const QSize inner = width > 0 && height > 0 ? Inner(width, height) : window.size();
    const QSize frame(Twips::ToPixels(BorderWidth), Twips::ToPixels(BorderHeight));
    const QRect outer(QPoint(Twips::ToPixels(left), Twips::ToPixels(top)),
                      inner.expandedTo(window.minimumSize()) + frame);
    const QRect fitted = FittedToScreen(outer);
    window.move(fitted.topLeft());
    window.resize(fitted.size() - frame);
}

void Store(const QWidget& window, Global::ToolPos& place, Keeps keeps) {
    const auto text = [](int pixels, int border) {
        return QString::number(Twips::FromPixels(pixels) + border);
    };
    place[1] = text(window.x(), 0);
    place[2] = text(window.y(), 0);
    if (keeps == Keeps::Place) return;
    place[3] = text(window.width(), BorderWidth);
    place[4] = text(window.height(), BorderHeight);
}

} // namespace ToolPlace
