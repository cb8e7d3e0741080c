// SPDX-License-Identifier: Apache-2.0
#include "dialog/PrintDialogAttachment.h"

#include "cups/PPDPaper.h"
#include "cups/PrinterFetch.h"
#include "dialog/PanelTab.h"
#include "dialog/PrintDialogWidgets.h"
#include "dialog/SummaryTab.h"
#include "host/LastChoices.h"
#include "host/PanelHost.h"
#include "host/ProblemReporter.h"

#include <QApplication>
#include <QComboBox>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTabWidget>
#include <QTimer>

namespace {
using namespace std::chrono_literals;

/// How long the user waits for the scheduler when the job is to be printed and the printer's
/// options are not known yet.
constexpr auto longestWait = 2s;
/// How long the user waits to be told whether the printer has changed since: nobody would notice.
constexpr auto shortestWait = 20ms;

/// The print engine's property that holds the job's options for CUPS: a string list of keywords
/// and values in turn. Qt's CUPS print engine calls it PPK_CupsOptions.
constexpr auto cupsOptionsProperty = QPrintEngine::PrintEnginePropertyKey(0xfe00);

JobOptions readEngineOptions(const QPrinter &printer)
{
    const QStringList flat = printer.printEngine()->property(cupsOptionsProperty).toStringList();
    JobOptions options;
    for (int i = 0; i + 1 < flat.size(); i += 2) {
        options.set(flat.at(i), flat.at(i + 1));
    }
    return options;
}

void writeEngineOptions(const QPrinter &printer, const JobOptions &options)
{
    QStringList flat;
    for (const auto &[key, value] : options.pairs()) {
        flat << key << value;
    }
    printer.printEngine()->setProperty(cupsOptionsProperty, flat);
}
} // namespace

PrintDialogAttachment::PrintDialogAttachment(QPrintDialog *dialog, const PanelBundles &bundles,
                                             ProblemReporter &reporter, LastChoices &lastChoices,
                                             const JobOptions &requested)
    : QObject(dialog)
    , mDialog(dialog)
    , mBundles(bundles)
    , mReporter(reporter)
    , mLastChoices(lastChoices)
    , mRequested(requested)
{
    if (QComboBox *menu = printersMenu(*mDialog)) {
        connect(menu, qOverload<int>(&QComboBox::currentIndexChanged), this,
                &PrintDialogAttachment::followPrinter);
    }
    connect(mDialog, &QDialog::accepted, this, &PrintDialogAttachment::beAccepted);
    connect(mDialog, &QDialog::finished, this, &PrintDialogAttachment::beFinished);
    qApp->installEventFilter(this);
    followPrinter();
    checkResourcesLater();
    if (!mDialog->isVisible()) {
        endShowing();
    }
}

PrintDialogAttachment::~PrintDialogAttachment()
{
    deleteTabs();
}

void PrintDialogAttachment::checkResourcesLater()
{
    // One at a time, so that the dialog answers in between.
    QTimer::singleShot(0, this, [this] {
        const bool wasOneLeft =
            std::any_of(mBundles.begin(), mBundles.end(), [this](const auto &bundle) {
                return bundle->checkNextResource(mReporter);
            });
        if (wasOneLeft) {
            checkResourcesLater();
        }
    });
}

JobOptions PrintDialogAttachment::jobOptions() const
{
    return readEngineOptions(*mDialog->printer());
}

bool PrintDialogAttachment::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mDialog && event->type() == QEvent::Close) {
        checkWhetherClosed();
    }
    const bool isShow = event->type() == QEvent::Show;
    if ((!isShow && event->type() != QEvent::Hide) || event->spontaneous()) {
        return false;
    }
    if (watched == mDialog) {
        isShow ? beginShowing() : endShowing();
    } else if (isShow && watched->inherits(kPropertiesDialogClass) && isBelow(watched, mDialog)) {
        watchProperties(static_cast<QWidget *>(watched));
    }
    return false;
}

void PrintDialogAttachment::beginShowing()
{
    // The result of the last time would look like this time's.
    mDialog->setResult(QDialog::Rejected);
    mIsHandedOver = false;
    if (std::exchange(mIsFinished, false)) {
        startAnew();
    }
}

void PrintDialogAttachment::endShowing()
{
    // The dialog is hidden before it tells that it has been accepted, and an application may print
    // as soon as it is told.
    if (mDialog->result() == QDialog::Accepted) {
        passChoicesToJob();
    }
}

void PrintDialogAttachment::beAccepted()
{
    // When the dialog is seen, the application has shown it again as soon as it was told.
    if (!mDialog->isVisible()) {
        passChoicesToJob();
    }
}

void PrintDialogAttachment::beFinished(int result)
{
    if (!mDialog->isVisible()) {
        mIsFinished = true;
    } else if (result != QDialog::Accepted) {
        // Shown again already, with the choices that the user has given up.
        startAnew();
    }
}

void PrintDialogAttachment::checkWhetherClosed()
{
    // A dialog of a class of its own may refuse to be closed, or be closed without telling.
    QTimer::singleShot(0, this, [this] { mIsFinished = mIsFinished || !mDialog->isVisible(); });
}

void PrintDialogAttachment::followPrinter()
{
    const QComboBox *menu = printersMenu(*mDialog);
    const QString queue = menu ? menu->currentText() : mDialog->printer()->printerName();
    if (queue == mQueue) {
        return;
    }
    if (mHost) {
        mHost->saveShown();
        mSetChoices.insert(mQueue, mHost->jobOptions());
    }
    mQueue = queue;
    mPickedPaper = QPageSize();
    buildTabs();
}

void PrintDialogAttachment::startAnew()
{
    mSetChoices.clear();
    buildTabs();
}

void PrintDialogAttachment::buildTabs()
{
    dropTabs();
    mHost.reset();
    mFetch.reset();
    mRequestedPaper = QPageSize();
    if (mPrinters.contains(mQueue)) {
        buildHost();
        return;
    }
    mFetch = std::make_unique<PrinterFetch>(
        [name = mQueue, isFile = isPrintingToFile(*mDialog)](SchedulerConnection &scheduler) {
            PrinterRecord printer;
            if (isFile) {
                // Perhaps there is nothing else to choose, for want of a scheduler.
                scheduler.open(&printer.error);
                return printer;
            }
            return PrinterRecord::read(scheduler, name);
        });
    connect(mFetch.get(), &PrinterFetch::answered, this, &PrintDialogAttachment::takeAnswer);
}

void PrintDialogAttachment::takeAnswer(const PrinterRecord &printer)
{
    // It may be what tells this.
    mFetch.release()->deleteLater();
    mReporter.report(printer.error);
    if (printer.error.isNull()) {
        mPrinters.insert(mQueue, printer);
        buildHost();
    }
}

void PrintDialogAttachment::buildHost()
{
    const PrinterRecord &printer = mPrinters[mQueue];
    QString error;
    auto target = PanelTarget::of(printer, PPDFile::Marks::Defaults, &error);
    mReporter.report(error);
    mRequestedPaper = mPickedPaper.isValid()
                          ? QPageSize()
                          : requestedPageSize(target ? target->ppd.get() : nullptr);
    if (!target) {
        return;
    }
    mReporter.report(target->use(mBundles.maps()));
    const PPDFile &openPPD = *target->ppd;
    if (const QPageSize paper = mPickedPaper.isValid() ? mPickedPaper : mRequestedPaper;
        paper.isValid()) {
        target->paper = paperIn(openPPD, paper);
    }
    JobOptions requests;
    for (const JobOptions &options :
         {target->savedOptions, mRequested, mLastChoices.of(mQueue), mSetChoices.value(mQueue)}) {
        requests.merge(target->take(options));
    }

    mHost = std::make_unique<PanelHost>(std::move(*target), mBundles, mReporter);
    for (const QString &key : mHost->keys()) {
        if (requests.contains(key) && openPPD.hasOption(key)) {
            mHost->request(key, requests.value(key));
        }
    }
    addTabs();
    hidePanelsOptions();
}

void PrintDialogAttachment::addTabs()
{
    if (mHost->panels().empty()) {
        return;
    }
    QList<QWidget *> tabs;
    for (PDEPanel *panel : mHost->panels()) {
        tabs.append(new PanelTab(*mHost, *panel));
    }
    tabs.append(new SummaryTab(*mHost));
    mTabs.assign(tabs.begin(), tabs.end());
    mDialog->setOptionTabs(tabs);
    QTabWidget *shown = optionTabs(*mDialog);
    const bool isSeen = shown && shown->isVisible();
    // What the user looks at stays as large as it is, and where it is.
    if (!isSeen) {
        tabs.last()->setMinimumWidth(widthOfTabTitles(*mDialog));
    }
    if (shown && (mPageSince ? shown->currentWidget() == mPageSince : !isSeen)) {
        shown->setCurrentIndex(std::max(mTabBefore, 0));
    }
    mPageSince = nullptr;
}

void PrintDialogAttachment::dropTabs()
{
    const QTabWidget *shown = optionTabs(*mDialog);
    const auto current =
        std::find(mTabs.begin(), mTabs.end(), shown ? shown->currentWidget() : nullptr);
    if (current == mTabs.end()) {
        deleteTabs();
        return;
    }
    mTabBefore = shown->currentIndex();
    deleteTabs();
    mPageSince = shown->currentWidget();
}

void PrintDialogAttachment::deleteTabs()
{
    for (const QPointer<QWidget> &tab : mTabs) {
        delete tab;
    }
    mTabs.clear();
}

void PrintDialogAttachment::watchProperties(QWidget *properties)
{
    if (mRequestedPaper.isValid()) {
        choosePageSize(*properties, mRequestedPaper);
    }
    if (mProperties == properties) {
        return;
    }
    mProperties = properties;
    connect(static_cast<QDialog *>(properties), &QDialog::accepted, this, [this, properties] {
        mRequestedPaper = QPageSize();
        mPickedPaper = chosenPageSize(*properties);
        followPageSize(mPickedPaper);
    });
    hidePanelsOptions();
}

void PrintDialogAttachment::hidePanelsOptions()
{
    if (!mHost || !mProperties) {
        return;
    }
    QStringList texts;
    const QStringList keys = mHost->printerKeys();
    for (const QString &key : keys) {
        texts.append(mHost->ppd().optionText(key));
    }
    hideListedOptions(*mProperties, texts);
}

void PrintDialogAttachment::followPageSize(const QPageSize &size)
{
    if (!mHost || !size.isValid()) {
        return;
    }
    const Paper paper = paperIn(mHost->ppd(), size);
    if (paper != mHost->paper()) {
        mHost->setPaper(paper);
    }
}

QPageSize PrintDialogAttachment::requestedPageSize(const PPDFile *ppd) const
{
    const QString media = mRequested.value(QStringLiteral("media"));
    const QString name = media.isNull() ? mRequested.value(QStringLiteral("PageSize")) : media;
    if (name.isNull()) {
        return {};
    }
    const auto offered = QPrinterInfo::printerInfo(mQueue).supportedPageSizes();
    for (const QPageSize &size : offered) {
        if (size.key() == name) {
            return size;
        }
    }
    return ppd ? customPageSizeIn(*ppd, name) : QPageSize();
}

void PrintDialogAttachment::passChoicesToJob()
{
    if (std::exchange(mIsHandedOver, true)) {
        return;
    }
    mIsRefused = false;
    awaitPrinter();
    if (mRequestedPaper.isValid()) {
        mDialog->printer()->setPageSize(mRequestedPaper);
    }
    if (mHost) {
        passPanelsChoices();
    }
}

void PrintDialogAttachment::awaitPrinter()
{
    if (!mFetch || isPrintingToFile(*mDialog)) {
        return;
    }
    if (const auto answer = mFetch->waitFor(longestWait)) {
        takeAnswer(*answer);
        return;
    }
    mFetch.reset();
    mReporter.report(
        QStringLiteral("%1: the print scheduler has not told the printer's options yet; "
                       "the job has none of the panel's")
            .arg(mQueue));
}

void PrintDialogAttachment::passPanelsChoices()
{
    followPageSize(mDialog->printer()->pageLayout().pageSize());
    if (!mHost->accept()) {
        mIsRefused = true;
        mReporter.report(
            QStringLiteral("%1: a panel keeps the job from being printed").arg(mQueue));
        return;
    }
    const JobOptions shown = mHost->jobOptions();
    const JobOptions choices = choicesThatThePrinterHas(shown);
    mLastChoices.remember(mQueue, choices);
    JobOptions options = jobOptions();
    // Those that the user has saved are there already.
    for (const auto &[key, choice] : shown.pairs()) {
        options.remove(key);
    }
    mHost->removeMapped(options);
    if (const auto conflict = mHost->conflict(options)) {
        mReporter.report(conflict->fault());
    }
    options.merge(choices);
    writeEngineOptions(*mDialog->printer(), options);
}

JobOptions PrintDialogAttachment::choicesThatThePrinterHas(const JobOptions &choices)
{
    PrinterRecord &known = mPrinters[mQueue];
    PrinterFetch fetch([printer = known](SchedulerConnection &scheduler) mutable {
        if (printer.update(scheduler) == QueuePPD::Answer::None) {
            PrintQueue::exists(scheduler, printer.name, &printer.error);
        }
        return printer;
    });
    const auto now = fetch.waitFor(shortestWait);
    if (!now || !now->error.isNull() || now->ppd.text == known.ppd.text) {
        mReporter.report(now ? now->error : QString());
        return choices;
    }
    known = *now;
    QString error;
    const auto ppd = known.openPPD(&error, PPDFile::Marks::None);
    mReporter.report(error);
    JobOptions left;
    for (const auto &[key, choice] : choices.pairs()) {
        if (ppd && ppd->hasChoice(key, choice)) {
            left.set(key, choice);
        } else {
            mReporter.report(QStringLiteral("%1: %2=%3 is left out: the printer's PPD has changed, "
                                            "and has no such choice")
                                 .arg(mQueue, key, choice));
        }
    }
    return left;
}

#include "moc_PrintDialogAttachment.cpp"
