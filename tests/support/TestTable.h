// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTest>

/// The table of a data-driven test: columns of these types, by whose names QFETCH and QTEST find
/// them.
template <typename... Types>
class TestTable
{
public:
    template <typename>
    using Name = const char *;

    explicit TestTable(Name<Types>... names) { (QTest::addColumn<Types>(names), ...); }

    /// Adds a row; its name is shown with its result.
    void add(const char *name, const Types &...cells) const
    {
        (QTest::newRow(name) << ... << cells);
    }
};
