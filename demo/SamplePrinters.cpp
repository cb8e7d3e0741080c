// SPDX-License-Identifier: Apache-2.0
#include "demo/SamplePrinters.h"

#include "demo/PrivateScheduler.h"

bool addSamplePrinters(const PrivateScheduler &scheduler, QString *error)
{
    for (const SamplePrinter &printer : samplePrinters) {
        const QString ppd = QStringLiteral(KV_PPD_DIR "/%1.ppd").arg(QLatin1String(printer.ppd));
        if (!scheduler.addPrinter(QLatin1String(printer.queue), ppd, error)) {
            return false;
        }
    }
    return true;
}
