// SPDX-License-Identifier: Apache-2.0
#include "PrintWindow.h"

#include "OwnPrintDialog.h"

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QPainter>
#include <QPrintDialog>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

PrintWindow::PrintWindow(QStringList ways)
    : mWays(std::move(ways))
{
    setWindowTitle(QStringLiteral("One page"));
    QMenu *menu = menuBar()->addMenu(QStringLiteral("File"));
    QAction *print = menu->addAction(QStringLiteral("Print"));
    print->setShortcut(QKeySequence::Print);
    connect(print, &QAction::triggered, this, &PrintWindow::showDialog);
    QAction *quit = menu->addAction(QStringLiteral("Quit"));
    quit->setShortcut(QKeySequence(QStringLiteral("Ctrl+Q")));
    connect(quit, &QAction::triggered, qApp, &QApplication::quit);
    resize(400, 300);
}

PrintWindow::~PrintWindow()
{
    delete mDialog;
}

QPrintDialog *PrintWindow::makeDialog()
{
    if (mDialog) {
        return mDialog;
    }
    mPrinter = std::make_unique<QPrinter>(QPrinter::HighResolution);
    mDialog = mWays.contains(QStringLiteral("--subclass"))
                  ? new OwnPrintDialog(mPrinter.get(), this)
                  : new QPrintDialog(mPrinter.get(), this);
    if (mWays.contains(QStringLiteral("--own-tab"))) {
        addOwnTab(*mDialog);
    }
    return mDialog;
}

void PrintWindow::addOwnTab(QPrintDialog &dialog)
{
    auto *tab = new QWidget;
    tab->setWindowTitle(QStringLiteral("Application"));
    auto *discard = new QPushButton(QStringLiteral("Discard"));
    connect(discard, &QPushButton::clicked, this, &PrintWindow::discardDialog,
            Qt::QueuedConnection);
    (new QVBoxLayout(tab))->addWidget(discard);
    dialog.setOptionTabs({tab});
}

void PrintWindow::discardDialog()
{
    delete mDialog;
}

void PrintWindow::showDialog()
{
    const bool isKept = mWays.contains(QStringLiteral("--keep"));
    if (!isKept) {
        delete mDialog;
    }
    QPrintDialog *dialog = makeDialog();
    if (mWays.contains(QStringLiteral("open"))) {
        dialog->open(this, SLOT(printPage()));
    } else if (mWays.contains(QStringLiteral("show"))) {
        connect(dialog, &QDialog::accepted, this, &PrintWindow::printPage, Qt::UniqueConnection);
        dialog->show();
    } else if (dialog->exec() == QDialog::Accepted) {
        printPage();
    }
    if (!isKept && mDialog && !mDialog->isVisible()) {
        delete mDialog;
    }
}

void PrintWindow::printPage()
{
    QPainter painter;
    if (painter.begin(mPrinter.get())) {
        painter.drawText(100, 100, windowTitle());
    }
}

#include "moc_PrintWindow.cpp"
