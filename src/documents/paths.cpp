// SPDX-License-Identifier: MIT
#include "documents/paths.h"

#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/text.h"

#include <algorithm>

namespace Global {

QString FileNameOf(const QString& path) {
    const qsizetype backslash = path.lastIndexOf(u'\\');
    return path.sliced((backslash >= 0 ? backslash : path.lastIndexOf(u'/')) + 1);
}

QString StripExtension(const QString& path) { return path.first(path.lastIndexOf(u'.') + 1); }

QString ParentPath(const QString& path) {
    const qsizetype backslash = path.lastIndexOf(u'\\');
    return backslash >= 1 ? path.first(backslash) : path;
}

QString ExtensionOf(const QString& path, const QString& preset, qsizetype length) {
    const qsizetype dot = path.lastIndexOf(u'.');
    if (dot < 0) return preset;
    return Text::LowerCase(QStringView(path).sliced(dot + 1).first(std::min(length, path.size() - dot - 1)));
}

qsizetype CountOccurrences(QStringView text, QStringView needle) {
    if (needle.isEmpty()) return 0;
    qsizetype count = 0;
    for (qsizetype at = text.indexOf(needle); at >= 0; at = text.indexOf(needle, at + needle.size())) ++count;
    return count;
}

QString CutBefore(const QString& text, const QString& delimiter) {
    const qsizetype at = Text::UpperCase(text).indexOf(Text::UpperCase(delimiter));
    return at < 0 ? text : text.first(at);
}

std::optional<QString> PathOfLink(const QString& relative, const QString& base) {
    QString path = relative;
    QString folder = base;
    while (path.startsWith(u"../")) {
        const qsizetype end = folder.lastIndexOf(u'\\');
        const qsizetype parent = end > 0 ? folder.lastIndexOf(u'\\', end - 1) : -1;
        if (parent < 0) return std::nullopt;
        folder.truncate(parent + 1);
        path.remove(0, 3);
    }
    return QString(folder + path).replace(u'/', u'\\');
}

QString ResolveLink(const QString& relative, const QString& base) {
    if (const auto path = PathOfLink(relative, base)) return *path;
    Events::Sleep(1); // nothing can change any more; the second until the message is part of the routine
    Dialogs::Tell(u"Fehler"_s, u"Beim Konvertieren eines Pfades ist ein Fehler aufgetreten."_s,
                  Dialogs::Icon::Critical);
    return {};
}

QString RelativePathOf(const QString& target, const QString& base) {
    constexpr qsizetype LongestRest = 255;
    const qsizetype shorter = std::min(target.size(), base.size());
    const qsizetype agreed =
        std::mismatch(base.cbegin(), base.cbegin() + shorter, target.cbegin()).first - base.cbegin();
    const qsizetype passed = QStringView(base).first(agreed).count(u'\\');
    const qsizetype folder = QStringView(base).first(agreed).lastIndexOf(u'\\') + 1;
    const qsizetype steps = QStringView(base).count(u'\\') - passed;
    const QString rest = target.sliced(folder, std::min(LongestRest, target.size() - folder));
    return QString(u"../"_s.repeated(steps) + rest).replace(u'\\', u'/');
}

} // namespace Global
