// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/KeywordMap.h"

#include <QList>
#include <QString>

#include <optional>

class PPDFile;
class ProblemReporter;

/// The keyword maps that are installed.
class PrinterMaps
{
public:
    /**
     * Adds the maps of a folder, in the order of their names. A folder that does not exist has
     * none.
     *
     * @param reporter told of each file that cannot be trusted or that is no map; it is left out.
     */
    void addFolder(const QString &folder, ProblemReporter &reporter);

    /// The map for a PPD, fitted to it: of those in the folder that was added first the most
    /// particular one. Nothing when there is none.
    std::optional<KeywordMap> mapFor(const PPDFile &ppd) const;

private:
    /// The maps of one folder, the most particular first.
    using Folder = QList<KeywordMap>;

    QList<Folder> mFolders;
};
