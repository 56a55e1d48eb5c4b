// SPDX-License-Identifier: MIT
#include "clips/clip_tag.h"

#include "platform/literals.h"

namespace Clips {

QString BaseOf(const QString& document) {
    const qsizetype separator = document.lastIndexOf(u'\\');
    return separator < 0 ? document : document.first(separator + 1);
}

QString ImageTag(const QString& address, QSize size, bool xhtml) {
    QString tag = u"<img src=\""_s + address + u'"';
    if (size.isValid()) {
        tag += u" width=\""_s + QString::number(size.width()) + u"\" height=\""_s +
               QString::number(size.height()) + u'"';
    }
    return tag + (xhtml ? u" />"_s : u">"_s);
}

} // namespace Clips
