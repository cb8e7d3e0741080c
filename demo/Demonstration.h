// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "demo/PrivateScheduler.h"

#include <QDir>
#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <optional>

/// Prints a sample label through the dialog to sample printers of a scheduler of its own.
class Demonstration
{
public:
    /// @param resultFolder gets the pictures and what was printed.
    explicit Demonstration(const QString &resultFolder);

    /// Starts the scheduler with the sample printers and draws the label; the reason otherwise.
    std::optional<QString> prepare();

    /// Leaves the dialog to the user: true when the dialog came up, whatever the user did.
    bool runForUser();

    /// Works the dialog without a display; true when the job carries the choice that was clicked.
    bool runAlone();

private:
    bool drawLabel() const;
    QString labelPath() const;
    bool showResult(int job, const QString &printer) const;
    bool jobCarries(int job, const QString &key, const QString &choice) const;

    QDir mResults;
    QTemporaryDir mFolder;
    std::unique_ptr<PrivateScheduler> mScheduler;
};
