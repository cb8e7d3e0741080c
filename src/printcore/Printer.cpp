// SPDX-License-Identifier: Apache-2.0
#include "printcore/Printer.h"

#include <utility>

Printer::Printer(QString name, QString deviceURI)
    : mName(std::move(name))
    , mDeviceURI(std::move(deviceURI))
{
}
