// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Rows of cells, indented, with each column as wide as its widest cell; a line for each row.
QString textTable(const QList<QStringList> &rows);
