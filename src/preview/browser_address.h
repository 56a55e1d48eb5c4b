// SPDX-License-Identifier: MIT
// Addresses of the preview: paths, what the user types, and what the view reports.
#pragma once

#include <QString>
#include <QUrl>

namespace BrowserAddress {

// The address of a path (in the program's or the system's form) or of an address as a user types it
// ("www.verein.example" too). A "#" in a path names a place in the page where no file has it in its name.
// Invalid for an empty text.
QUrl FromText(const QString& text);
// What the user reads: the system's form of a path for a local file, otherwise the address itself.
QString Shown(const QUrl& url);
// The form that a program of the system can open.
QString ForSystem(const QUrl& url);

// Whether loading the address asks the network. All but the schemes known to stay on this computer do.
bool IsNetwork(const QUrl& url);
// Whether another program can show it: a page of the network or a local file.
bool CanOpenOutside(const QUrl& url);

} // namespace BrowserAddress
