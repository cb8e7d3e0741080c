// SPDX-License-Identifier: Apache-2.0
#include "kvprint/TextTable.h"

#include <algorithm>

QString textTable(const QList<QStringList> &rows)
{
    QList<qsizetype> widths;
    for (const QStringList &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], row.at(i).size());
        }
    }
    QString text;
    for (const QStringList &row : rows) {
        QString line;
        for (qsizetype i = 0; i < row.size(); ++i) {
            line += QStringLiteral("  ") + row.at(i).leftJustified(widths[i]);
        }
        while (line.endsWith(QLatin1Char(' '))) {
            line.chop(1);
        }
        text += line + QLatin1Char('\n');
    }
    return text;
}
