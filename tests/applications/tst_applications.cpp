// SPDX-License-Identifier: Apache-2.0
#include "Application.h"
#include "ApplicationSession.h"
#include "DisplayServer.h"
#include "JobTicket.h"
#include "PlugInTree.h"
#include "Waiting.h"
#include "host/PrintingSite.h"
#include "support/DialogNames.h"

#include <QDir>
#include <QTest>

namespace {
const QString plugIn = QStringLiteral("libkvprintdialog.so");

QStringList librariesOfDialogs(int qt)
{
    return {QStringLiteral("libKVMQRVOptions-qt%1.so").arg(qt),
            QStringLiteral("libkvprintdialog-qt%1.so").arg(qt), plugIn};
}
} // namespace

/// What users see and get in applications that know nothing of the extension.
class tst_applications : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void printsWhatThePanelShows_data() { everyApplication(); }
    void printsWhatThePanelShows();
    void nextDialogStartsFromTheLastChoices_data() { everyApplication(); }
    void nextDialogStartsFromTheLastChoices();
    void cancelSendsNothing_data() { everyApplication(); }
    void cancelSendsNothing();
    void followsPrinterAndPaper_data() { everyApplication(); }
    void followsPrinterAndPaper();
    void withoutADialogOnlyThePlugInIsThere_data() { everyApplication(); }
    void withoutADialogOnlyThePlugInIsThere();
    void nothingIsLoadedFromWhereItWorks_data() { everyApplication(); }
    void nothingIsLoadedFromWhereItWorks();
    void switchedOff_data() { everyApplication(); }
    void switchedOff();

private: // NOLINT(readability-redundant-access-specifiers)
    void everyApplication() const;
    const Application &application() const;
    QList<int> newJobs() const;
    bool isPrinted(const QString &printer, const QStringList &choices);

    PrintingSite mSite;
    DisplayServer mDisplay;
    std::vector<Application> mApplications = Application::all();
    qsizetype mFormerJobs = 0;
};

void tst_applications::initTestCase()
{
    QCOMPARE(Application::whatIsMissing(mApplications), QString());
    QCOMPARE(mSite.open(), QString());
    QCOMPARE(mDisplay.open(), QString());
}

void tst_applications::everyApplication() const
{
    QTest::addColumn<int>("row");
    for (size_t i = 0; i < mApplications.size(); ++i) {
        QTest::newRow(mApplications[i].name) << int(i);
    }
}

const Application &tst_applications::application() const
{
    const auto *row = static_cast<const int *>(QTest::qData("row", qMetaTypeId<int>()));
    return mApplications[size_t(*row)];
}

QList<int> tst_applications::newJobs() const
{
    return mSite.scheduler().jobIds().mid(mFormerJobs);
}

/// Whether one job more has come, to that printer, with exactly these options of ours, and has come
/// out of the printer.
bool tst_applications::isPrinted(const QString &printer, const QStringList &choices)
{
    waitFor([this] { return !newJobs().isEmpty(); });
    const QList<int> jobs = newJobs();
    mFormerJobs += jobs.size();
    if (jobs.size() != 1 || !mSite.scheduler().waitForJob(jobs.first(), kPatienceMs)) {
        qWarning("%d jobs", int(jobs.size()));
        return false;
    }
    const QString uri = mSite.job(jobs.first()).value(QStringLiteral("job-printer-uri"));
    const QStringList sent = JobTicket::attributes(jobs.first(), QStringLiteral("Kv"));
    const bool isSame = uri.endsWith(QLatin1Char('/') + printer) && sent == choices;
    if (!isSame) {
        qWarning("%s: %s", qPrintable(uri), qPrintable(sent.join(QLatin1Char(' '))));
    }
    return isSame;
}

void tst_applications::printsWhatThePanelShows()
{
    ApplicationSession session(mDisplay, application());
    RemotePrintDialog &dialog = session.dialog();
    QVERIFY(session.openPanelAt(QStringLiteral("tape")));
    QCOMPARE(dialog.shownChoices(), words("KvAutoTapeCut=ON KvChainPrint=OFF KvHalfCut=OFF "
                                          "KvMirror=OFF KvRemoveBlkSpace=OFF KvSpecialTape=OFF"));
    QVERIFY(dialog.tick(halfCutBox));
    QCOMPARE(dialog.preset(), QStringLiteral("Auto cut and half cut"));
    QVERIFY(dialog.pickPreset(QStringLiteral("Half cut and chain printing")));
    QVERIFY(dialog.tick(mirrorBox));
    const QStringList shown = dialog.shownChoices();
    QCOMPARE(shown, words("KvAutoTapeCut=OFF KvChainPrint=ON KvHalfCut=ON KvMirror=ON "
                          "KvRemoveBlkSpace=OFF KvSpecialTape=OFF"));
    const QString pictures = qEnvironmentVariable("KV_SCREENSHOTS");
    if (!pictures.isEmpty()) {
        const QString name = QLatin1String(application().name) + QStringLiteral(".png");
        QVERIFY(dialog.grab(QDir(pictures).filePath(name)));
    }
    QVERIFY(dialog.summary().contains(QStringLiteral("Chain Printing: Yes")));
    QVERIFY(dialog.print());
    QVERIFY(!application().prints || isPrinted(QStringLiteral("tape"), shown));
    const QStringList mapped = session.run().ownLibraries();
    for (const QString &library : librariesOfDialogs(application().qt)) {
        QVERIFY2(mapped.contains(library), qPrintable(library));
    }
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
    QCOMPARE(newJobs(), QList<int>());
}

void tst_applications::nextDialogStartsFromTheLastChoices()
{
    ApplicationSession session(mDisplay, application());
    RemotePrintDialog &dialog = session.dialog();
    const QString follow = QStringLiteral("follow");
    QVERIFY(session.openPanelAt(follow));
    QVERIFY(dialog.tick(mirrorBox));
    QVERIFY(dialog.typeCount(QStringLiteral("3")));
    const QStringList first = dialog.shownChoices();
    QCOMPARE(first,
             words("KvAutoTapeCut=ON KvChainPrint=OFF KvCutLabel=3 KvHalfCut=OFF KvMirror=ON"));
    QVERIFY(dialog.print());
    QVERIFY(!application().prints || isPrinted(follow, first));

    QVERIFY(session.openPanelAt(QStringLiteral("tape")));
    QVERIFY(dialog.shownChoices().contains(QStringLiteral("KvHalfCut=OFF")));
    QVERIFY(dialog.tick(halfCutBox));
    QVERIFY(dialog.cancel());

    QVERIFY(session.openPanelAt(follow));
    QCOMPARE(dialog.shownChoices(), first);
    QVERIFY(dialog.tick(halfCutBox));
    const QStringList second = dialog.shownChoices();
    QCOMPARE(second,
             words("KvAutoTapeCut=ON KvChainPrint=OFF KvCutLabel=3 KvHalfCut=ON KvMirror=ON"));
    QVERIFY(dialog.print());
    QVERIFY(!application().prints || isPrinted(follow, second));
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
    QCOMPARE(newJobs(), QList<int>());
}

void tst_applications::cancelSendsNothing()
{
    ApplicationSession session(mDisplay, application());
    RemotePrintDialog &dialog = session.dialog();
    QVERIFY(session.openPanelAt(QStringLiteral("tape")));
    QVERIFY(dialog.tick(halfCutBox));
    QVERIFY(dialog.cancel());
    QVERIFY(session.openPanelAt(QStringLiteral("tape")));
    QVERIFY(dialog.shownChoices().contains(QStringLiteral("KvHalfCut=OFF")));
    QVERIFY(dialog.cancel());
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
    QCOMPARE(newJobs(), QList<int>());
}

void tst_applications::followsPrinterAndPaper()
{
    ApplicationSession session(mDisplay, application());
    RemotePrintDialog &dialog = session.dialog();
    QVERIFY(session.openPanelAt(QStringLiteral("tape")));
    QVERIFY(dialog.isEnabled(halfCutBox));
    QVERIFY(dialog.pickPaper(QStringLiteral("Flag 21 mm x 45 mm")));
    QVERIFY(!dialog.isEnabled(halfCutBox));
    QVERIFY(dialog.pickPaper(QStringLiteral("Tape 12 mm x 100 mm")));
    QVERIFY(dialog.isEnabled(halfCutBox));

    QVERIFY(dialog.pickPrinter(QStringLiteral("plain")));
    const QStringList tabs = dialog.tabs();
    QVERIFY(!tabs.isEmpty() && !tabs.contains(kPanelTab) && !tabs.contains(kSummaryTab));
    QCOMPARE(dialog.shownChoices(), QStringList());

    QVERIFY(dialog.pickPrinter(QStringLiteral("mark")));
    QCOMPARE(dialog.tabs(), tabs + QStringList({kPanelTab, kSummaryTab}));
    QVERIFY(dialog.openPanel());
    const QStringList shown = dialog.shownChoices();
    QCOMPARE(shown, words("KvAutoTapeCut=OFF KvChainPrint=OFF KvCutMark=OFF KvMirror=OFF"));
    QVERIFY(dialog.print());
    QVERIFY(!application().prints || isPrinted(QStringLiteral("mark"), shown));

    QVERIFY(session.openAt(QStringLiteral("plain")));
    QCOMPARE(dialog.tabs(), tabs);
    QVERIFY(dialog.print());
    QVERIFY(!application().prints || isPrinted(QStringLiteral("plain"), {}));
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
    QCOMPARE(newJobs(), QList<int>());
}

void tst_applications::withoutADialogOnlyThePlugInIsThere()
{
    ApplicationSession session(mDisplay, application());
    QVERIFY(session.dialog().awaitApplication());
    QCOMPARE(session.run().ownLibraries(), QStringList{plugIn});
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
}

void tst_applications::nothingIsLoadedFromWhereItWorks()
{
    ApplicationSession session(mDisplay, application());
    RemotePrintDialog &dialog = session.dialog();
    // The current folder, and the document's.
    QVERIFY(PlugInTree::addDecoys(session.run().home()));
    QVERIFY(session.openPanelAt(QStringLiteral("tape")));
    QVERIFY(session.run().ownLibraries().contains(librariesOfDialogs(application().qt).first()));
    QCOMPARE(session.run().filesMappedFrom(session.run().home()), QStringList());
    QVERIFY(dialog.cancel());
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
}

void tst_applications::switchedOff()
{
    ApplicationRun::Setting off;
    off.variables.append(QStringLiteral("KVPRINT_DIALOG=off"));
    ApplicationSession session(mDisplay, application(), off);
    RemotePrintDialog &dialog = session.dialog();
    QVERIFY(session.openAt(QStringLiteral("tape")));
    const QStringList tabs = dialog.tabs();
    QVERIFY(tabs.contains(QStringLiteral("Copies")));
    QVERIFY(!tabs.contains(kPanelTab) && !tabs.contains(kSummaryTab));
    QCOMPARE(session.run().ownLibraries(), QStringList{plugIn});
    QVERIFY(dialog.print());
    QVERIFY(!application().prints || isPrinted(QStringLiteral("tape"), {}));
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
}

KV_CORE_TEST(tst_applications)
#include "tst_applications.moc"
