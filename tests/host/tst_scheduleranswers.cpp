#include "Application.h"
#include "AttachedDialog.h"
#include "PanelUser.h"
#include "PrintingSite.h"
#include "SchedulerProxy.h"
#include "host/PrintDialogAttachment.h"
#include "host/PrinterRecord.h"
#include "support/DialogNames.h"

#include <QFile>
#include <QTest>

/// The dialog and the scheduler that answers late, half, or no more what it answered before.
class SchedulerAnswersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cutPPDIsNone_data();
    void cutPPDIsNone();
    void ppdNeedsNoRoomOnADisk();
    void requestsAreFew();
    void silentSchedulerHoldsNobody();
    void answerBehindPrintStillCounts();
    void silenceEndsWithTheTruth();
    void changedPPDKeepsChoicesOut();
    void anotherPrinterKeepsTheTicks_data();
    void anotherPrinterKeepsTheTicks();

private: // NOLINT(readability-redundant-access-specifiers): these are no slots
    bool addTape(const QString &without = {});

    PrintingSite mSite;
};

namespace {
const QString tapeQueue = QStringLiteral("tape");
const QString halfCut = QStringLiteral("mHalfCutChkBx");
} // namespace

void SchedulerAnswersTest::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
}

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
    return mSite.scheduler().addPrinter(
        tapeQueue, mSite.file(QStringLiteral("changed.ppd"), text.toUtf8()), &error);
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
    Application application;
    application.makeDialog(tapeQueue);
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

void SchedulerAnswersTest::ppdNeedsNoRoomOnADisk()
{
    const QByteArray former = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc");
    const AttachedDialog dialog(tapeQueue);
    former.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", former);
    QVERIFY(dialog.tabs().contains(kPanelTab));
    QCOMPARE(dialog.problems(), QStringList());
}

void SchedulerAnswersTest::requestsAreFew()
{
    const SchedulerProxy proxy(mSite.scheduler().address());
    Application application;
    QPrintDialog &dialog = application.makeDialog(tapeQueue);
    dialog.open();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    const int ofQt = proxy.requests();
    QVERIFY(application.show());
    QCOMPARE(proxy.requests() - ofQt, 3);
    QVERIFY(application.openTab());
    QCOMPARE(proxy.requests() - ofQt, 3);
    auto *attachment = dialog.findChild<PrintDialogAttachment *>();
    QVERIFY(attachment->host());
}

void SchedulerAnswersTest::silentSchedulerHoldsNobody()
{
    SchedulerProxy proxy(mSite.scheduler().address());
    Application application;
    QPrintDialog &dialog = application.makeDialog(tapeQueue);
    proxy.setSilent(true);
    QVERIFY(!application.show());
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.findChild<PrintDialogAttachment *>()->isWaiting());
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
    Application application;
    QPrintDialog &dialog = application.makeDialog(tapeQueue);
    dialog.open();
    application.attach();
    QVERIFY(dialog.findChild<PrintDialogAttachment *>()->isWaiting());
    dialog.accept();
    QVERIFY(mSite.saveUserOptions(""));
    QVERIFY(application.handedOver().contains(u"KvHalfCut"_s));
    QCOMPARE(application.problems(), QStringList());
}

void SchedulerAnswersTest::silenceEndsWithTheTruth()
{
    SchedulerProxy proxy(mSite.scheduler().address());
    proxy.setSilent(true);
    const QString truth = u"the print scheduler at 127.0.0.1 does not answer"_s;
    const std::chrono::seconds limit(1);
    SchedulerConnection chosen(limit);
    QString error;
    QVERIFY(PrintQueue::choose(chosen, tapeQueue, &error).isNull());
    QCOMPARE(error, truth);
    SchedulerConnection read(limit);
    QCOMPARE(PrinterRecord::read(read, tapeQueue).error, truth);
}

void SchedulerAnswersTest::changedPPDKeepsChoicesOut()
{
    AttachedDialog dialog(tapeQueue);
    QVERIFY(dialog.openTab());
    QVERIFY(PanelUser(dialog.user()).click(halfCut));
    QVERIFY(addTape(u"KvHalfCut"_s));
    const QStringList choices = mSite.choices(dialog.print(mSite.scheduler()));
    QVERIFY(addTape());
    QVERIFY(!choices.isEmpty());
    QCOMPARE(choices.filter(u"KvHalfCut"_s), QStringList());
    QCOMPARE(dialog.problems(),
             QStringList{u"tape: KvHalfCut=ON is left out: the printer's PPD has changed, and has "
                         "no such choice"_s});
}

void SchedulerAnswersTest::anotherPrinterKeepsTheTicks_data()
{
    QTest::addColumn<QString>("other");
    QTest::newRow("a printer") << u"label"_s;
    QTest::newRow("a printer without the panel") << u"plain"_s;
    QTest::newRow("a file") << u"Print to File (PDF)"_s;
}

void SchedulerAnswersTest::anotherPrinterKeepsTheTicks()
{
    QFETCH(const QString, other);
    AttachedDialog dialog(tapeQueue);
    QVERIFY(dialog.openTab());
    QVERIFY(PanelUser(dialog.user()).click(halfCut));
    QVERIFY(dialog.user().pickPrinter(other));
    QVERIFY(dialog.user().pickPrinter(tapeQueue));
    QVERIFY(dialog.openTab());
    QVERIFY(PanelUser(dialog.user()).isTicked(halfCut));
    QVERIFY(mSite.choices(dialog.print(mSite.scheduler())).contains(u"KvHalfCut=ON"_s));
    QCOMPARE(dialog.problems(), QStringList());
}

KV_TEST(SchedulerAnswersTest)
#include "tst_scheduleranswers.moc"
