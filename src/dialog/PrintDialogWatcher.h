#pragma once

#include <QObject>
#include <QSet>

#include <chrono>

class PrintDialogExtender;

/**
 * Waits for the application's print dialogs, and has each extended as soon as it has been painted,
 * so that it is on the screen as early as ever. The library that does so is loaded for the first of
 * them.
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
    /// The dialogs that have been shown and are still to be extended: to be compared with alone.
    QSet<const QObject *> mShown;
};
