// SPDX-License-Identifier: Apache-2.0
#include "Application.h"
#include "AttachedDialog.h"
#include "CommandRun.h"
#include "PanelUser.h"
#include "PrintingTest.h"
#include "SampleChoices.h"
#include "cups/PrintQueue.h"
#include "dialog/PrintDialogAttachment.h"
#include "host/PanelHost.h"
#include "host/PanelTarget.h"
#include "support/DialogNames.h"

#include <QTest>

namespace {
const QString draft = u"tape/draft"_s;

/// What a job of the tape printer carries besides its defaults.
QStringList tapeWith(const QString &others)
{
    return SampleChoices::replaced(SampleChoices::defaults(tape), others);
}

/// The pairs that are handed over, without those of the maker's options.
QStringList withoutPanelsOptions(const QStringList &handedOver)
{
    QStringList others;
    for (int i = 0; i + 1 < handedOver.size(); i += 2) {
        if (!handedOver.at(i).startsWith(QLatin1String("Kv"))) {
            others << handedOver.at(i) << handedOver.at(i + 1);
        }
    }
    return others;
}
} // namespace

/// A queue for which the user keeps a second set of options: to be chosen as "QUEUE/INSTANCE".
class tst_instance : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void instanceIsFound();
    void panelsAreToldOfTheQueue();
    void unknownInstance_data();
    void unknownInstance();
    void defaultPrinterMayBeAnInstance();

    void savedChoicesAreShownAndPrinted();
    void queueItselfKeepsItsOwnChoices();
    void choicesWinOverTheSavedOnes();
    void restOfTheJobIsQtsOwn();

    void kvprintsDialogPrints();
    void kvprintsRequestsWinOverTheSavedOnes();

private: // NOLINT(readability-redundant-access-specifiers)
    /// Whether a job has gone to the tape printer's queue.
    bool isAtTape(int job) const;
};

void tst_instance::init()
{
    QVERIFY(mSite.saveUserOptions("Dest tape/draft KvHalfCut=ON\n"));
}

bool tst_instance::isAtTape(int job) const
{
    return mSite.job(job).value(u"job-printer-uri"_s).endsWith(u"/tape");
}

void tst_instance::instanceIsFound()
{
    SchedulerConnection scheduler;
    QString error;
    const auto queue = PrintQueue::find(scheduler, tape, &error);
    const auto instance = PrintQueue::find(scheduler, draft, &error);
    QVERIFY(queue && instance);
    QCOMPARE(instance->name(), draft);
    QCOMPARE(PrintQueue::queueOf(draft), tape);
    QCOMPARE(PrintQueue::queueOf(tape), tape);
    QCOMPARE(instance->options().value(u"KvHalfCut"_s), u"ON"_s);
    QCOMPARE(queue->options().value(u"KvHalfCut"_s), QString());
    QCOMPARE(instance->deviceURI(), queue->deviceURI());
    QVERIFY(!instance->deviceURI().isEmpty());
    QVERIFY(PrintQueue::names(scheduler, &error).all.contains(draft));
    QCOMPARE(PrintQueue::choose(scheduler, draft, &error), draft);
    QCOMPARE(error, QString());
}

void tst_instance::panelsAreToldOfTheQueue()
{
    QString error;
    SchedulerConnection scheduler;
    const auto target = PanelTarget::ofQueue(scheduler, draft, PPDFile::Marks::Defaults, &error);
    QVERIFY2(target, qPrintable(error));
    QCOMPARE(target->printer.name(), tape);
    QCOMPARE(target->ppd->markedChoice(u"KvHalfCut"_s), u"ON"_s);
    QCOMPARE(target->savedOptions.value(u"KvHalfCut"_s), u"ON"_s);
}

void tst_instance::unknownInstance_data()
{
    const TestTable<QString> table("name");
    for (const char *name : {"tape/none", "tape/", "label/draft", "nowhere/draft", "/draft",
                             "tape/draft/", "tape/draft/more"}) {
        table.add(name, QString::fromLatin1(name));
    }
}

void tst_instance::unknownInstance()
{
    QFETCH(const QString, name);
    QString error;
    SchedulerConnection scheduler;
    QVERIFY(PrintQueue::choose(scheduler, name, &error).isNull());
    QCOMPARE(error, u"there is no printer %1; the printers are: all, follow, label, mark, plain, "
                    "tape, tape/draft"_s.arg(name));
    ExitStatus status = ExitStatus::Printed;
    CommandRun run(name, {mSite.document()});
    QVERIFY(!run.command().prepare(&status));
    QCOMPARE(status, ExitStatus::NotPrinted);
}

void tst_instance::defaultPrinterMayBeAnInstance()
{
    QVERIFY(mSite.saveUserOptions("Default tape/draft KvHalfCut=ON\n"));
    QString error;
    SchedulerConnection scheduler;
    QCOMPARE(PrintQueue::names(scheduler, &error).byDefault, draft);
    QCOMPARE(PrintQueue::choose(scheduler, QString(), &error), draft);
}

void tst_instance::savedChoicesAreShownAndPrinted()
{
    AttachedDialog dialog(u"plain"_s);
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPrinter(draft));
    PanelUser panel(dialog.user());
    QVERIFY(panel.openTab());
    QVERIFY(panel.isTicked(halfCutBox));
    QVERIFY(!panel.isTicked(mirrorBox));
    QVERIFY(panel.click(mirrorBox));
    QTest::qWait(0);
    QVERIFY(panel.summary().contains(u"Half Cut: Yes"_s));
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(isAtTape(job));
    QCOMPARE(mSite.choices(job), tapeWith(u"KvHalfCut=ON KvMirror=ON"_s));
    QVERIFY(mSite.isPrinted(job));
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_instance::queueItselfKeepsItsOwnChoices()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvMirror=ON\nDest tape/draft KvHalfCut=ON\n"));
    AttachedDialog dialog(tape);
    QVERIFY(dialog.openTab());
    QVERIFY(!dialog.panel().isTicked(halfCutBox));
    QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())), tapeWith(u"KvMirror=ON"_s));
}

void tst_instance::choicesWinOverTheSavedOnes()
{
    Application application(draft);
    QVERIFY(application.show() && application.openTab());
    QVERIFY(application.panel().click(halfCutBox));
    QVERIFY(application.user().print());
    const auto counts = application.countsOfChoices();
    QCOMPARE(counts.size(), 6);
    for (const int count : counts) {
        QCOMPARE(count, 1);
    }
    const int job = mSite.scheduler().jobIds().last();
    QVERIFY(isAtTape(job));
    QCOMPARE(mSite.choices(job), tapeWith(u"KvHalfCut=OFF"_s));
    QCOMPARE(application.problems(), QStringList());
}

void tst_instance::restOfTheJobIsQtsOwn()
{
    QVERIFY(mSite.saveUserOptions("Dest tape/draft KvHalfCut=ON PageSize=T24x100 number-up=2\n"));
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(draft);
    QPrintDialog bare(&printer);
    DialogDriver user(bare);
    QVERIFY(user.open() && user.print());
    const QStringList withoutPanels = withoutPanelsOptions(optionsHandedOver(printer));

    Application application(draft);
    QVERIFY(application.show() && application.user().print());
    QCOMPARE(withoutPanelsOptions(application.handedOver()), withoutPanels);
    QVERIFY(application.handedOver().contains(u"KvHalfCut"_s));
    QCOMPARE(application.dialog().printer()->printerName(), draft);
}

void tst_instance::kvprintsDialogPrints()
{
    CommandRun run(draft, {mSite.document()});
    QVERIFY(run.openTab());
    QVERIFY(run.panel().isTicked(halfCutBox));
    QVERIFY(run.panel().click(mirrorBox));
    const int job = run.print();
    QVERIFY(isAtTape(job));
    QCOMPARE(mSite.choices(job), tapeWith(u"KvHalfCut=ON KvMirror=ON"_s));
    QVERIFY(mSite.isPrinted(job));
}

void tst_instance::kvprintsRequestsWinOverTheSavedOnes()
{
    // The spelling is the PPD's, which is the queue's.
    CommandRun run(draft, {mSite.document()}, {u"kvhalfcut=off KvChainPrint=ON"_s});
    QVERIFY(run.open());
    QCOMPARE(mSite.choices(run.print()), tapeWith(u"KvChainPrint=ON"_s));
}

KV_TEST(tst_instance)
#include "tst_instance.moc"
