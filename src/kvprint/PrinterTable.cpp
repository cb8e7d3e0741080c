// SPDX-License-Identifier: Apache-2.0
#include "kvprint/PrinterTable.h"

#include "kvprint/TextTable.h"

#include <QJsonArray>

namespace {
/// From how many consecutive numbers on a table shows a range.
constexpr int leastRange = 4;

QString textOf(const QJsonObject &object, const char *member)
{
    return object.value(QLatin1String(member)).toString();
}

/// The choices in a row, with runs of consecutive numbers as a range.
QString choicesInATable(const QJsonArray &choices)
{
    QStringList shown;
    for (qsizetype i = 0; i < choices.size();) {
        const auto nameAt = [&choices](qsizetype at) {
            return textOf(choices.at(at).toObject(), "name");
        };
        bool isNumber = false;
        const int first = nameAt(i).toInt(&isNumber);
        qsizetype length = 1;
        while (isNumber && i + length < choices.size() &&
               nameAt(i + length) == QString::number(first + length)) {
            ++length;
        }
        if (length < leastRange) {
            length = 1;
        }
        shown.append(length == 1 ? nameAt(i)
                                 : QStringLiteral("%1-%2").arg(nameAt(i), nameAt(i + length - 1)));
        i += length;
    }
    return shown.join(QLatin1Char(' '));
}

QString optionsTable(const QJsonArray &options)
{
    QList<QStringList> rows{{QStringLiteral("OPTION"), QStringLiteral("DEFAULT"),
                             QStringLiteral("CURRENT"), QStringLiteral("CHOICES")}};
    for (const auto &value : options) {
        const QJsonObject option = value.toObject();
        rows.append({textOf(option, "name"), textOf(option, "default"), textOf(option, "current"),
                     choicesInATable(option.value(QLatin1String("choices")).toArray())});
    }
    return textTable(rows);
}

QString presetsTable(const QJsonArray &presets)
{
    QList<QStringList> rows{{QStringLiteral("PRESET"), QString(), QStringLiteral("MEANING")}};
    for (const auto &value : presets) {
        const QJsonObject preset = value.toObject();
        const bool isSelected = preset.value(QLatin1String("selected")).toBool();
        rows.append({textOf(preset, "name"), isSelected ? QStringLiteral("*") : QString(),
                     textOf(preset, "text")});
    }
    return textTable(rows);
}

/// A printer's name, or its PPD's.
QString headingOf(const QJsonObject &printer)
{
    const QString name = textOf(printer, "name");
    const bool isDefault = printer.value(QLatin1String("default")).toBool();
    return (name.isNull() ? textOf(printer, "ppd") : name) +
           (isDefault ? QStringLiteral(" (default)\n") : QStringLiteral("\n"));
}
} // namespace

QString printerTable(const QJsonObject &list)
{
    QStringList parts;
    const QJsonArray printers = list.value(QLatin1String("printers")).toArray();
    for (const auto &value : printers) {
        const QJsonObject printer = value.toObject();
        const QJsonArray options = printer.value(QLatin1String("options")).toArray();
        const QJsonArray presets = printer.value(QLatin1String("presets")).toArray();
        const QString map = textOf(printer, "map");
        QString part = headingOf(printer);
        if (!map.isNull()) {
            part += QStringLiteral("  Map: %1\n").arg(map);
        }
        part += options.isEmpty() ? QStringLiteral("  no options\n") : optionsTable(options);
        if (!presets.isEmpty()) {
            part += QLatin1Char('\n') + presetsTable(presets);
        }
        parts.append(part);
    }
    return parts.join(QLatin1Char('\n'));
}
