// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "demo/BoundProcess.h"

#include <QList>
#include <QString>
#include <QTemporaryDir>

/// A driverless printer that trims, at a port of the loopback address.
class DriverlessPrinter
{
public:
    DriverlessPrinter() = default;
    /// Stops the printer.
    ~DriverlessPrinter();
    Q_DISABLE_COPY_MOVE(DriverlessPrinter)

    /// Starts the printer and makes a queue of that name for it, as "lpadmin -m everywhere" does,
    /// at the scheduler that libcups asks; the reason when that fails.
    QString open(const QString &queue);

    /// Starts the printer and announces it to the network by that name, from where libcups learns
    /// of it; the reason when that fails.
    QString announce(const QString &name);

    /// The finishings of the printer's jobs, the last job first: what it has been asked for.
    QList<int> finishings() const;

private:
    QString startBus();
    QString startAvahi();
    /// @param announced whether Avahi is to tell the network of the printer.
    QString startPrinter(const QString &name, bool announced);
    bool isAnswering() const;
    QString busAddress() const;

    QTemporaryDir mFolder{QStringLiteral("/tmp/driverless-XXXXXX")};
    // The printer announces itself at a bus, which it needs even when nobody is there.
    BoundProcess mBus;
    BoundProcess mAvahi;
    BoundProcess mPrinter;
    int mPort = 0;
};
