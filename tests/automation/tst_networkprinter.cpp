// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "DriverlessPrinter.h"
#include "PrintingTest.h"
#include "PrivateNetwork.h"
#include "ProgramRun.h"
#include "cups/PrintQueue.h"
#include "cups/SchedulerConnection.h"

#include <QTest>

namespace {
const QString announced = u"Workshop"_s;

/// IPP's value of "finishings".
constexpr int trimAfterJobOnly = 63;
} // namespace

/// A driverless printer that the network tells of, and that the scheduler has no queue for.
class tst_networkprinter : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void listMakesNoQueue();
    void listOfThePrinter();
    void printedByName();
    void dialog();

private: // NOLINT(readability-redundant-access-specifiers)
    /// Whether the scheduler has a queue for the printer by now.
    bool hasQueue() const;

    DriverlessPrinter mPrinter;
};

void tst_networkprinter::initTestCase()
{
    if (const QString fault = PrivateNetwork::enter(); !fault.isNull()) {
        QSKIP(qPrintable(u"a network of the test's own needs root: "_s + fault));
    }
    PrintingTest::initTestCase();
    QCOMPARE(mPrinter.announce(announced), QString());
}

bool tst_networkprinter::hasQueue() const
{
    QString error;
    SchedulerConnection scheduler;
    return PrintQueue::exists(scheduler, announced, &error);
}

void tst_networkprinter::listMakesNoQueue()
{
    const ProgramRun run = runKvprint({u"--list"_s});
    QVERIFY2(run.status == 0, qPrintable(run.errors));
    QVERIFY(run.output.contains(u"tape"_s));
    QVERIFY(!hasQueue());
}

void tst_networkprinter::listOfThePrinter()
{
    const ProgramRun run = runKvprint({u"--list"_s, u"-d"_s, announced});
    QVERIFY2(run.output.contains(u"EveryEndMirrorOnOnOff"_s), qPrintable(run.errors));
    QVERIFY(hasQueue());
}

void tst_networkprinter::printedByName()
{
    const ProgramRun run = runKvprint(
        {u"--no-dialog"_s, u"-d"_s, announced, u"-o"_s, u"KvCutAtEnd=ON"_s, mSite.document()});
    QVERIFY2(run.status == 0, qPrintable(run.errors));
    QVERIFY(mSite.isPrinted(mSite.scheduler().jobIds().last()));
    QCOMPARE(mPrinter.finishings(), QList<int>({trimAfterJobOnly}));
}

void tst_networkprinter::dialog()
{
    AttachedDialog dialog(announced);
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.panel().click(u"mCutAndEndChkBx"_s));
    QVERIFY(mSite.isPrinted(dialog.print(mSite.scheduler())));
    QCOMPARE(mPrinter.finishings().first(), trimAfterJobOnly);
    QCOMPARE(dialog.problems(), QStringList());
}

KV_TEST(tst_networkprinter)
#include "tst_networkprinter.moc"
