// SPDX-License-Identifier: MIT
// The page that names the newest update: its title is the update's number without the point.
#pragma once

#include <QByteArray>
#include <QString>

namespace UpdateCheck {

inline constexpr int PresentUpdate = 146;

// The title of an HTML page as a browser shows it: blanks at its ends dropped, those within made one. Empty
// for a page without one.
QString TitleOf(const QByteArray& page);
// Whether a page of that title tells of an update that is newer than this program.
bool TellsOfUpdate(const QString& title);

} // namespace UpdateCheck
