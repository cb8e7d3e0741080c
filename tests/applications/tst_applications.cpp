// SPDX-License-Identifier: Apache-2.0
#include "ApplicationSession.h"
#include "ApplicationTest.h"
#include "JobTicket.h"
#include "PlugInTree.h"
#include "Waiting.h"
#include "host/PrintingSite.h"
#include "support/DialogNames.h"

#include <QDir>
#include <QTest>

namespace {
const QString plugIn = u"libkvprintdialog.so"_s;

QStringList librariesOfDialogs(int qt)
{
    return {u"libKVMQRVOptions-qt%1.so"_s.arg(qt), u"libkvprintdialog-qt%1.so"_s.arg(qt), plugIn};
}
} // namespace

/// What users see and get in applications that know nothing of the extension.
class tst_applications : public ApplicationTest
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
    QList<int> newJobs() const;
    bool isPrinted(const QString &printer, const QStringList &choices);

    qsizetype mFormerJobs = 0;
    PrintingSite mSite;
};

void tst_applications::initTestCase()
{
    ApplicationTest::initTestCase();
    QCOMPARE(mSite.open(), QString());
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
    if (jobs.size() != 1 || !mSite.isPrinted(jobs.first())) {
        qWarning("%d jobs", int(jobs.size()));
        return false;
    }
    const QString uri = mSite.job(jobs.first()).value(u"job-printer-uri"_s);
    const QStringList sent = JobTicket::attributes(jobs.first(), u"Kv"_s);
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
    QVERIFY(session.openPanelAt(u"tape"_s));
    QCOMPARE(dialog.shownChoices(), words("KvAutoTapeCut=ON KvChainPrint=OFF KvHalfCut=OFF "
                                          "KvMirror=OFF KvRemoveBlkSpace=OFF KvSpecialTape=OFF"));
    QVERIFY(dialog.tick(halfCutBox));
    QCOMPARE(dialog.preset(), u"Auto cut and half cut"_s);
    QVERIFY(dialog.pickPreset(u"Half cut and chain printing"_s));
    QVERIFY(dialog.tick(mirrorBox));
    const QStringList shown = dialog.shownChoices();
    QCOMPARE(shown, words("KvAutoTapeCut=OFF KvChainPrint=ON KvHalfCut=ON KvMirror=ON "
                          "KvRemoveBlkSpace=OFF KvSpecialTape=OFF"));
    const QString pictures = qEnvironmentVariable("KV_SCREENSHOTS");
    if (!pictures.isEmpty()) {
        const QString name = QLatin1String(application().name) + u".png"_s;
        QVERIFY(dialog.grab(QDir(pictures).filePath(name)));
    }
    QVERIFY(dialog.summary().contains(u"Chain Printing: Yes"_s));
    QVERIFY(dialog.print());
    QVERIFY(!application().prints || isPrinted(u"tape"_s, shown));
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
    const QString follow = u"follow"_s;
    QVERIFY(session.openPanelAt(follow));
    QVERIFY(dialog.tick(mirrorBox));
    QVERIFY(dialog.typeCount(u"3"_s));
    const QStringList first = dialog.shownChoices();
    QCOMPARE(first,
             words("KvAutoTapeCut=ON KvChainPrint=OFF KvCutLabel=3 KvHalfCut=OFF KvMirror=ON"));
    QVERIFY(dialog.print());
    QVERIFY(!application().prints || isPrinted(follow, first));

    QVERIFY(session.openPanelAt(u"tape"_s));
    QVERIFY(dialog.shownChoices().contains(u"KvHalfCut=OFF"_s));
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
    QVERIFY(session.openPanelAt(u"tape"_s));
    QVERIFY(dialog.tick(halfCutBox));
    QVERIFY(dialog.cancel());
    QVERIFY(session.openPanelAt(u"tape"_s));
    QVERIFY(dialog.shownChoices().contains(u"KvHalfCut=OFF"_s));
    QVERIFY(dialog.cancel());
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
    QCOMPARE(newJobs(), QList<int>());
}

void tst_applications::followsPrinterAndPaper()
{
    ApplicationSession session(mDisplay, application());
    RemotePrintDialog &dialog = session.dialog();
    QVERIFY(session.openPanelAt(u"tape"_s));
    QVERIFY(dialog.isEnabled(halfCutBox));
    QVERIFY(dialog.pickPaper(u"Flag 21 mm x 45 mm"_s));
    QVERIFY(!dialog.isEnabled(halfCutBox));
    QVERIFY(dialog.pickPaper(u"Tape 12 mm x 100 mm"_s));
    QVERIFY(dialog.isEnabled(halfCutBox));

    QVERIFY(dialog.pickPrinter(u"plain"_s));
    const QStringList tabs = dialog.tabs();
    QVERIFY(!tabs.isEmpty() && !tabs.contains(kPanelTab) && !tabs.contains(kSummaryTab));
    QCOMPARE(dialog.shownChoices(), QStringList());

    QVERIFY(dialog.pickPrinter(u"mark"_s));
    QCOMPARE(dialog.tabs(), tabs + QStringList({kPanelTab, kSummaryTab}));
    QVERIFY(dialog.openPanel());
    const QStringList shown = dialog.shownChoices();
    QCOMPARE(shown, words("KvAutoTapeCut=OFF KvChainPrint=OFF KvCutMark=OFF KvMirror=OFF"));
    QVERIFY(dialog.print());
    QVERIFY(!application().prints || isPrinted(u"mark"_s, shown));

    QVERIFY(session.openAt(u"plain"_s));
    QCOMPARE(dialog.tabs(), tabs);
    QVERIFY(dialog.print());
    QVERIFY(!application().prints || isPrinted(u"plain"_s, {}));
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
    QVERIFY(session.openPanelAt(u"tape"_s));
    QVERIFY(session.run().ownLibraries().contains(librariesOfDialogs(application().qt).first()));
    QCOMPARE(session.run().filesMappedFrom(session.run().home()), QStringList());
    QVERIFY(dialog.cancel());
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
}

void tst_applications::switchedOff()
{
    ApplicationRun::Setting off;
    off.variables.append(u"KVPRINT_DIALOG=off"_s);
    ApplicationSession session(mDisplay, application(), off);
    RemotePrintDialog &dialog = session.dialog();
    QVERIFY(session.openAt(u"tape"_s));
    const QStringList tabs = dialog.tabs();
    QVERIFY(tabs.contains(u"Copies"_s));
    QVERIFY(!tabs.contains(kPanelTab) && !tabs.contains(kSummaryTab));
    QCOMPARE(session.run().ownLibraries(), QStringList{plugIn});
    QVERIFY(dialog.print());
    QVERIFY(!application().prints || isPrinted(u"tape"_s, {}));
    QCOMPARE(session.end(), QString());
    QCOMPARE(session.run().ownErrors(), QStringList());
}

KV_CORE_TEST(tst_applications)
#include "tst_applications.moc"
