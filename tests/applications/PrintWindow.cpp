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
    setWindowTitle(u"One page"_s);
    QMenu *menu = menuBar()->addMenu(u"File"_s);
    QAction *print = menu->addAction(u"Print"_s);
    print->setShortcut(QKeySequence::Print);
    connect(print, &QAction::triggered, this, &PrintWindow::showDialog);
    QAction *quit = menu->addAction(u"Quit"_s);
    quit->setShortcut(QKeySequence(u"Ctrl+Q"_s));
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
    mDialog = mWays.contains(u"--subclass"_s) ? new OwnPrintDialog(mPrinter.get(), this)
                                              : new QPrintDialog(mPrinter.get(), this);
    if (mWays.contains(u"--own-tab"_s)) {
        addOwnTab(*mDialog);
    }
    return mDialog;
}

void PrintWindow::addOwnTab(QPrintDialog &dialog)
{
    auto *tab = new QWidget;
    tab->setWindowTitle(u"Application"_s);
    auto *discard = new QPushButton(u"Discard"_s);
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
    const bool isKept = mWays.contains(u"--keep"_s);
    if (!isKept) {
        delete mDialog;
    }
    QPrintDialog *dialog = makeDialog();
    if (mWays.contains(u"open"_s)) {
        dialog->open(this, SLOT(printPage()));
    } else if (mWays.contains(u"show"_s)) {
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
