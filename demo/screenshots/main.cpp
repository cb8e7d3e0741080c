// SPDX-License-Identifier: Apache-2.0
#include "demo/Output.h"
#include "demo/screenshots/Campaign.h"
#include "demo/screenshots/Scripts.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <cstdio>

namespace {
int runCampaign(const QString &sheetFolder, const QString &guideFolder)
{
    Campaign campaign(sheetFolder, guideFolder);
    for (const QString &style : campaign.missingStyles()) {
        say(QStringLiteral("The style %1 is left out: no version of Qt here has it.").arg(style));
    }
    for (const QString &script : scriptsWithoutFont(Campaign::languages())) {
        say(QStringLiteral("No installed font has the script %1: its texts are boxes.")
                .arg(script));
    }
    const int count = campaign.run();
    if (count < 0) {
        return 1;
    }
    say(QStringLiteral("%1 sheets are in %2, and the guide's pictures in %3.")
            .arg(count)
            .arg(sheetFolder, guideFolder));
    return 0;
}
} // namespace

/// Usage: kvprint-screenshots SHEET-FOLDER GUIDE-FOLDER
int main(int argc, char **argv)
{
    const QTemporaryDir runtime;
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() != 2) {
        std::fputs("Usage: kvprint-screenshots SHEET-FOLDER GUIDE-FOLDER\n", stderr);
        return 2;
    }
    return runCampaign(arguments.at(0), arguments.at(1));
}
