// SPDX-License-Identifier: Apache-2.0
#include "Application.h"

#include "dialog/PrintDialogAttachment.h"

#include <QPainter>
#include <QPrintEngine>
#include <QTest>

QStringList optionsHandedOver(const QPrinter &printer)
{
    constexpr auto cupsOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);
    return printer.printEngine()->property(cupsOptions).toStringList();
}

Application::Application()
    : mReporter([this](const QString &problem) { mProblems.append(problem); })
    , mBundles(PanelBundles::load(QStringLiteral(KV_BUNDLE_FOLDER), mReporter))
    , mPrinter(QPrinter::HighResolution)
{
}

Application::Application(const QString &printer, bool hasOwnPrinter)
    : Application()
{
    makeDialog(printer, hasOwnPrinter);
}

Application::~Application() = default;

QPrintDialog &Application::makeDialog(const QString &printer, bool hasOwnPrinter)
{
    destroyDialog();
    mOtherPrinter = hasOwnPrinter ? std::make_unique<QPrinter>(QPrinter::HighResolution) : nullptr;
    QPrinter *const used = hasOwnPrinter ? mOtherPrinter.get() : &mPrinter;
    used->setPrinterName(printer);
    mDialog = std::make_unique<QPrintDialog>(used);
    QObject::connect(mDialog.get(), &QDialog::accepted, mDialog.get(), [this] { paint(); });
    mUser = std::make_unique<DialogDriver>(*mDialog);
    return *mDialog;
}

bool Application::show()
{
    mDialog->open();
    attach();
    return QTest::qWaitForWindowActive(mDialog.get()) && mUser->awaitPrinter();
}

void Application::attach()
{
    if (!mDialog->findChild<PrintDialogAttachment *>()) {
        new PrintDialogAttachment(mDialog.get(), mBundles, mReporter, mLastChoices);
    }
}

bool Application::openTab()
{
    return panel().openTab();
}

void Application::destroyDialog()
{
    mUser.reset();
    mDialog.reset();
}

QStringList Application::handedOver() const
{
    return optionsHandedOver(*mDialog->printer());
}

QMap<QString, int> Application::countsOfChoices() const
{
    const QStringList options = handedOver();
    QMap<QString, int> counts;
    for (int i = 0; i < options.size(); i += 2) {
        if (options.at(i).startsWith(QLatin1String("Kv"))) {
            ++counts[options.at(i)];
        }
    }
    return counts;
}

void Application::paint()
{
    QPainter painter(mDialog->printer());
    painter.drawLine(0, 0, 10, 10);
    painter.end();
    ++mJobCount;
}
