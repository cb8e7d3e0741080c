// SPDX-License-Identifier: Apache-2.0
#include "host/PanelBundles.h"

#include "host/ProblemReporter.h"
#include "printcore/CheckedFile.h"

#include <QDir>

namespace {
/// What is in the folder under a bundle's name, links that lead nowhere included.
QStringList candidatesIn(const QString &folder, ProblemReporter &reporter)
{
    const CheckedFile listed = CheckedFile::trusted(folder, FileUse::List, folder);
    if (!listed.fault().isNull()) {
        reporter.report(QStringLiteral("%1 %2").arg(folder, listed.fault()));
        return {};
    }
    QStringList names =
        QDir(folder).entryList({QStringLiteral("*.pde")},
                               QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    if (names.isEmpty()) {
        reporter.report(QStringLiteral("%1: there is no panel bundle").arg(folder));
    }
    return names;
}
} // namespace

PanelBundles PanelBundles::load(const QString &folder, ProblemReporter &reporter)
{
    PanelBundles loaded;
    loaded.mMaps.addFolder(QStringLiteral(KV_ADMIN_MAPS), reporter);
    const QStringList names = candidatesIn(folder, reporter);
    for (const QString &name : names) {
        if (auto bundle = PanelBundle::load(folder, name, reporter)) {
            loaded.mMaps.addFolder(bundle->mapFolder(), reporter);
            loaded.add(std::move(bundle));
        }
    }
    loaded.mMaps.addFolder(QDir(folder).filePath(QStringLiteral(KV_MAPS_FROM_BUNDLES)), reporter);
    return loaded;
}
