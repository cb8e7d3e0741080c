#include "dialog/DialogService.h"

#include "dialog/OwnFile.h"
#include "host/PrintDialogAttachment.h"

#include <QPrintDialog>

void DialogService::extend(QObject *printDialog)
{
    if (auto *dialog = qobject_cast<QPrintDialog *>(printDialog)) {
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
