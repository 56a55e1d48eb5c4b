// SPDX-License-Identifier: MIT
// The settings file edit.ini in the program directory. Read key by key, written whole and only at exit.
#pragma once

#include <QString>

namespace Settings {

inline const QString BuildDate = QStringLiteral("17.07.02");
inline const QString UpdateNumber = QStringLiteral("14.6");

// The value of the first line that contains `key`: what stands behind its first "=", or the whole line if it
// has none. An empty value and a missing key give `preset`. Where the file cannot be read, this installs the
// defaults, writes the file and returns an empty text.
QString GetSetting(const QString& key, const QString& preset);
QString GetSetting(const QString& key, int preset);

// Writes the shared state to the file, replacing it: in Windows-1252, or in UTF-8 with a mark as soon as a
// value needs it. Settings are written only after they have been read: before, nothing happens. A failed
// write loses the settings of this run; returns whether it worked.
bool WriteSettings();

// Copies all keys of the file into the shared state. A value that cannot be read leaves what was there.
void LoadSettings();

// A text with CR LF turned into the marker that stands for it in one line of the file, and back.
QString EncodeLineBreaks(QString text);
QString DecodeLineBreaks(QString text);

} // namespace Settings
