#pragma once

#include <QObject>
#include <QString>

class PrintDialogExtender;

/**
 * Waits for the application's print dialogs, and has each extended as it is shown. The library that
 * does so is loaded for the first of them.
 */
class PrintDialogWatcher : public QObject
{
    Q_OBJECT

public:
    /// @param extenderPath the library with the PrintDialogExtender.
    explicit PrintDialogWatcher(QString extenderPath);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void extend(QObject *dialog);
    void loadExtender();

    QString mExtenderPath;
    PrintDialogExtender *mExtender = nullptr;
    bool mHasTriedToLoad = false;
};
