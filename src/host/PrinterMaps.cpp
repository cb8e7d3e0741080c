// SPDX-License-Identifier: Apache-2.0
#include "host/PrinterMaps.h"

#include "host/ProblemReporter.h"
#include "printcore/CheckedFile.h"
#include "printcore/ResourceLimits.h"

#include <QDir>

#include <algorithm>

std::optional<KeywordMap> PrinterMaps::read(CheckedFile file, QString *fault)
{
    const QByteArray json = file.read(ResourceLimits::kMapSize);
    if (!file.fault().isNull()) {
        *fault = QStringLiteral("%1 %2").arg(file.path(), file.fault());
        return std::nullopt;
    }
    auto map = KeywordMap::read(json, fault);
    if (map) {
        map->setName(file.path());
    } else {
        *fault = QStringLiteral("%1: %2").arg(file.path(), *fault);
    }
    return map;
}

void PrinterMaps::addFolder(const QString &folder, ProblemReporter &reporter)
{
    const QDir files(folder);
    const QStringList names =
        files.entryList({QStringLiteral("*.json")},
                        QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    Folder maps;
    for (const QString &name : names) {
        QString fault;
        const auto map = read(CheckedFile::trusted(files.filePath(name)), &fault);
        reporter.report(fault);
        if (map) {
            const auto isBefore = [](const KeywordMap &one, const KeywordMap &other) {
                return one.conditions() > other.conditions();
            };
            maps.insert(std::upper_bound(maps.begin(), maps.end(), *map, isBefore), *map);
        }
    }
    mFolders.append(maps);
}

std::optional<KeywordMap> PrinterMaps::mapFor(const PPDFile &ppd, QStringList *misfits) const
{
    for (const Folder &folder : mFolders) {
        for (const KeywordMap &map : folder) {
            QString reason;
            if (auto fitted = map.fittedTo(ppd, &reason)) {
                return fitted;
            }
            if (misfits) {
                misfits->append(
                    QStringLiteral("the map %1 does not fit: %2").arg(map.name(), reason));
            }
        }
    }
    return std::nullopt;
}
