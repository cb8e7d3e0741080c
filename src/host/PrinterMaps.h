// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/KeywordMap.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class CheckedFile;
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

    /// Reads a map from a file that has been opened, named by its path; nothing, with the path and
    /// what is wrong in @p fault, when there is none.
    static std::optional<KeywordMap> read(CheckedFile file, QString *fault);

    /// Adds a map behind the others, as if it were alone in its folder.
    void add(const KeywordMap &map) { mFolders.append(Folder{map}); }

    /**
     * The map for a PPD, fitted to it: of those in the folder that was added first the most
     * particular one. Nothing when there is none.
     *
     * @param misfits gets a sentence about each map that does not fit; may be null.
     */
    std::optional<KeywordMap> mapFor(const PPDFile &ppd, QStringList *misfits = nullptr) const;

private:
    /// The maps of one folder, the most particular first.
    using Folder = QList<KeywordMap>;

    QList<Folder> mFolders;
};
