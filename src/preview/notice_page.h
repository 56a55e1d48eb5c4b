// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

namespace NoticePage {

// Colours of the page, as CSS knows them.
struct Colours {
    QString background;
    QString text;
    QString link;
};

// The page shown in place of an address of the network: it says why the address was not loaded and offers a link
// to it. It carries the address in its own, so that it survives in the view's history.
QUrl Refused(const QUrl& address, const Colours& colours);
// The address that the page `url` stands for; invalid when it is no such page.
QUrl RefusedAddress(const QUrl& url);

} // namespace NoticePage
