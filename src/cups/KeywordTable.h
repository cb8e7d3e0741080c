// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

class JobOptions;
class PPDFile;

/**
 * Which choices of the panels stand for which choices of a printer.
 *
 * All rows name the same options of the panels and the same of the printer. Exactly one row applies
 * to each combination of the panels' choices. Choices of the printer that no row names are shown as
 * those of the first row.
 */
class KeywordTable
{
public:
    /// What one side of a row says of each option: the choices that it may have, the preferred one
    /// first.
    using Combination = QMap<QString, QStringList>;

    struct Row
    {
        Combination panel;
        Combination printer;
    };

    KeywordTable() = default;
    explicit KeywordTable(const QList<Row> &rows)
        : mRows(rows)
    {
    }

    const QList<Row> &rows() const { return mRows; }
    bool isEmpty() const { return mRows.isEmpty(); }
    QStringList panelKeys() const;
    QStringList printerKeys() const;
    /// The choices of an option of the panels that the rows name.
    QStringList panelChoices(const QString &key) const;

    /// What keeps the table from having exactly one row for each combination; null when it has.
    QString fault() const;

    /// The rows that a PPD has the choices for, with the options of the panels that these rows
    /// decide in every combination, with all their choices; empty when that is none. Of several
    /// options that would have to be given up the last ones are.
    KeywordTable fittedTo(const PPDFile &ppd) const;

    /// The row of the panels' choices; −1 when there is none.
    int rowOfPanel(const JobOptions &panel) const;
    /// The row of the printer's choices; −1 when there is none.
    int rowOfPrinter(const JobOptions &printer) const;

private:
    QList<Row> mRows;
};
