// SPDX-License-Identifier: MIT
// Usage: test_<folder> [Class [Qt Test arguments, such as the name of one test function]]
#include "support/test_registry.h"

#ifdef SORVANE_TEST_WINDOWS
#include <QApplication>
#else
#include <QCoreApplication>
#endif

#include <map>

static std::map<QString, std::function<std::unique_ptr<QObject>()>>& Classes() {
    static std::map<QString, std::function<std::unique_ptr<QObject>()>> classes;
    return classes;
}

bool TestRegistry::Add(const char* name, std::function<std::unique_ptr<QObject>()> create) {
    return Classes().emplace(QString::fromLatin1(name), std::move(create)).second;
}

int main(int argc, char** argv) {
#ifdef SORVANE_TEST_WINDOWS
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
#else
    QCoreApplication application(argc, argv);
#endif
    QStringList arguments = application.arguments();
    const QString wanted = arguments.size() > 1 ? arguments.takeAt(1) : QString();
    int failures = 0;
    bool found = false;
    for (const auto& [name, create] : Classes()) {
        if (!wanted.isEmpty() && name != wanted) continue;
        found = true;
        failures += QTest::qExec(create().get(), arguments);
    }
    if (!found) qCritical("no test class of that name");
    return found ? failures : 1;
}
