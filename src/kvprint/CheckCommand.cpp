// SPDX-License-Identifier: Apache-2.0
#include "kvprint/CheckCommand.h"

#include "cups/PrintQueue.h"
#include "cups/SchedulerConnection.h"
#include "kvprint/StandardOutput.h"
#include "printcore/CheckedFile.h"
#include "printcore/QtVersions.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {
QByteArray inJSON(const QList<PrinterCheck> &checks)
{
    QJsonArray printers;
    for (const PrinterCheck &check : checks) {
        printers.append(check.toJSON());
    }
    return QJsonDocument(QJsonObject{{QStringLiteral("printers"), printers}}).toJson();
}

/// The options whose choices get lost on the way to the printer.
QStringList remarksOnOptions(const KeywordMap &map)
{
    QStringList remarks;
    for (const KeywordMap::Option &option : map.options()) {
        if (!option.with.isEmpty() && option.choices.size() > 1) {
            remarks.append(QStringLiteral("%1: has %2 choices, but the printer is not told which")
                               .arg(option.key)
                               .arg(option.choices.size()));
        }
    }
    return remarks;
}

/// The names that none of the PPDs has; none when none of them can be read.
QStringList remarksOnNames(const KeywordMap &map, const QStringList &ppds)
{
    std::optional<QStringList> missing;
    for (const QString &file : ppds) {
        if (const auto ppd = PPDFile::open(file, nullptr)) {
            const QStringList here = map.namesMissingIn(*ppd);
            if (missing) {
                removeFrom(*missing, [&here](const QString &name) { return !here.contains(name); });
            } else {
                missing = here;
            }
        }
    }
    QStringList remarks;
    const QStringList all = missing.value_or(QStringList());
    for (const QString &name : all) {
        const QString option = name.section(u'=', 0, 0);
        if (option == name || !all.contains(option)) {
            remarks.append(QStringLiteral("%1: none of the PPDs has it").arg(name));
        }
    }
    return remarks;
}
} // namespace

CheckCommand::CheckCommand(CommandLine commandLine, const QString &bundleFolder)
    : mCommandLine(std::move(commandLine))
    , mBundles(PanelBundles::load(bundleFolder, mReporter))
{
}

ExitStatus CheckCommand::run()
{
    if (mCommandLine.action == CommandLine::Action::CheckMap) {
        checkMap();
    } else {
        if (mCommandLine.files.isEmpty() || !mCommandLine.printer.isNull()) {
            checkQueue();
        }
        checkPPDs(mBundles.maps());
    }
    fail(writeToStandardOutput(mCommandLine.asJSON ? inJSON(mChecks)
                                                   : checkTable(mChecks).toLocal8Bit()));
    return status();
}

void CheckCommand::checkQueue()
{
    SchedulerConnection scheduler{std::chrono::seconds(mCommandLine.timeout)};
    QString fault;
    const QString name = PrintQueue::choose(scheduler, mCommandLine.printer, &fault);
    if (name.isNull()) {
        return fail(fault);
    }
    auto target = PanelTarget::ofQueue(scheduler, name, PPDFile::Marks::Defaults, &fault);
    if (!fault.isNull()) {
        return fail(fault);
    }
    PrinterCheck check;
    if (target) {
        check = PrinterCheck::of(std::move(*target), mBundles, mBundles.maps());
    } else {
        check.remarks.append(QStringLiteral("the printer has no PPD"));
    }
    check.name = name;
    mChecks.append(check);
}

void CheckCommand::checkPPDs(const PrinterMaps &maps)
{
    for (const QString &file : std::as_const(mCommandLine.files)) {
        QString fault;
        if (auto target = PanelTarget::ofPPD(file, PPDFile::Marks::Defaults, &fault)) {
            mChecks.append(PrinterCheck::of(std::move(*target), mBundles, maps));
            mChecks.last().ppd = file;
        }
        fail(fault);
    }
}

void CheckCommand::checkMap()
{
    const QString &path = mCommandLine.actionFile;
    CheckedFile file = CheckedFile::ofAnybody(path);
    if (!file.fault().isNull()) {
        return fail(QStringLiteral("%1 %2").arg(path, file.fault()));
    }
    QString fault;
    PrinterMaps maps;
    if (const auto map = PrinterMaps::read(std::move(file), &fault)) {
        maps.add(*map);
        mChecks.append(checkedMap(*map, maps));
        checkPPDs(maps);
    } else {
        mChecks.append(PrinterCheck());
        mChecks.last().remarks.append(fault);
    }
    mChecks.first().map = path;
}

PrinterCheck CheckCommand::checkedMap(const KeywordMap &map, const PrinterMaps &maps) const
{
    PrinterCheck check;
    QString fault;
    if (auto ppd = PPDFile::read(map.completePPD(), map.name(), &fault)) {
        check = PrinterCheck::of(PanelTarget::of(std::move(ppd)), mBundles, maps);
    } else {
        check.remarks.append(fault);
    }
    check.remarks += remarksOnOptions(map) + remarksOnNames(map, mCommandLine.files);
    return check;
}

void CheckCommand::fail(const QString &fault)
{
    mReporter.report(fault);
    mHasFailed = mHasFailed || !fault.isNull();
}

ExitStatus CheckCommand::status() const
{
    if (mHasFailed) {
        return ExitStatus::NotPrinted;
    }
    return std::ranges::all_of(mChecks,
                               [](const PrinterCheck &check) { return check.remarks.isEmpty(); })
               ? ExitStatus::Printed
               : ExitStatus::HasRemarks;
}
