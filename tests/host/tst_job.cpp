// SPDX-License-Identifier: Apache-2.0
#include "CommandRun.h"
#include "PanelUser.h"
#include "PrintingTest.h"
#include "SampleChoices.h"

#include <QApplication>
#include <QCheckBox>
#include <QPrintDialog>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

namespace {
/// Does something with the print dialog that a run opens by itself.
template <typename Action>
void whenDialogOpens(Action action)
{
    QTimer::singleShot(0, qApp, [action] {
        auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        DialogDriver user(*dialog);
        const bool done = action(user);
        if (!done) {
            dialog->reject();
        }
        QVERIFY(done);
    });
}
} // namespace

class tst_job : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void cancelSendsNoJob_data();
    void cancelSendsNoJob();
    void acceptedRunSendsOneJob();
    void requestedChoiceReachesTheJob_data();
    void requestedChoiceReachesTheJob();
    void requestedCopies();
    void requestedOptionsOfThePrinterStay();
    void copiesOfTheDialog();
    void severalFilesAreOneJob();
    void paperOfTheDialog_data();
    void paperOfTheDialog();
    void requestedPaper_data();
    void requestedPaper();
    void paperOfThePropertiesDialog_data();
    void paperOfThePropertiesDialog();
    void pageRangeOfTheDialog_data();
    void pageRangeOfTheDialog();
    void requestedPageRange();
    void reversedPages();
    void jobIsCompleted();

private: // NOLINT(readability-redundant-access-specifiers)
    QStringList documents() const { return {mSite.document()}; }
};

void tst_job::cancelSendsNoJob_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<bool>("byKey");
    for (const QString &printer : PrintingSite::printers()) {
        QTest::addRow("Cancel button, %s", qPrintable(printer)) << printer << false;
        QTest::addRow("Escape key, %s", qPrintable(printer)) << printer << true;
    }
}

void tst_job::cancelSendsNoJob()
{
    QFETCH(const QString, printer);
    QFETCH(const bool, byKey);
    const QList<int> before = mSite.scheduler().jobIds();
    CommandRun run(printer, documents());
    whenDialogOpens([printer, byKey](DialogDriver &user) {
        PanelUser panel(user);
        const bool hasPanel = printer != QLatin1String("plain");
        if (hasPanel && (!panel.openTab() || !panel.click(u"mMirrorPrintChkBx"_s))) {
            return false;
        }
        if (byKey) {
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
            return true;
        }
        return user.cancel();
    });
    QCOMPARE(run.command().run(), ExitStatus::Cancelled);
    QCOMPARE(run.command().jobId(), 0);
    QCOMPARE(mSite.scheduler().jobIds(), before);
}

void tst_job::acceptedRunSendsOneJob()
{
    const qsizetype before = mSite.scheduler().jobIds().size();
    CommandRun run(u"tape"_s, documents());
    whenDialogOpens([](DialogDriver &user) {
        PanelUser panel(user);
        return panel.openTab() && panel.click(u"mHalfCutChkBx"_s) && user.print();
    });
    QCOMPARE(run.command().run(), ExitStatus::Printed);
    const QList<int> jobs = mSite.scheduler().jobIds();
    QCOMPARE(jobs.size(), before + 1);
    QCOMPARE(run.command().jobId(), jobs.last());
    QCOMPARE(mSite.choices(jobs.last()),
             SampleChoices::replaced(SampleChoices::defaults(u"tape"_s), u"KvHalfCut=ON"_s));
}

void tst_job::requestedChoiceReachesTheJob_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QString>("request");
    QTest::addColumn<QString>("unopened");
    QTest::addColumn<QString>("opened");
    const auto add = [](const char *printer, const char *request, const char *unopened,
                        const char *opened) {
        QTest::addRow("%s %s", printer, request)
            << QString::fromLatin1(printer) << QString::fromLatin1(request)
            << QString::fromLatin1(unopened) << QString::fromLatin1(opened);
    };
    for (const char *printer : {"tape", "follow", "mark", "all", "label"}) {
        add(printer, "KvMirror=ON", "KvMirror=ON", "KvMirror=ON");
    }
    add("tape", "KvAutoTapeCut=OFF", "KvAutoTapeCut=OFF", "KvAutoTapeCut=OFF");
    add("tape", "KvHalfCut=ON KvChainPrint=ON", "KvHalfCut=ON KvChainPrint=ON",
        "KvHalfCut=ON KvChainPrint=ON");
    add("tape", "KvSpecialTape=ON", "KvSpecialTape=ON", "KvSpecialTape=ON KvAutoTapeCut=OFF");
    add("follow", "KvCutLabel=12", "KvCutLabel=12", "KvCutLabel=12");
    add("follow", "KvAutoTapeCut=ON", "KvAutoTapeCut=ON", "KvAutoTapeCut=ON");
    add("follow", "KvAutoTapeCut=OFF", "KvAutoTapeCut=OFF", "KvAutoTapeCut=OFF");
    add("mark", "KvCutMark=ON", "KvCutMark=ON", "KvCutMark=ON");
    add("all", "KvRemoveBlkSpace=ON KvCutLabel=99", "KvRemoveBlkSpace=ON KvCutLabel=99",
        "KvRemoveBlkSpace=ON KvCutLabel=99");
    add("label", "KvCutAtEnd=ON KvCutLabel=2", "KvCutAtEnd=ON KvCutLabel=2",
        "KvCutAtEnd=ON KvCutLabel=2");
    add("plain", "KvDensity=Dark", "KvDensity=Dark", "KvDensity=Dark");
}

void tst_job::requestedChoiceReachesTheJob()
{
    QFETCH(const QString, printer);
    QFETCH(const QString, request);
    QFETCH(const QString, unopened);
    QFETCH(const QString, opened);
    CommandRun unseen(printer, documents(), {request});
    QVERIFY(unseen.open());
    QCOMPARE(mSite.choices(unseen.print()),
             SampleChoices::replaced(SampleChoices::defaults(printer), unopened));

    CommandRun seen(printer, documents(), {request});
    QCOMPARE(seen.openTab(), printer != u"plain");
    QCOMPARE(mSite.choices(seen.print()),
             SampleChoices::replaced(SampleChoices::seen(printer), opened));
}

void tst_job::requestedCopies()
{
    CommandRun run(u"tape"_s, documents(), {}, 3);
    QVERIFY(run.open());
    const int job = run.print();
    QCOMPARE(mSite.job(job).value(u"copies"_s), u"3"_s);

    CommandRun byOption(u"tape"_s, documents(), {u"copies=4"_s});
    QVERIFY(byOption.open());
    QCOMPARE(qobject_cast<QSpinBox *>(byOption.user().widget(u"copies"_s))->value(), 4);
    const int byOptionJob = byOption.print();
    QCOMPARE(mSite.job(byOptionJob).value(u"copies"_s), u"4"_s);

    CommandRun once(u"tape"_s, documents());
    QVERIFY(once.open());
    const int other = once.print();
    QVERIFY(other > byOptionJob);
    QCOMPARE(mSite.job(other).value(u"copies"_s, u"1"_s), u"1"_s);
}

void tst_job::requestedOptionsOfThePrinterStay()
{
    CommandRun run(u"plain"_s, documents(),
                   {u"sides=two-sided-long-edge orientation-requested=4"_s, u"job-priority=70"_s,
                    u"x-note=kept"_s});
    QVERIFY(run.open());
    const auto job = mSite.job(run.print());
    QCOMPARE(job.value(u"sides"_s), u"two-sided-long-edge"_s);
    QCOMPARE(job.value(u"orientation-requested"_s), u"landscape"_s);
    QCOMPARE(job.value(u"x-note"_s), u"kept"_s);
    QCOMPARE(job.value(u"job-priority"_s), u"70"_s);
}

void tst_job::copiesOfTheDialog()
{
    CommandRun run(u"plain"_s, documents(), {}, 3);
    QVERIFY(run.open());
    auto *copies = qobject_cast<QSpinBox *>(run.user().widget(u"copies"_s));
    QVERIFY(copies);
    QCOMPARE(copies->value(), 3);
    copies->setValue(5);
    const int job = run.print();
    QCOMPARE(mSite.job(job).value(u"copies"_s), u"5"_s);
}

void tst_job::severalFilesAreOneJob()
{
    const qsizetype before = mSite.scheduler().jobIds().size();
    CommandRun run(u"tape"_s, {mSite.document(u"first.txt"_s), mSite.document(u"second.txt"_s),
                               mSite.document(u"third.txt"_s)});
    QVERIFY(run.open());
    const int job = run.print();
    QCOMPARE(mSite.scheduler().jobIds().size(), before + 1);
    const auto attributes = mSite.job(job);
    QCOMPARE(attributes.value(u"number-of-documents"_s), u"3"_s);
    QCOMPARE(attributes.value(u"job-name"_s), u"first.txt"_s);
    QCOMPARE(mSite.choices(job), SampleChoices::defaults(u"tape"_s));
}

void tst_job::paperOfTheDialog_data()
{
    const TestTable<QString, QString> table("printer", "media");
    table.add("tape", u"tape"_s, u"T12x100"_s);
    table.add("label", u"label"_s, u"62x29"_s);
    table.add("plain", u"plain"_s, u"62x29"_s);
}

void tst_job::paperOfTheDialog()
{
    QFETCH(const QString, printer);
    QFETCH(const QString, media);
    CommandRun run(printer, documents());
    QVERIFY(run.open());
    const int job = run.print();
    QCOMPARE(mSite.job(job).value(u"media"_s), media);
}

void tst_job::requestedPaper_data()
{
    const TestTable<QString, QString> table("option", "media");
    table.add("media", u"media=T24x100"_s, u"T24x100"_s);
    table.add("PageSize", u"PageSize=HS12x100"_s, u"HS12x100"_s);
    table.add("custom", u"media=Custom.20x50mm"_s, u"Custom.20x50mm"_s);
}

void tst_job::requestedPaper()
{
    QFETCH(const QString, option);
    QFETCH(const QString, media);
    CommandRun run(u"tape"_s, documents(), {option});
    QVERIFY(run.open());
    const auto attributes = mSite.job(run.print());
    QCOMPARE(attributes.value(u"media"_s), media);
    QVERIFY(!attributes.contains(u"PageSize"_s));
}

void tst_job::paperOfThePropertiesDialog_data()
{
    const TestTable<bool, QString> table("accept", "media");
    table.add("accepted", true, u"T18x100"_s);
    table.add("cancelled", false, u"T12x100"_s);
}

void tst_job::paperOfThePropertiesDialog()
{
    QFETCH(const bool, accept);
    QFETCH(const QString, media);
    CommandRun run(u"tape"_s, documents());
    QVERIFY(run.open());
    QVERIFY(run.user().pickPaper(u"T18x100"_s, accept));
    const auto attributes = mSite.job(run.print());
    QCOMPARE(attributes.value(u"media"_s), media);
}

void tst_job::pageRangeOfTheDialog_data()
{
    const TestTable<QStringList> table("options");
    table.add("nothing requested", {});
    table.add("other pages requested", {u"page-ranges=7-9"_s});
}

void tst_job::pageRangeOfTheDialog()
{
    QFETCH(const QStringList, options);
    CommandRun run(u"tape"_s, documents(), options);
    QVERIFY(run.open());
    auto *range = qobject_cast<QRadioButton *>(run.user().widget(u"printRange"_s));
    auto *from = qobject_cast<QSpinBox *>(run.user().widget(u"from"_s));
    auto *to = qobject_cast<QSpinBox *>(run.user().widget(u"to"_s));
    QVERIFY(range && from && to);
    range->click();
    to->setValue(4);
    from->setValue(2);
    const auto attributes = mSite.job(run.print());
    QCOMPARE(attributes.value(u"page-ranges"_s), u"2-4"_s);
}

void tst_job::requestedPageRange()
{
    CommandRun run(u"tape"_s, documents(), {u"page-ranges=2-3"_s});
    QVERIFY(run.open());
    const auto attributes = mSite.job(run.print());
    QCOMPARE(attributes.value(u"page-ranges"_s), u"2-3"_s);
}

void tst_job::reversedPages()
{
    CommandRun run(u"tape"_s, documents());
    QVERIFY(run.open());
    auto *reverse = qobject_cast<QCheckBox *>(run.user().widget(u"reverse"_s));
    QVERIFY(reverse);
    reverse->click();
    const auto attributes = mSite.job(run.print());
    QCOMPARE(attributes.value(u"outputorder"_s), u"reverse"_s);
}

void tst_job::jobIsCompleted()
{
    CommandRun run(u"tape"_s, documents());
    QVERIFY(run.openTab());
    QVERIFY(mSite.isPrinted(run.print()));
    QVERIFY(QFileInfo(mSite.scheduler().outputPath(u"tape"_s)).size() > 0);
}

KV_TEST(tst_job)
#include "tst_job.moc"
