// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QString>
#include <QUrl>

// Which addresses the preview may load. While it is offline these are the local ones, and those of the
// network that the user wished for: he typed them himself, went on from there, or browses without a document.
class AccessRule {
public:
    bool offline = true;
    bool browsingAlone = false; // browser-only mode

    // The user typed the address.
    void Wish(const QUrl& url);
    // Whether the window may go to `url`, called from the page `from`. A yes holds for the address's host
    // from then on.
    bool AllowsPage(const QUrl& url, const QUrl& from);
    // What a page asks for: read by its script, shown in a frame, or anything else that it is made of.
    enum class Part { Data, Frame, Other };
    // Whether the page `page` may load `url` as one of its parts. A script can look into the frames of a
    // local page. So it gets no data, and a frame holds nothing but pages and pictures, and as long as the
    // network is closed, texts and files without extension of the page's own folder and those in
    // it.
    bool AllowsPart(const QUrl& url, Part part, const QUrl& page) const;
    // Whether a main page that AllowsPage() has seen may be fetched.
    bool AllowsFetch(const QUrl& url) const;

private:
    QSet<QString> m_hosts;
};
