// SPDX-License-Identifier: Apache-2.0
#include "host/PrinterMaps.h"

#include "host/ProblemReporter.h"
#include "printcore/CheckedFile.h"
#include "printcore/ResourceLimits.h"

#include <QDir>

#include <algorithm>

namespace {
/// The map in a file; nothing, and reported, when there is none.
std::optional<KeywordMap> readMap(const QString &path, ProblemReporter &reporter)
{
    CheckedFile file = CheckedFile::trusted(path);
    const QByteArray json = file.read(ResourceLimits::kMapSize);
    if (!file.fault().isNull()) {
        reporter.report(QStringLiteral("%1 %2").arg(path, file.fault()));
        return std::nullopt;
    }
    QString fault;
    auto map = KeywordMap::read(json, &fault);
    if (!map) {
        reporter.report(QStringLiteral("%1: %2").arg(path, fault));
    }
    return map;
}
} // namespace

void PrinterMaps::addFolder(const QString &folder, ProblemReporter &reporter)
{
    const QDir files(folder);
    const QStringList names =
        files.entryList({QStringLiteral("*.json")},
                        QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    Folder maps;
    for (const QString &name : names) {
        if (auto map = readMap(files.filePath(name), reporter)) {
            const auto isBefore = [](const KeywordMap &one, const KeywordMap &other) {
                return one.conditions() > other.conditions();
            };
            maps.insert(std::upper_bound(maps.begin(), maps.end(), *map, isBefore), *map);
        }
    }
    mFolders.append(maps);
}

std::optional<KeywordMap> PrinterMaps::mapFor(const PPDFile &ppd) const
{
    for (const Folder &folder : mFolders) {
        for (const KeywordMap &map : folder) {
            if (auto fitted = map.fittedTo(ppd)) {
                return fitted;
            }
        }
    }
    return std::nullopt;
}
