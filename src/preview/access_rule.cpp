// SPDX-License-Identifier: MIT
#include "preview/access_rule.h"

#include "platform/files.h"
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

QString ExtensionOf(const QUrl& url) {
    const QString name = url.fileName();
    return name.contains(u'.') ? name.section(u'.', -1).toLower() : QString();
}

bool IsPageOrPicture(const QUrl& url) {
    static const QStringList kinds{u"htm"_s, u"html"_s, u"xhtml"_s, u"shtml"_s, u"svg"_s, u"gif"_s,
                                   u"jpg"_s, u"jpeg"_s, u"png"_s,   u"ico"_s,   u"webp"_s};
    return kinds.contains(ExtensionOf(url));
}

bool IsText(const QUrl& url) {
    static const QStringList kinds{u"txt"_s, QString()}; // the engine has no view of PDF files
    return kinds.contains(ExtensionOf(url));
}

// Whether the file `url` lies in the folder of the page or in one of the folders in it. A link on disk that
// leads out of it does not; a file that is not there does, for it shows nothing.
bool IsInTreeOf(const QUrl& page, const QUrl& url) {
    if (!page.isLocalFile() || !url.isLocalFile()) return false;
    const QString file = Files::FromSystem(url.toLocalFile());
    const QString target = Files::Canonical(file);
    if (target.isEmpty()) return true;
    const QString start = Files::Canonical(Files::FromSystem(page.toLocalFile()));
    const QString folder = start.first(start.lastIndexOf(u'\\') + 1);
    return !folder.isEmpty() && target.startsWith(folder) && Files::CanRead(file);
}

} // namespace

bool AccessRule::AllowsPart(const QUrl& url, Part part, const QUrl& page) const {
    if (url.isLocalFile() && part == Part::Data) return false;
    const bool networkOpen = !offline || browsingAlone;
    if (url.isLocalFile() && part == Part::Frame && !IsPageOrPicture(url)) {
        return !networkOpen && IsText(url) && IsInTreeOf(page, url);
    }
    if (networkOpen || !BrowserAddress::IsNetwork(url)) return true;
    return BrowserAddress::IsNetwork(page);
}

bool AccessRule::AllowsFetch(const QUrl& url) const {
    return !offline || browsingAlone || !BrowserAddress::IsNetwork(url) || m_hosts.contains(url.host());
}
