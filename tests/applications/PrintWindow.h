// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QPrinter>

#include <memory>

class QPrintDialog;

/// The window of an application that prints a page, in the way that its arguments say.
class PrintWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param ways how the dialog is shown ("exec", "open" or "show"), "--keep" to use one dialog
    ///        and printer again and again, "--own-tab" for a tab of the application's own in it,
    ///        "--subclass" for a dialog of its own class.
    explicit PrintWindow(QStringList ways);
    ~PrintWindow() override;

private Q_SLOTS:
    void printPage();

private:
    void showDialog();
    QPrintDialog *makeDialog();
    void addOwnTab(QPrintDialog &dialog);
    void discardDialog();

    QStringList mWays;
    std::unique_ptr<QPrinter> mPrinter;
    QPointer<QPrintDialog> mDialog;
};
