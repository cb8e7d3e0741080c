// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/PanelTarget.h"

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

class PanelBundles;

/// What the users of a printer get of the panels, and what is wrong with that.
struct PrinterCheck
{
    /// An option that a panel has, or that the cut option panel could have.
    struct Option
    {
        QString key;
        /// The name of the panel that has it; null when none has.
        QString panel;
        /// The options of the PPD that it stands for, itself when there is no map; none without a
        /// panel.
        QStringList sources;
        /// Why no panel has it; null when one has.
        QString reason;
    };

    /**
     * Checks a printer. Its panels are shown once, so that the remarks have what a dialog would
     * tell.
     *
     * @param maps those that may be used.
     */
    static PrinterCheck of(PanelTarget target, const PanelBundles &bundles,
                           const PrinterMaps &maps);

    /// As kvprint --check --json writes it.
    QJsonObject toJSON() const;

    /// The queue; null when a PPD or a map is checked.
    QString name;
    /// The PPD's path; null when a queue or a map is checked.
    QString ppd;
    /// The file of the map that is used or checked; null for none.
    QString map;
    /// The names of the panels.
    QStringList panels;
    /// None without a panel.
    QList<Option> options;
    QStringList remarks;
};

/// Checks as text.
QString checkTable(const QList<PrinterCheck> &checks);
