// SPDX-License-Identifier: MIT
#include "preview/notice_page.h"

#include "platform/literals.h"
#include "preview/browser_address.h"

namespace NoticePage {

namespace {

const QString Prefix = QStringLiteral("text/html;charset=utf-8;refused=");

QString Html(const QUrl& address, const QString& background, const QString& text) {
    const QString html = uR"(<!DOCTYPE html>
<html lang="de"><head><title>Nicht geladen</title><style>
body{background:%1;color:%2;font:15px/1.5 system-ui,sans-serif;max-width:34em;margin:0 auto;padding:2.5em 1.5em}
h1{font-size:1.4em;font-weight:600}
.address{font-weight:600;overflow-wrap:anywhere}
a{color:inherit}
</style></head><body>
<h1>Diese Adresse liegt im Internet</h1>
<p>Die Vorschau zeigt nur Dateien auf Ihrem Rechner. Deshalb wurde diese Adresse nicht geladen:</p>
<p class="address">%3</p>
<p><a id="open" href="%4">In Ihrem Browser öffnen</a></p>
<p>Möchten Sie die Seite hier sehen, öffnen Sie im Menü „Ansicht“ die Navigationsleiste und geben Sie die
Adresse dort ein.</p>
</body></html>)"_s;
    return html.arg(background, text, BrowserAddress::Shown(address).toHtmlEscaped(),
                    BrowserAddress::ForSystem(address).toHtmlEscaped());
}

} // namespace

QUrl Refused(const QUrl& address, const QString& background, const QString& text) {
    const QByteArray name = address.toEncoded().toBase64(QByteArray::Base64UrlEncoding);
    const QByteArray page = Html(address, background, text).toUtf8().toBase64();
    return QUrl(u"data:"_s + Prefix + QString::fromLatin1(name) + u";base64,"_s + QString::fromLatin1(page));
}

QUrl RefusedAddress(const QUrl& url) {
    if (url.scheme() != u"data") return {};
    const QString path = url.path(QUrl::FullyEncoded);
    if (!path.startsWith(Prefix)) return {};
    const QByteArray name = path.mid(Prefix.size()).section(u';', 0, 0).toLatin1();
    return QUrl::fromEncoded(QByteArray::fromBase64(name, QByteArray::Base64UrlEncoding));
}

} // namespace NoticePage
