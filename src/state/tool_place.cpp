// SPDX-License-Identifier: MIT
#include "state/tool_place.h"

#include "platform/numbers.h"
#include "platform/screen_place.h"
#include "platform/text.h"
#include "platform/twips.h"

#include <QWidget>
#include <algorithm>
#include <optional>

namespace ToolPlace {

namespace {

// Further than any desktop reaches; twips.
constexpr double FarAway = 1e6;

// The value that the settings hold, if it is a number; one past all reason is cut to what a screen can hold.
std::optional<double> Kept(const QString& text) {
    std::optional<double> value;
    Attempt([&] { value = std::clamp(Numbers::ReadNumber(text), -FarAway, FarAway); });
    return value;
}

} // namespace

QSize Inner(double width, double height) {
    return {Twips::ToPixels(width - BorderWidth), Twips::ToPixels(height - BorderHeight)};
}

void Restore(QWidget& window, const Global::ToolPos& place, Keeps keeps, QSize preset) {
    const double left = Kept(place[1]).value_or(Twips::FromPixels(window.x()));
    const double top = Kept(place[2]).value_or(Twips::FromPixels(window.y()));
    double width = preset.width();
    double height = preset.height();
    if (keeps == Keeps::PlaceAndSize) {
        if (const auto kept = Kept(place[3]); kept > BorderWidth) width = *kept;
        if (const auto kept = Kept(place[4]); kept > BorderHeight) height = *kept;
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
