// SPDX-License-Identifier: MIT
#include "preview/access_rule.h"

#include "platform/literals.h"
#include "preview/browser_address.h"

#include <QStringList>

void AccessRule::Wish(const QUrl& url) {
    if (BrowserAddress::IsNetwork(url)) m_hosts.insert(url.host());
}

bool AccessRule::AllowsPage(const QUrl& url, const QUrl& from) {
    if (AllowsFetch(url)) return true;
    if (!BrowserAddress::IsNetwork(from)) return false;
    m_hosts.insert(url.host()); // a link of a page that he wished for
    return true;
}

namespace {

bool IsPageOrPicture(const QUrl& url) {
    static const QStringList kinds{u"htm"_s, u"html"_s, u"xhtml"_s, u"shtml"_s, u"svg"_s, u"gif"_s,
                                   u"jpg"_s, u"jpeg"_s, u"png"_s,   u"ico"_s,   u"webp"_s};
    return kinds.contains(url.fileName().section(u'.', -1).toLower());
}

} // namespace

bool AccessRule::AllowsPart(const QUrl& url, Part part, const QUrl& page) const {
    if (url.isLocalFile() && part == Part::Data) return false;
    if (url.isLocalFile() && part == Part::Frame && !IsPageOrPicture(url)) return false;
    if (!offline || browsingAlone || !BrowserAddress::IsNetwork(url)) return true;
    return BrowserAddress::IsNetwork(page);
}

bool AccessRule::AllowsFetch(const QUrl& url) const {
    return !offline || browsingAlone || !BrowserAddress::IsNetwork(url) || m_hosts.contains(url.host());
}
