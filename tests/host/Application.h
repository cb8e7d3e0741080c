// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelUser.h"
#include "demo/DialogDriver.h"
#include "host/LastChoices.h"
#include "host/PanelBundles.h"
#include "host/ProblemReporter.h"

#include <QMap>
#include <QPrintDialog>
#include <QPrinter>
#include <QStringList>

#include <memory>

class PrintDialogAttachment;

/// The job's options as a printer object hands them to the print system: keywords and values in
/// turn.
QStringList optionsHandedOver(const QPrinter &printer);

/// An application that has printed before the panels come to its dialogs: one that knows nothing
/// of them, and paints as soon as a dialog of its own tells that it was accepted.
class Application
{
public:
    Application();
    /// With a dialog, as makeDialog() makes it.
    explicit Application(const QString &printer, bool hasOwnPrinter = false);
    ~Application();

    /// A new dialog for the application's one printer object, or for an own one; the former dialog
    /// is destroyed.
    QPrintDialog &makeDialog(const QString &printer, bool hasOwnPrinter = false);
    /// The dialog comes up as the application wants it, and the panels come to it.
    bool show();
    /// The panels come to the dialog when the scheduler has told what its printer has.
    void attach();
    /// Turns to the panel's tab.
    bool openTab();

    QPrintDialog &dialog() { return *mDialog; }
    DialogDriver &user() { return *mUser; }
    PanelUser panel() { return PanelUser(*mUser); }
    /// Destroys the dialog.
    void destroyDialog();

    /// What the dialog's printer object hands over.
    QStringList handedOver() const;
    /// How often each keyword of the maker's is handed over.
    QMap<QString, int> countsOfChoices() const;
    /// How often the application has printed.
    int jobCount() const { return mJobCount; }
    const QStringList &problems() const { return mProblems; }

private:
    void paint();

    QStringList mProblems;
    ProblemReporter mReporter;
    PanelBundles mBundles;
    LastChoices mLastChoices;
    QPrinter mPrinter;
    std::unique_ptr<QPrinter> mOtherPrinter;
    std::unique_ptr<QPrintDialog> mDialog;
    std::unique_ptr<DialogDriver> mUser;
    int mJobCount = 0;
};
