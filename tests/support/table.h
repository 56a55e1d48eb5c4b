// SPDX-License-Identifier: MIT
#pragma once

#include <QTest>

// The columns of a test's data table. The result adds its rows, each by its name and a value a column:
// const auto row = Columns<QString, int>("text", "length"); row("empty", "", 0);
template<class... Types, class... Names> auto Columns(Names... names) {
    static_assert(sizeof...(Types) == sizeof...(Names));
    (QTest::addColumn<Types>(names), ...);
    return [](const QString& title, const Types&... values) {
        QTestData& row = QTest::newRow(title.toUtf8());
        static_cast<void>((row << ... << values));
    };
}
