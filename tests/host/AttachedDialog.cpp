// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"

#include "demo/PrivateScheduler.h"
#include "dialog/PrintDialogAttachment.h"

#include <QPainter>

namespace {
JobOptions optionsOf(const QStringList &arguments)
{
    JobOptions options;
    for (const QString &argument : arguments) {
        options.parse(argument);
    }
    return options;
}
} // namespace

AttachedDialog::AttachedDialog(const QString &printer, const QStringList &options,
                               const QString &bundleFolder)
    : mReporter([this](const QString &problem) { mProblems.append(problem); })
    , mBundles(PanelBundles::load(bundleFolder, mReporter))
    , mPrinter(QPrinter::HighResolution)
{
    mPrinter.setPrinterName(printer);
    mDialog = std::make_unique<QPrintDialog>(&mPrinter);
    mAttachment = new PrintDialogAttachment(mDialog.get(), mBundles, mReporter, mLastChoices,
                                            optionsOf(options));
    mUser = std::make_unique<DialogDriver>(*mDialog);
    mUser->awaitPrinter();
}

AttachedDialog::~AttachedDialog() = default;

void AttachedDialog::destroyDialog()
{
    mUser.reset();
    mDialog.reset();
    mAttachment = nullptr;
}

void AttachedDialog::destroyDialogLater()
{
    mUser.reset();
    mDialog.release()->deleteLater();
    mAttachment = nullptr;
}

bool AttachedDialog::openTab()
{
    return mUser->open() && panel().openTab();
}

int AttachedDialog::print(const PrivateScheduler &scheduler)
{
    const QList<int> before = scheduler.jobIds();
    QPainter painter;
    if (!mUser->print() || !painter.begin(&mPrinter)) {
        return 0;
    }
    painter.drawLine(0, 0, 10, 10);
    painter.end();
    const QList<int> after = scheduler.jobIds();
    return after.size() == before.size() + 1 ? after.last() : 0;
}
