// SPDX-License-Identifier: MIT
// Usage: test_<folder> [Class [Qt Test arguments, such as the name of one test function]]
#include "support/test_registry.h"

#ifdef SORVANE_TEST_WINDOWS
#include <QApplication>
#else
#include <QCoreApplication>
#endif

int main(int argc, char** argv) {
#ifdef SORVANE_TEST_WINDOWS
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication application(argc, argv);
#else
    QCoreApplication application(argc, argv);
#endif
    QStringList arguments = application.arguments();
    const QString name = arguments.size() > 1 ? arguments.takeAt(1) : QString();
    return TestRegistry::Run(name, arguments);
}
