// SPDX-License-Identifier: Apache-2.0
#include "dialog/DialogService.h"

#include "dialog/DialogSettings.h"
#include "dialog/OwnFile.h"
#include "dialog/PrintDialogAttachment.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPrintDialog>

namespace {
QString programName()
{
    return QFileInfo(QCoreApplication::applicationFilePath()).fileName();
}
} // namespace

void DialogService::extend(QObject *printDialog)
{
    auto *dialog = qobject_cast<QPrintDialog *>(printDialog);
    if (dialog && DialogSettings(mReporter).isOn(programName())) {
        new PrintDialogAttachment(dialog, bundles(), mReporter, mLastChoices);
    }
}

const PanelBundles &DialogService::bundles()
{
    if (!mBundles) {
        mBundles = loadBundles();
    }
    return *mBundles;
}

PanelBundles DialogService::loadBundles()
{
    const QString folder = ownFolder();
    if (folder.isNull()) {
        mReporter.report(QStringLiteral("%1 has been removed").arg(ownFile()));
        return {};
    }
    return PanelBundles::load(folder + QStringLiteral("/pde"), mReporter);
}
