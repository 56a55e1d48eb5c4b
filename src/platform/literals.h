// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>
#include <type_traits>

using namespace Qt::Literals::StringLiterals;

namespace Literals {
// A view or a u"..." literal, and no QString.
template<class Part>
concept ViewLike = std::is_same_v<std::remove_cvref_t<Part>, QStringView> ||
    (std::is_array_v<std::remove_cvref_t<Part>>&&
         std::is_same_v<std::remove_cv_t<std::remove_extent_t<std::remove_cvref_t<Part>>>, char16_t>);
} // namespace Literals

// Joining text with a view or a u"..." literal. Qt 6.4 has this only for its string builder, whose results
// hold references and dangle when a lambda or an `auto` keeps them.
template<Literals::ViewLike Part> QString operator+(QString text, const Part& part) {
    return std::move(text.append(QStringView(part)));
}
template<Literals::ViewLike Part> QString operator+(const Part& part, const QString& text) {
    const QStringView view(part);
    QString joined;
    joined.reserve(view.size() + text.size());
    return joined.append(view).append(text);
}
