// SPDX-License-Identifier: Apache-2.0
#include "kvprint/PrintCommand.h"

#include "cups/JobSubmission.h"
#include "cups/OptionCheck.h"
#include "cups/PrintQueue.h"
#include "cups/PrinterRecord.h"
#include "host/HostText.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPrinterInfo>

namespace {
/// The largest page number that the dialog offers: how many pages a file has is for CUPS to know.
constexpr int mostPages = 9999;

/// What Qt's dialog says of a job's options that the user has not touched in it.
JobOptions untouchedJobOptions()
{
    JobOptions options;
    options.set(QStringLiteral("job-billing"), QStringLiteral(""));
    options.set(QStringLiteral("job-priority"), QStringLiteral("50"));
    options.set(QStringLiteral("job-sheets"), QStringLiteral("none,none"));
    options.set(QStringLiteral("number-up"), QStringLiteral("1"));
    options.set(QStringLiteral("number-up-layout"), QStringLiteral("lrtb"));
    return options;
}

void addCopies(const QPrinter &printer, JobOptions &options)
{
    if (printer.copyCount() > 1) {
        options.set(QStringLiteral("copies"), QString::number(printer.copyCount()));
        options.set(QStringLiteral("Collate"),
                    printer.collateCopies() ? QStringLiteral("True") : QStringLiteral("False"));
    }
}

void addPages(const QPrinter &printer, JobOptions &options)
{
    if (printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0) {
        options.set(QStringLiteral("page-ranges"),
                    QStringLiteral("%1-%2").arg(printer.fromPage()).arg(printer.toPage()));
    }
    if (printer.pageOrder() == QPrinter::LastPageFirst) {
        options.set(QStringLiteral("outputorder"), QStringLiteral("reverse"));
    }
}

void addPaper(const QPrinter &printer, JobOptions &options)
{
    const QPageLayout layout = printer.pageLayout();
    if (layout.pageSize().isValid()) {
        options.set(QStringLiteral("media"), layout.pageSize().key());
    }
    if (layout.orientation() == QPageLayout::Landscape) {
        options.set(QStringLiteral("orientation-requested"), QStringLiteral("4"));
    }
}

void addSides(const QPrinter &printer, const QPrinterInfo &info, JobOptions &options)
{
    if (info.supportedDuplexModes().size() < 2) {
        return;
    }
    const QString sides = QStringLiteral("sides");
    switch (printer.duplex()) {
    case QPrinter::DuplexNone:
        options.set(sides, QStringLiteral("one-sided"));
        break;
    case QPrinter::DuplexLongSide:
        options.set(sides, QStringLiteral("two-sided-long-edge"));
        break;
    case QPrinter::DuplexShortSide:
        options.set(sides, QStringLiteral("two-sided-short-edge"));
        break;
    case QPrinter::DuplexAuto:
        break;
    }
}

void addColors(const QPrinter &printer, const QPrinterInfo &info, JobOptions &options)
{
    if (printer.colorMode() == QPrinter::GrayScale &&
        info.supportedColorModes().contains(QPrinter::Color)) {
        options.set(QStringLiteral("print-color-mode"), QStringLiteral("monochrome"));
    }
}
} // namespace

PrintCommand::PrintCommand(CommandLine commandLine, QString bundleFolder)
    : mCommandLine(std::move(commandLine))
    , mBundleFolder(std::move(bundleFolder))
{
}

PrintCommand::~PrintCommand()
{
    delete mDialog;
}

SchedulerConnection::Milliseconds PrintCommand::schedulerLimit() const
{
    return std::chrono::seconds(mCommandLine.timeout);
}

void PrintCommand::fail(const QString &fault)
{
    mFault = fault;
    mReporter.report(fault);
}

ExitStatus PrintCommand::checkOptions(const PrinterRecord &printer)
{
    QString fault = printer.error;
    const auto ppd = fault.isNull() ? printer.openPPD(&fault, PPDFile::Marks::Defaults) : nullptr;
    if (!fault.isNull()) {
        fail(fault);
        return ExitStatus::NotPrinted;
    }
    if (ppd) {
        mCommandLine.options = spelledAsIn(*ppd, mCommandLine.options);
        fault = faultOfOptions(*ppd, mCommandLine.options);
        fail(fault);
    }
    return fault.isNull() ? ExitStatus::Printed : ExitStatus::Usage;
}

QPrintDialog *PrintCommand::prepare(ExitStatus *status)
{
    *status = ExitStatus::NotPrinted;
    const QString fault = JobSubmission::faultOf(mCommandLine.files);
    if (!fault.isNull()) {
        fail(fault);
        return nullptr;
    }
    SchedulerConnection scheduler(schedulerLimit());
    const PrinterRecord printer = PrinterRecord::choose(scheduler, mCommandLine.printer);
    if (const ExitStatus checked = checkOptions(printer); checked != ExitStatus::Printed) {
        *status = checked;
        return nullptr;
    }

    mPrinter = std::make_unique<QPrinter>(QPrinter::HighResolution);
    mPrinter->setPrinterName(printer.name);
    mPrinter->setDocName(QFileInfo(mCommandLine.files.first()).fileName());
    mPrinter->setCopyCount(takeCopies());
    mOptionsAtStart = untouchedJobOptions();
    mOptionsAtStart.merge(optionsOfPrinter());
    mDialog = new QPrintDialog(mPrinter.get());
    mDialog->setOption(QAbstractPrintDialog::PrintToFile, false);
    mDialog->setMinMax(1, mostPages);
    mDialog->setWindowTitle(HostText().text("Print %1").arg(mPrinter->docName()));
    mBundles = PanelBundles::load(mBundleFolder, mReporter);
    mAttachment =
        new PrintDialogAttachment(mDialog, mBundles, mReporter, mLastChoices, mCommandLine.options);
    return mDialog;
}

int PrintCommand::takeCopies()
{
    const QString key = QStringLiteral("copies");
    const int asked = mCommandLine.options.value(key).toInt();
    mCommandLine.options.remove(key);
    return std::max(mCommandLine.copies > 0 ? mCommandLine.copies : asked, 1);
}

JobOptions PrintCommand::optionsOfPrinter() const
{
    const QPrinterInfo info(*mPrinter);
    JobOptions options;
    addCopies(*mPrinter, options);
    addPages(*mPrinter, options);
    addPaper(*mPrinter, options);
    addSides(*mPrinter, info, options);
    addColors(*mPrinter, info, options);
    return options;
}

JobOptions PrintCommand::optionsOfJob() const
{
    JobOptions options = mCommandLine.options;
    JobOptions ofDialog = mAttachment->jobOptions();
    ofDialog.merge(optionsOfPrinter());
    for (const auto &[key, value] : ofDialog.pairs()) {
        // What the user asked for holds until the dialog says otherwise.
        if (!mCommandLine.options.contains(key) || mOptionsAtStart.value(key) != value) {
            options.set(key, value);
        }
    }
    if (options.contains(QStringLiteral("media"))) {
        options.remove(QStringLiteral("PageSize"));
    }
    return options;
}

ExitStatus PrintCommand::print()
{
    mJobId = 0;
    if (!mAttachment || mAttachment->isRefused()) {
        return ExitStatus::NotPrinted;
    }
    QString error;
    // The scheduler has closed any connection of before while the user was at the dialog.
    SchedulerConnection scheduler(schedulerLimit());
    mJobId = JobSubmission::print(scheduler, mPrinter->printerName(), mCommandLine.files,
                                  mPrinter->docName(), optionsOfJob(), &error);
    if (mJobId == 0) {
        fail(error);
        return ExitStatus::NotPrinted;
    }
    return ExitStatus::Printed;
}

ExitStatus PrintCommand::run()
{
    const ExitStatus status = printByDialog();
    if (mCommandLine.alerts && !mFault.isNull()) {
        QMessageBox alert(QMessageBox::Warning, QGuiApplication::applicationDisplayName(), mFault,
                          QMessageBox::Ok);
        alert.setTextFormat(Qt::PlainText);
        alert.exec();
    }
    return status;
}

ExitStatus PrintCommand::printByDialog()
{
    ExitStatus status = ExitStatus::NotPrinted;
    QPrintDialog *dialog = prepare(&status);
    if (!dialog) {
        return status;
    }
    if (dialog->exec() != QDialog::Accepted) {
        return ExitStatus::Cancelled;
    }
    return print();
}
