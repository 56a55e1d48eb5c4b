// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

namespace NoticePage {

// The page shown in place of an address of the network: it says why the address was not loaded and offers a
// link to it. It carries the address in its own, so that it survives in the view's history. The colours are
// CSS values.
QUrl Refused(const QUrl& address, const QString& background, const QString& text);
// The page shown in a frame of a page in place of a file or an address that no frame may hold.
QUrl RefusedFrame(const QUrl& address, const QString& background, const QString& text);
// The address that the page `url` stands for; invalid when it is no such page.
QUrl RefusedAddress(const QUrl& url);

} // namespace NoticePage
