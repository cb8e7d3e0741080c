// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QSet>

#include <chrono>

class PrintDialogExtender;

/**
 * Waits for the application's print dialogs, and extends each when it has been painted, so that it
 * is on the screen as early as without the extension. Loads the library that extends them for the
 * first dialog.
 */
class PrintDialogWatcher : public QObject
{
    Q_OBJECT

public:
    PrintDialogWatcher();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void extendIn(std::chrono::milliseconds time, QObject *dialog);
    /// Extends a dialog that has not been extended since it was shown.
    void extendShown(QObject *dialog);
    void extend(QObject *dialog);
    void loadExtender();

    PrintDialogExtender *mExtender = nullptr;
    bool mHasTriedToLoad = false;
    /// The dialogs that have been shown and are still to be extended. They may have been deleted:
    /// only their addresses are compared.
    QSet<const QObject *> mShown;
};
