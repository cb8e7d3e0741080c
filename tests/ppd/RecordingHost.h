// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PDEPluginCallback.h"
#include "printcore/PageFormat.h"
#include "printcore/PrintSession.h"
#include "printcore/PrintSettings.h"
#include "printcore/Printer.h"
#include "support/PPDText.h"

/// A dialog that records what it is asked for and told, in order, and marks nothing.
class RecordingHost : public PDEPluginCallback13_v400_
{
public:
    PMPrintSession printSession() override { return lend("printSession", &session); }
    PMPrintSettings printSettings() override { return lend("printSettings", &settings); }
    PMPageFormat pageFormat() override { return lend("pageFormat", &format); }
    ::PMPrinter PMPrinter() override { return lend("PMPrinter", &printer); }
    ppd_file_t *ppdFile() override { return lend("ppdFile", ppd.get()); }
    void willChangePPDOptionKeyValue(const QString &key, const QString &ppdChoice) override
    {
        calls.append(key + u'=' + ppdChoice);
    }

    QStringList calls;
    PrintSession session;
    PrintSettings settings;
    PageFormat format;
    Printer printer{QStringLiteral("test"), QStringLiteral("usb://Korvane/T")};
    PPDHandle ppd = PPDText().onOff("KvTest").open();

private:
    template <typename Object>
    Object *lend(const char *name, Object *object)
    {
        calls.append(QLatin1String(name));
        return object;
    }
};
