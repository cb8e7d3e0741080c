// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelUser.h"
#include "cups/JobOptions.h"
#include "demo/DialogDriver.h"
#include "host/LastChoices.h"
#include "host/PanelBundles.h"
#include "host/ProblemReporter.h"

#include <QPrintDialog>
#include <QPrinter>

#include <memory>

class PrintDialogAttachment;
class PrivateScheduler;

/// An application's print dialog with the panels in it.
class AttachedDialog
{
public:
    /// @param options as the arguments of -o.
    explicit AttachedDialog(const QString &printer, const QStringList &options = {},
                            const QString &bundleFolder = QStringLiteral(KV_BUNDLE_FOLDER));
    ~AttachedDialog();

    QPrintDialog &dialog() { return *mDialog; }
    PrintDialogAttachment &attachment() { return *mAttachment; }
    DialogDriver &user() { return *mUser; }
    PanelUser panel() { return PanelUser(*mUser); }
    /// Destroys the dialog alone.
    void destroyDialog();
    /// Has the dialog destroyed as soon as the program waits for events.
    void destroyDialogLater();
    /// Whether the dialog is there.
    bool hasDialog() const { return bool(mDialog); }

    /// Opens the dialog and turns to the panel's tab.
    bool openTab();
    /// Presses Print and lets the application paint: the job's number, 0 for none.
    int print(const PrivateScheduler &scheduler);

    /// The titles of the dialog's tabs.
    QStringList tabs() const { return tabsOf(*mDialog); }
    /// What has been reported, in order.
    const QStringList &problems() const { return mProblems; }
    /// How many of the reported problems contain the text.
    qsizetype problemsWith(const QString &text) const { return mProblems.filter(text).size(); }

private:
    QStringList mProblems;
    ProblemReporter mReporter;
    PanelBundles mBundles;
    LastChoices mLastChoices;
    QPrinter mPrinter;
    std::unique_ptr<QPrintDialog> mDialog;
    PrintDialogAttachment *mAttachment;
    std::unique_ptr<DialogDriver> mUser;
};
