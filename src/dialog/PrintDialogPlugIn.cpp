// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintDialogPlugIn.h"

#include "dialog/PrintDialogWatcher.h"

QObject *PrintDialogPlugIn::create(const QString & /*key*/, const QString & /*details*/)
{
    if (qgetenv("KVPRINT_DIALOG") == "off") {
        return new QObject;
    }
    return new PrintDialogWatcher;
}
