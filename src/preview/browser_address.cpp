// SPDX-License-Identifier: MIT
#include "preview/browser_address.h"

#include "platform/files.h"
#include "platform/literals.h"

#include <QStringList>

namespace BrowserAddress {

QUrl FromText(const QString& text) {
    const QString address = text.trimmed();
    if (address.isEmpty()) return {};
    const QString path = Files::FromSystem(address);
    if (!Files::IsFullPath(path)) return QUrl::fromUserInput(address);
    const qsizetype mark = path.lastIndexOf(u'#');
    if (mark < 0 || Files::CanRead(path)) return QUrl::fromLocalFile(Files::ToSystem(path));
    QUrl url = QUrl::fromLocalFile(Files::ToSystem(path.first(mark)));
    url.setFragment(path.sliced(mark + 1));
    return url;
}

QString Shown(const QUrl& url) {
    if (!url.isLocalFile()) return url.toDisplayString();
    const QString path = Files::ToSystem(Files::FromSystem(url.toLocalFile()));
    return url.hasFragment() ? QString(path + u'#' + url.fragment()) : path;
}

QString ForSystem(const QUrl& url) { return QString::fromLatin1(url.toEncoded()); }

bool IsNetwork(const QUrl& url) {
    if (url.scheme().isEmpty()) return false;
    if (url.scheme() == u"file")
        return !url.host().isEmpty() && url.host() != u"localhost"; // a network share
    static const QStringList local{u"data"_s, u"about"_s,      u"blob"_s,
                                   u"qrc"_s,  u"javascript"_s, u"chrome-error"_s};
    return !local.contains(url.scheme());
}

bool CanOpenOutside(const QUrl& url) {
    static const QStringList schemes{u"http"_s, u"https"_s, u"ftp"_s, u"mailto"_s, u"file"_s};
    return url.isValid() && schemes.contains(url.scheme());
}

} // namespace BrowserAddress
