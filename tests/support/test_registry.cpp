// SPDX-License-Identifier: MIT
#include "support/test_registry.h"

#include <QString>
#include <QStringList>
#include <map>

namespace TestRegistry {

namespace {
std::map<QString, std::function<std::unique_ptr<QObject>()>>& Classes() {
    static std::map<QString, std::function<std::unique_ptr<QObject>()>> classes;
    return classes;
}
} // namespace

bool Add(const char* name, std::function<std::unique_ptr<QObject>()> create) {
    return Classes().emplace(QString::fromLatin1(name), std::move(create)).second;
}

int Run(const QString& name, QStringList arguments) {
    int failures = 0;
    bool found = false;
    for (const auto& [known, create] : Classes()) {
        if (!name.isEmpty() && known != name) continue;
        found = true;
        failures += QTest::qExec(create().get(), arguments);
    }
    if (!found) {
        qCritical("no test class of that name");
        return 1;
    }
    return failures;
}

} // namespace TestRegistry
