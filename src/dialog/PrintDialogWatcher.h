#pragma once

#include <QObject>

class PrintDialogExtender;

/**
 * Waits for the application's print dialogs, and has each extended as it is shown. The library that
 * does so is loaded for the first of them.
 */
class PrintDialogWatcher : public QObject
{
    Q_OBJECT

public:
    PrintDialogWatcher();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void extend(QObject *dialog);
    void loadExtender();

    PrintDialogExtender *mExtender = nullptr;
    bool mHasTriedToLoad = false;
};
