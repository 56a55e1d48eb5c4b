// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTest>
#include <functional>
#include <memory>

// Makes a test class known to the test program by its name: REGISTER_TEST(Undo) behind the class.
namespace TestRegistry {
bool Add(const char* name, std::function<std::unique_ptr<QObject>()> create);
// Runs the class `name`, or all when it is empty; returns the number of failures.
int Run(const QString& name, QStringList arguments);
} // namespace TestRegistry

#define REGISTER_TEST(Class)                                                                                     \
    [[maybe_unused]] static const bool registered##Class =                                                       \
        TestRegistry::Add(#Class, [] { return std::make_unique<Class>(); })
