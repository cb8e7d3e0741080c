// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QString>

/// A print queue.
class KVPRINTCORE_EXPORT Printer
{
public:
    /**
     * @param name the queue's name at the scheduler.
     * @param deviceURI where the queue sends its jobs, as the scheduler tells it
     *        ("usb://Korvane/LX%20200"); null when it is not known.
     */
    explicit Printer(QString name, QString deviceURI = {});

    const QString &name() const { return mName; }
    /// The device URI just as it was given, of any length; null when it is not known.
    const QString &deviceURI() const { return mDeviceURI; }

private:
    QString mName;
    QString mDeviceURI;
};
