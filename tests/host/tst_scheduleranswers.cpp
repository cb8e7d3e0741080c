// SPDX-License-Identifier: Apache-2.0
#include "Application.h"
#include "AttachedDialog.h"
#include "CommandRun.h"
#include "PanelUser.h"
#include "PrintingTest.h"
#include "PropertiesDialog.h"
#include "SchedulerProxy.h"
#include "cups/PrinterFetch.h"
#include "cups/PrinterRecord.h"
#include "dialog/PrintDialogAttachment.h"
#include "support/DialogNames.h"

#include <QFile>
#include <QTest>

#include <chrono>
#include <functional>
#include <thread>

#include <pthread.h>

/// The dialog and the scheduler that answers late, half, or no more what it answered before.
class SchedulerAnswersTest : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void cutPPDIsNone_data();
    void cutPPDIsNone();
    void failureKeepsThePPD();
    void ppdNeedsNoRoomOnADisk();
    void ppdOfAnyName();
    void requestsOfEachMoment();
    void silentSchedulerHoldsNobody();
    void answerBehindPrintStillCounts();
    void answerBehindPropertiesStillCounts();
    void silenceEndsWithTheTruth_data();
    void silenceEndsWithTheTruth();
    void slowAnswersAreNoSilence_data();
    void slowAnswersAreNoSilence();
    void cancelledRequestIsNotMade();
    void noThreadIsTold();
    void versionOfRequestsIsKept();
    void jobOfALongDialogIsPrinted();
    void changedPPDKeepsChoicesOut();
    void anotherPrinterKeepsTheTicks_data();
    void anotherPrinterKeepsTheTicks();

private: // NOLINT(readability-redundant-access-specifiers): these are no slots
    bool addTape(const QString &without = {});
    QList<int> requestsAtMoments(bool isExtended);
};

namespace {
using namespace std::chrono_literals;

const QString tapeQueue = u"tape"_s;
const QString halfCut = u"mHalfCutChkBx"_s;

/// A part of the scheduler's answers that comes late.
enum class LatePart {
    Answer,
    /// What follows the head of an answer.
    Content,
};

void delay(SchedulerProxy &proxy, LatePart part, std::chrono::milliseconds time)
{
    if (part == LatePart::Content) {
        proxy.delayContents(time);
    } else {
        proxy.delayAnswers(time);
    }
}
} // namespace
Q_DECLARE_METATYPE(LatePart)

namespace {
void lateParts()
{
    QTest::addColumn<LatePart>("part");
    QTest::newRow("answer") << LatePart::Answer;
    QTest::newRow("content") << LatePart::Content;
}
} // namespace

/// Gives the tape printer its PPD, without an option.
bool SchedulerAnswersTest::addTape(const QString &without)
{
    QFile ppd(PrintingSite::ppdPath(tapeQueue));
    if (!ppd.open(QIODevice::ReadOnly)) {
        return false;
    }
    QString text;
    bool isLeftOut = false;
    for (const QString &line : QString::fromUtf8(ppd.readAll()).split(u'\n')) {
        isLeftOut = isLeftOut || (!without.isNull() && line.startsWith(u"*OpenUI *"_s + without));
        if (!isLeftOut) {
            text += line + u'\n';
        }
        isLeftOut = isLeftOut && !line.startsWith(u"*CloseUI");
    }
    QString error;
    return mSite.scheduler().addPrinter(tapeQueue, mSite.file(u"changed.ppd"_s, text.toUtf8()),
                                        &error);
}

void SchedulerAnswersTest::cutPPDIsNone_data()
{
    QTest::addColumn<int>("bytes");
    for (const int bytes : {0, 1, 17, 200, 300, 500, 1000, 4096, 5000, 6000, 7000}) {
        QTest::addRow("%d", bytes) << bytes;
    }
}

void SchedulerAnswersTest::cutPPDIsNone()
{
    QFETCH(const int, bytes);
    SchedulerProxy proxy(mSite.scheduler().address());
    // Qt's own part of the dialog does not bear half a PPD.
    Application application(tapeQueue);
    proxy.cutPPDsAfter(bytes);
    SchedulerConnection scheduler;
    const PrinterRecord record = PrinterRecord::read(scheduler, tapeQueue);
    QVERIFY(record.ppd.text.isNull());
    QVERIFY2(record.error.startsWith(u"PPD of tape: the scheduler"_s), qPrintable(record.error));
    QVERIFY2(record.error.contains(u"breaks off"_s), qPrintable(record.error));

    QVERIFY(application.show());
    QCOMPARE(application.problems(), QStringList(record.error));
    QVERIFY(!application.openTab());
    QVERIFY(application.user().print());
    QCOMPARE(application.jobCount(), 1);
    QCOMPARE(application.countsOfChoices(), (QMap<QString, int>()));
}

void SchedulerAnswersTest::failureKeepsThePPD()
{
    SchedulerProxy proxy(mSite.scheduler().address());
    SchedulerConnection scheduler;
    PrinterRecord record = PrinterRecord::read(scheduler, tapeQueue);
    const QueuePPD before = record.ppd;
    QVERIFY(!before.text.isNull());
    // So that it was not changed within the second.
    record.ppd.modified -= 1;
    proxy.cutPPDsAfter(1000);
    QCOMPARE(record.update(scheduler), QueuePPD::Answer::Failed);
    QCOMPARE(record.ppd.text, before.text);
    QCOMPARE(record.ppd.modified, before.modified - 1);
}

void SchedulerAnswersTest::ppdNeedsNoRoomOnADisk()
{
    const QByteArray former = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc");
    const AttachedDialog dialog(tapeQueue);
    former.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", former);
    QVERIFY(dialog.tabs().contains(kPanelTab));
    QCOMPARE(dialog.problems(), QStringList());
}

void SchedulerAnswersTest::ppdOfAnyName()
{
    const QString name = u"Kasse+1@b(c)"_s;
    QString error;
    QVERIFY(addPrinter(name, PrintingSite::ppdPath(tapeQueue)));
    SchedulerConnection scheduler;
    const PrinterRecord record = PrinterRecord::read(scheduler, name);
    QCOMPARE(record.error, QString());
    QVERIFY(!record.ppd.text.isNull());
}

/// How many requests there are at each moment of a dialog; none when something is not as it should.
QList<int> SchedulerAnswersTest::requestsAtMoments(bool isExtended)
{
    const SchedulerProxy proxy(mSite.scheduler().address());
    Application application(tapeQueue);
    QPrintDialog &dialog = application.dialog();
    DialogDriver &user = application.user();
    const auto show = [&] {
        return isExtended ? application.show() : user.open();
    };
    const std::function<bool()> moments[] = {
        show,
        [&] { return isExtended ? application.openTab() : user.showOptions(); },
        [&] { return user.pickPrinter(u"label"_s); },
        [&] { return user.pickPrinter(tapeQueue); },
        [&] { return user.cancel(); },
        show,
        // Before the application prints.
        [&] { return user.print(); },
    };
    QList<int> requests;
    for (const auto &moment : moments) {
        const int before = proxy.requests();
        if (!moment() || bool(dialog.findChild<PrintDialogAttachment *>()) != isExtended) {
            return {};
        }
        requests.append(proxy.requests() - before);
    }
    return requests;
}

void SchedulerAnswersTest::requestsOfEachMoment()
{
    const QList<int> without = requestsAtMoments(false);
    const QList<int> with = requestsAtMoments(true);
    QList<int> more;
    for (int i = 0; i < int(std::min(with.size(), without.size())); ++i) {
        more.append(with.at(i) - without.at(i));
    }
    // Three for each printer, and whether its PPD has changed when it prints. All of them are made
    // in the background: what is asked on the application's thread would come on top.
    QCOMPARE(more, QList<int>({3, 0, 3, 0, 0, 0, 1}));
}

void SchedulerAnswersTest::silentSchedulerHoldsNobody()
{
    SchedulerProxy proxy(mSite.scheduler().address());
    Application application(tapeQueue);
    QPrintDialog &dialog = application.dialog();
    proxy.setSilent(true);
    QVERIFY(!application.show());
    QVERIFY(dialog.isVisible());
    const auto *attachment = dialog.findChild<PrintDialogAttachment *>();
    QVERIFY(attachment->isWaiting());
    // Nobody waits, but whoever asks for the printer in the background.
    const int requests = proxy.requests();
    dialog.reject();
    QVERIFY(!application.show());
    QVERIFY(attachment->isWaiting());
    QCOMPARE(proxy.requests(), requests + 1);
    proxy.setSilent(false);
    QVERIFY(application.user().print());
    QCOMPARE(application.jobCount(), 1);
    QCOMPARE(application.countsOfChoices(), (QMap<QString, int>()));
    QCOMPARE(application.problems(),
             QStringList{u"tape: the print scheduler has not told the printer's options yet; the "
                         "job has none of the panel's"_s});
}

void SchedulerAnswersTest::answerBehindPrintStillCounts()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=ON\n"));
    Application application(tapeQueue);
    QPrintDialog &dialog = application.dialog();
    dialog.open();
    application.attach();
    QVERIFY(dialog.findChild<PrintDialogAttachment *>()->isWaiting());
    dialog.accept();
    QVERIFY(mSite.saveUserOptions(""));
    QVERIFY(application.handedOver().contains(u"KvHalfCut"_s));
    QCOMPARE(application.problems(), QStringList());
}

void SchedulerAnswersTest::answerBehindPropertiesStillCounts()
{
    SchedulerProxy proxy(mSite.scheduler().address());
    Application application(tapeQueue);
    QPrintDialog &dialog = application.dialog();
    QVERIFY(application.user().open());
    proxy.delayAnswers(std::chrono::milliseconds(500));
    application.attach();
    const auto *attachment = dialog.findChild<PrintDialogAttachment *>();
    bool wereListed = false;
    bool areListed = true;
    const auto awaitAnswer = [&](const QDialog &properties) {
        QVERIFY(attachment->isWaiting());
        wereListed = PropertiesDialog::hasOptions(properties);
        QVERIFY(QTest::qWaitFor([&] { return !attachment->isWaiting(); }));
        areListed = PropertiesDialog::hasOptions(properties);
    };
    QVERIFY(PropertiesDialog::with(application.user(), false, awaitAnswer));
    QVERIFY(wereListed);
    // The panel has them now.
    QVERIFY(!areListed);
}

void SchedulerAnswersTest::silenceEndsWithTheTruth_data()
{
    lateParts();
}

void SchedulerAnswersTest::silenceEndsWithTheTruth()
{
    QFETCH(const LatePart, part);
    SchedulerProxy proxy(mSite.scheduler().address());
    delay(proxy, part, 1min);
    const QString truth = u"the print scheduler at 127.0.0.1 does not answer"_s;
    SchedulerConnection chosen(1s);
    QString error;
    QVERIFY(PrintQueue::choose(chosen, tapeQueue, &error).isNull());
    QCOMPARE(error, truth);
    SchedulerConnection read(1s);
    QCOMPARE(PrinterRecord::read(read, tapeQueue).error, truth);
}

void SchedulerAnswersTest::slowAnswersAreNoSilence_data()
{
    lateParts();
}

void SchedulerAnswersTest::slowAnswersAreNoSilence()
{
    QFETCH(const LatePart, part);
    SchedulerProxy proxy(mSite.scheduler().address());
    // Three answers take longer than the limit, none of them does.
    delay(proxy, part, 800ms);
    SchedulerConnection scheduler(2s);
    QCOMPARE(PrinterRecord::read(scheduler, tapeQueue).error, QString());
}

void SchedulerAnswersTest::cancelledRequestIsNotMade()
{
    const SchedulerProxy proxy(mSite.scheduler().address());
    int isCancelled = 0;
    SchedulerConnection scheduler(SchedulerConnection::defaultLimit, &isCancelled);
    QVERIFY(scheduler.open(nullptr));
    isCancelled = 1;
    QVERIFY(!scheduler.reconnect());
    SchedulerConnection other(SchedulerConnection::defaultLimit, &isCancelled);
    QString error;
    QVERIFY(!other.open(&error));
}

void SchedulerAnswersTest::noThreadIsTold()
{
    // No machine has room for such a stack.
    pthread_attr_t former;
    pthread_attr_t huge;
    QCOMPARE(pthread_getattr_default_np(&former), 0);
    QCOMPARE(pthread_getattr_default_np(&huge), 0);
    QCOMPARE(pthread_attr_setstacksize(&huge, std::size_t(1) << 60), 0);
    QCOMPARE(pthread_setattr_default_np(&huge), 0);
    PrinterFetch fetch([](SchedulerConnection & /*scheduler*/) { return PrinterRecord(); });
    QCOMPARE(pthread_setattr_default_np(&former), 0);
    QString error;
    QObject::connect(&fetch, &PrinterFetch::answered,
                     [&error](const PrinterRecord &record) { error = record.error; });
    QVERIFY(QTest::qWaitFor([&error] { return !error.isNull(); }));
    QVERIFY2(error.startsWith(u"the printer cannot be asked about: "_s), qPrintable(error));
}

void SchedulerAnswersTest::versionOfRequestsIsKept()
{
    cupsSetServer(mSite.scheduler().address() + "/version=1.1");
    const auto version = [] {
        return SchedulerAddress::ofThisThread().version;
    };
    const SchedulerAddress address = SchedulerAddress::ofThisThread();
    QByteArray alone;
    {
        const NoOtherConnections others;
        alone = version();
    }
    const QByteArray behind = version();
    QByteArray inThread;
    std::thread([&] {
        address.use();
        inThread = version();
    }).join();
    cupsSetServer(mSite.scheduler().address().constData());
    QCOMPARE(QByteArrayList({alone, behind, inThread}), QByteArrayList({"1.1", "1.1", "1.1"}));
}

void SchedulerAnswersTest::jobOfALongDialogIsPrinted()
{
    SchedulerProxy proxy(mSite.scheduler().address());
    CommandRun run(tapeQueue, {mSite.document()});
    QVERIFY(run.openTab());
    QVERIFY(run.panel().click(halfCut));
    // As a scheduler does with connections that nothing comes over for half a minute.
    proxy.closeConnections();
    QVERIFY(mSite.choices(run.print()).contains(halfCutOn));
}

void SchedulerAnswersTest::changedPPDKeepsChoicesOut()
{
    // On a busy machine the scheduler may not answer in the short time that the dialog waits for
    // it.
    constexpr int mostAttempts = 20;
    QStringList choices{halfCutOn};
    QStringList problems;
    for (int attempts = 0; choices.contains(halfCutOn) && attempts < mostAttempts; ++attempts) {
        QVERIFY(addTape());
        // libcups does not care for the case.
        QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=on\n"));
        AttachedDialog dialog(tapeQueue);
        QVERIFY(mSite.saveUserOptions(""));
        QVERIFY(dialog.openTab());
        QVERIFY(dialog.panel().isTicked(halfCut));
        QVERIFY(addTape(u"KvHalfCut"_s));
        choices = mSite.choices(dialog.print(mSite.scheduler()));
        problems = dialog.problems();
    }
    QVERIFY(addTape());
    QVERIFY(!choices.isEmpty());
    QCOMPARE(choices.filter(u"KvHalfCut"_s), QStringList());
    QCOMPARE(problems,
             QStringList{u"tape: KvHalfCut=ON is left out: the printer's PPD has changed, and has "
                         "no such choice"_s});
}

void SchedulerAnswersTest::anotherPrinterKeepsTheTicks_data()
{
    const TestTable<QString> table("other");
    table.add("a printer", u"label"_s);
    table.add("a printer without the panel", u"plain"_s);
    table.add("a file", u"Print to File (PDF)"_s);
}

void SchedulerAnswersTest::anotherPrinterKeepsTheTicks()
{
    QFETCH(const QString, other);
    AttachedDialog dialog(tapeQueue);
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.panel().click(halfCut));
    QVERIFY(dialog.user().pickPrinter(other));
    QVERIFY(dialog.user().pickPrinter(tapeQueue));
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.panel().isTicked(halfCut));
    QVERIFY(mSite.choices(dialog.print(mSite.scheduler())).contains(u"KvHalfCut=ON"_s));
    QCOMPARE(dialog.problems(), QStringList());
}

KV_TEST(SchedulerAnswersTest)
#include "tst_scheduleranswers.moc"
