// SPDX-License-Identifier: MIT
#include "preview/notice_page.h"

#include "platform/literals.h"
#include "preview/browser_address.h"

namespace NoticePage {

namespace {

const QString Prefix = QStringLiteral("text/html;charset=utf-8;refused=");

// A page in the given colours. `body` is markup.
QByteArray Html(const QString& background, const QString& text, const QString& body) {
    const QString html = uR"(<!DOCTYPE html>
<html lang="de"><head><title>Nicht geladen</title><style>
body{background:%1;color:%2;font:15px/1.5 system-ui,sans-serif;max-width:34em;margin:0 auto;padding:2.5em 1.5em}
h1{font-size:1.4em;font-weight:600}
.address{font-weight:600;overflow-wrap:anywhere}
a{color:inherit}
</style></head><body>
%3
</body></html>)"_s;
    return html.arg(background, text, body).toUtf8().toBase64();
}

QString Named(const QUrl& address) {
    return u"<p class=\"address\">%1</p>"_s.arg(BrowserAddress::Shown(address).toHtmlEscaped());
}

const QString NetworkTitle = QStringLiteral("<h1>Diese Adresse liegt im Internet</h1>");
const QString NetworkText = QStringLiteral(
    "<p>Die Vorschau zeigt nur Dateien auf Ihrem Rechner. Deshalb wurde diese Adresse nicht geladen:</p>");

} // namespace

QUrl Refused(const QUrl& address, const QString& background, const QString& text) {
    const QByteArray name = address.toEncoded().toBase64(QByteArray::Base64UrlEncoding);
    const QString open = uR"(<p><a id="open" href="%1">In Ihrem Browser öffnen</a></p>
<p>Möchten Sie die Seite hier sehen, öffnen Sie im Menü „Ansicht“ die Navigationsleiste und geben Sie die
Adresse dort ein.</p>)"_s.arg(BrowserAddress::ForSystem(address).toHtmlEscaped());
    const QByteArray page = Html(background, text, NetworkTitle + NetworkText + Named(address) + open);
    return QUrl(u"data:"_s + Prefix + QString::fromLatin1(name) + u";base64,"_s + QString::fromLatin1(page));
}

QUrl RefusedFrame(const QUrl& address, const QString& background, const QString& text) {
    const QString fileTitle = u"<h1>Diese Datei wird hier nicht gezeigt</h1>"_s;
    const QString fileText =
        u"<p>In einem Rahmen zeigt die Vorschau Seiten und Bilder sowie Texte, die im Ordner "
        "der Seite oder darunter liegen. Deshalb wurde diese Datei nicht geladen:</p>"_s;
    const QString body =
        BrowserAddress::IsNetwork(address) ? NetworkTitle + NetworkText : fileTitle + fileText;
    const QByteArray page = Html(background, text, body + Named(address));
    return QUrl(u"data:text/html;charset=utf-8;base64,"_s + QString::fromLatin1(page));
}

QUrl RefusedAddress(const QUrl& url) {
    if (url.scheme() != u"data") return {};
    const QString path = url.path(QUrl::FullyEncoded);
    if (!path.startsWith(Prefix)) return {};
    const QByteArray name = path.mid(Prefix.size()).section(u';', 0, 0).toLatin1();
    return QUrl::fromEncoded(QByteArray::fromBase64(name, QByteArray::Base64UrlEncoding));
}

} // namespace NoticePage
