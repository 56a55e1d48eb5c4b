// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTest>
#include <functional>
#include <memory>

// Makes a test class known to the test program by its name: REGISTER_TEST(UndoSteps) behind the class, or
// REGISTER_TEST_AS(Undo, UndoTest) where the name is taken already.
namespace TestRegistry {
bool Add(const char* name, std::function<std::unique_ptr<QObject>()> create);
} // namespace TestRegistry

#define REGISTER_TEST_AS(Name, Class)                                                                        \
    [[maybe_unused]] static const bool registered##Class =                                                   \
        TestRegistry::Add(#Name, [] { return std::make_unique<Class>(); })
#define REGISTER_TEST(Class) REGISTER_TEST_AS(Class, Class)
