// SPDX-License-Identifier: MIT
#include "platform/icons.h"

#include <QHash>

// The set lies in a static library, which has to be told that its resources are wanted.
static void LoadSet() { Q_INIT_RESOURCE(icons); }

namespace Icons {

QString Path(QStringView name) {
    LoadSet();
    return QStringLiteral(":/icons/%1.svg").arg(name);
}

QIcon Named(QStringView name) {
    if (name.isEmpty()) return {};
    static QHash<QString, QIcon> known;
    const QString key = name.toString();
    const auto icon = known.constFind(key);
    if (icon != known.constEnd()) return *icon;
    return *known.insert(key, QIcon(Path(name)));
}

} // namespace Icons
