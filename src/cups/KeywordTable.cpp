// SPDX-License-Identifier: Apache-2.0
#include "cups/KeywordTable.h"

#include "cups/JobOptions.h"
#include "cups/PPDFile.h"
#include "printcore/QtVersions.h"

#include <QSet>

#include <algorithm>
#include <bit>
#include <vector>

namespace {
using Combination = KeywordTable::Combination;
using TableRow = KeywordTable::Row;

bool allows(const Combination &combination, const JobOptions &options)
{
    return std::all_of(combination.keyBegin(), combination.keyEnd(), [&](const QString &key) {
        return combination.value(key).contains(options.value(key));
    });
}

/// Whether some choices are allowed by both.
bool overlap(const Combination &one, const Combination &other)
{
    return std::all_of(one.keyBegin(), one.keyEnd(), [&](const QString &key) {
        const QStringList choices = one.value(key);
        return std::any_of(choices.begin(), choices.end(), [&](const QString &choice) {
            return other.value(key).contains(choice);
        });
    });
}

QString fromCombination(const Combination &combination)
{
    QStringList words;
    for (auto entry = combination.begin(); entry != combination.end(); ++entry) {
        words.append(entry.key() + u'=' + entry.value().first());
    }
    return words.join(u' ');
}

/// Takes out the choices that the PPD lacks; false when none is left of an option.
bool keepChoicesOf(const PPDFile &ppd, Combination &combination)
{
    for (auto entry = combination.begin(); entry != combination.end(); ++entry) {
        const QStringList known = ppd.choices(entry.key());
        removeFrom(entry.value(),
                   [&known](const QString &choice) { return !known.contains(choice); });
        if (entry.value().isEmpty()) {
            return false;
        }
    }
    return true;
}

/// The rows without the panels' options whose bits are set.
QList<TableRow> without(quint32 removed, const QStringList &keys, QList<TableRow> rows)
{
    for (TableRow &row : rows) {
        for (int i = 0; i < keys.size(); ++i) {
            if (removed & (1U << i)) {
                row.panel.remove(keys.at(i));
            }
        }
    }
    return rows;
}

/// The sets of options to give up, as bits: the smallest first, and the last options before others.
std::vector<quint32> setsOf(int options)
{
    std::vector<quint32> sets;
    for (quint32 set = 0; set + 1 < 1U << options; ++set) {
        sets.push_back(set);
    }
    std::sort(sets.begin(), sets.end(), [](quint32 one, quint32 other) {
        const int difference = std::popcount(one) - std::popcount(other);
        return difference < 0 || (difference == 0 && one > other);
    });
    return sets;
}

template <typename Match>
int indexOf(const QList<TableRow> &rows, Match matches)
{
    const auto row = std::find_if(rows.begin(), rows.end(), matches);
    return row == rows.end() ? -1 : int(row - rows.begin());
}
} // namespace

QStringList KeywordTable::panelKeys() const
{
    return isEmpty() ? QStringList() : QStringList(mRows.first().panel.keys());
}

QStringList KeywordTable::printerKeys() const
{
    return isEmpty() ? QStringList() : QStringList(mRows.first().printer.keys());
}

QStringList KeywordTable::panelChoices(const QString &key) const
{
    QStringList choices;
    for (const TableRow &row : mRows) {
        choices += row.panel.value(key);
    }
    choices.removeDuplicates();
    return choices;
}

QString KeywordTable::fault() const
{
    double named = 0.0;
    for (int i = 0; i < mRows.size(); ++i) {
        const TableRow &row = mRows.at(i);
        for (int j = 0; j < i; ++j) {
            if (overlap(row.panel, mRows.at(j).panel)) {
                return QStringLiteral("two rows are for %1").arg(fromCombination(row.panel));
            }
            if (overlap(row.printer, mRows.at(j).printer)) {
                return QStringLiteral("two rows are for %1").arg(fromCombination(row.printer));
            }
        }
        double combinations = 1.0;
        for (const QStringList &choices : row.panel) {
            combinations *= double(choices.size());
        }
        named += combinations;
    }
    double all = 1.0;
    const QStringList keys = panelKeys();
    for (const QString &key : keys) {
        all *= double(panelChoices(key).size());
    }
    return named < all ? QStringLiteral("rows are missing: %1 of %2 combinations of %3 have one")
                             .arg(named)
                             .arg(all)
                             .arg(keys.join(QStringLiteral(", ")))
                       : QString();
}

KeywordTable KeywordTable::fittedTo(const PPDFile &ppd) const
{
    QList<TableRow> possible;
    for (TableRow row : mRows) {
        if (keepChoicesOf(ppd, row.printer)) {
            possible.append(row);
        }
    }
    const QStringList keys = panelKeys();
    const auto sets = possible.size() < 2 ? std::vector<quint32>() : setsOf(int(keys.size()));
    for (const quint32 removed : sets) {
        const KeywordTable table(without(removed, keys, possible));
        const QStringList left = table.panelKeys();
        const bool canBeChosen = std::all_of(left.begin(), left.end(), [&](const QString &key) {
            return table.panelChoices(key).size() == panelChoices(key).size();
        });
        if (canBeChosen && table.fault().isNull()) {
            return table;
        }
    }
    return {};
}

int KeywordTable::rowOfPanel(const JobOptions &panel) const
{
    return indexOf(mRows, [&panel](const TableRow &row) { return allows(row.panel, panel); });
}

int KeywordTable::rowOfPrinter(const JobOptions &printer) const
{
    return indexOf(mRows, [&printer](const TableRow &row) { return allows(row.printer, printer); });
}
