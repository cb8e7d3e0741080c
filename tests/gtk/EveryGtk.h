// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/QtNames.h"

#include <QTest>

#include <initializer_list>
#include <utility>

/// Adds a row for each version of GTK, "3" and "4" in the column "gtk", and each of these values.
template <typename Value>
void everyGtkWith(const char *column, std::initializer_list<std::pair<const char *, Value>> values)
{
    QTest::addColumn<QString>("gtk");
    QTest::addColumn<Value>(column);
    for (const QString &gtk : QStringLiteral(KV_GTK_VERSIONS).split(u' ')) {
        for (const auto &[name, value] : values) {
            QTest::addRow("GTK %s, %s", qPrintable(gtk), name) << gtk << value;
        }
    }
}

/// Adds a row for each version of GTK.
inline void everyGtk()
{
    QTest::addColumn<QString>("gtk");
    for (const QString &gtk : QStringLiteral(KV_GTK_VERSIONS).split(u' ')) {
        QTest::newRow(qPrintable(u"GTK "_s + gtk)) << gtk;
    }
}
