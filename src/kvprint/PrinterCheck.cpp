// SPDX-License-Identifier: Apache-2.0
#include "kvprint/PrinterCheck.h"

#include "cups/PanelKeywords.h"
#include "host/PanelHost.h"
#include "host/ProblemReporter.h"
#include "kvprint/PPDRemarks.h"
#include "kvprint/TextTable.h"
#include "plugin/PDEPanel.h"
#include "printcore/ProblemLine.h"

#include <QJsonArray>

namespace {
QJsonValue nullIfNull(const QString &text)
{
    return text.isNull() ? QJsonValue() : QJsonValue(text);
}

/// The name of the panel that sets the option; null when none does.
QString panelOf(const QString &key, const PanelHost &host)
{
    for (PDEPanel *panel : host.panels()) {
        const QStringList keys = panel->supportedPPDOptionKeys().value_or(QStringList());
        if (keys.contains(key) && host.ppd().hasOption(key)) {
            return panel->panelName();
        }
    }
    return {};
}

QString reasonWithout(const QString &key, const PanelHost &host)
{
    const auto &map = host.map();
    if (!map) {
        return QStringLiteral("the PPD has no %1").arg(key);
    }
    const QStringList missed = map->sourcesMissedBy(key);
    return missed.isEmpty() ? QStringLiteral("the map has no %1").arg(key)
                            : QStringLiteral("the PPD lacks choices of %1")
                                  .arg(missed.join(QStringLiteral(" and ")));
}

PrinterCheck::Option checkedOption(const QString &key, const PanelHost &host)
{
    const QString panel = panelOf(key, host);
    if (panel.isNull()) {
        return {key, panel, {}, reasonWithout(key, host)};
    }
    const auto &map = host.map();
    const QStringList sources = map ? map->sourcesOf(key) : QStringList();
    return {key, panel, sources.isEmpty() ? QStringList(key) : sources, {}};
}

QList<PrinterCheck::Option> checkedOptions(const PanelHost &host)
{
    QStringList keys = host.keys();
    for (const char *key : PanelKeywords::options) {
        keys.append(QLatin1String(key));
    }
    keys.removeDuplicates();
    QList<PrinterCheck::Option> options;
    for (const QString &key : std::as_const(keys)) {
        options.append(checkedOption(key, host));
    }
    return options;
}

QString optionTable(const QList<PrinterCheck::Option> &options)
{
    QList<QStringList> rows{{QStringLiteral("OPTION"), QStringLiteral("PANEL"),
                             QStringLiteral("FROM"), QStringLiteral("WHY NOT")}};
    for (const PrinterCheck::Option &option : options) {
        rows.append(
            {option.key, option.panel, option.sources.join(QStringLiteral(", ")), option.reason});
    }
    return textTable(rows);
}

QString remarkTable(const QStringList &remarks)
{
    QList<QStringList> rows{
        {remarks.isEmpty() ? QStringLiteral("No remarks") : QStringLiteral("REMARK")}};
    for (const QString &remark : remarks) {
        rows.append({asOneLine(remark)});
    }
    return textTable(rows);
}

QString textOf(const PrinterCheck &check)
{
    const QString printer = check.name + check.ppd;
    QString text = (printer.isEmpty() ? check.map : printer) + QLatin1Char('\n');
    if (!printer.isEmpty() && !check.map.isNull()) {
        text += QStringLiteral("  Map: %1\n").arg(check.map);
    }
    if (!check.options.isEmpty()) {
        text += optionTable(check.options) + QLatin1Char('\n');
    }
    return text + remarkTable(check.remarks);
}
} // namespace

PrinterCheck PrinterCheck::of(PanelTarget target, const PanelBundles &bundles,
                              const PrinterMaps &maps)
{
    PrinterCheck check;
    ProblemReporter reporter([&check](const QString &problem) { check.remarks.append(problem); });
    reporter.report(target.use(maps));
    PanelHost host(std::move(target), bundles, reporter);
    for (PDEPanel *panel : host.panels()) {
        check.panels.append(panel->panelName());
        if (host.view(*panel)) {
            host.show(*panel);
        }
    }
    const auto &map = host.map();
    if (map) {
        check.map = map->name();
    }
    if (!check.panels.isEmpty()) {
        check.options = checkedOptions(host);
    } else {
        check.remarks.append(QStringLiteral("no panel has options of this printer"));
        if (!map) {
            maps.mapFor(host.ppd(), &check.remarks);
        }
    }
    check.remarks += remarksOnPPD(host.ppd(), host.keys());
    return check;
}

QJsonObject PrinterCheck::toJSON() const
{
    QJsonArray described;
    for (const Option &option : options) {
        described.append(
            QJsonObject{{QStringLiteral("name"), option.key},
                        {QStringLiteral("panel"), nullIfNull(option.panel)},
                        {QStringLiteral("from"), QJsonArray::fromStringList(option.sources)},
                        {QStringLiteral("reason"), nullIfNull(option.reason)}});
    }
    return {{QStringLiteral("name"), nullIfNull(name)},
            {QStringLiteral("ppd"), nullIfNull(ppd)},
            {QStringLiteral("map"), nullIfNull(map)},
            {QStringLiteral("panels"), QJsonArray::fromStringList(panels)},
            {QStringLiteral("options"), described},
            {QStringLiteral("remarks"), QJsonArray::fromStringList(remarks)}};
}

QString checkTable(const QList<PrinterCheck> &checks)
{
    QStringList parts;
    for (const PrinterCheck &check : checks) {
        parts.append(textOf(check));
    }
    return parts.join(QLatin1Char('\n'));
}
