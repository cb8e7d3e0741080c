#include "dialog/DialogService.h"

#include "dialog/DialogSettings.h"
#include "dialog/OwnFile.h"
#include "host/PrintDialogAttachment.h"

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
        mBundles = PanelBundle::loadAll(ownFolder() + QStringLiteral("/pde"), mReporter);
    }
    return *mBundles;
}
