// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "BundleFolder.h"
#include "PanelUser.h"
#include "PrintingTest.h"
#include "dialog/PrintDialogAttachment.h"
#include "host/PanelHost.h"
#include "kvprint/PrintCommand.h"

#include <QLabel>
#include <QTest>

namespace {
const QString mirrorOn = u"KvMirror=ON"_s;
const QString mirrorOff = u"KvMirror=OFF"_s;

/// A folder with one bundle, whose panel is odd in the way of its kind.
struct OddBundle : BundleFolder
{
    explicit OddBundle(const QString &kind) { addOdd(u"Odd.pde"_s, kind); }
};

/// A dialog of the tape printer with that panel alone.
struct OddDialog : private OddBundle, AttachedDialog
{
    explicit OddDialog(const QString &kind, const QStringList &options = {})
        : OddBundle(kind)
        , AttachedDialog(tape, options, OddBundle::path())
    {
    }
};
} // namespace

class tst_oddpanel : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void bundleThatOffersNoTab_data();
    void bundleThatOffersNoTab();
    void panelIsToldOfEveryChoice();
    void panelIsToldOfARequest();
    void choiceThatThePrinterLacksIsReported();
    void panelThatCannotSave();
    void panelWithoutAView();
    void panelThatRefusesToPrint();
    void refusalEndsWithTheNextAcceptance();
    void panelsOfTwoBundles();
    void panelWithoutASummary();
};

void tst_oddpanel::initTestCase()
{
    PrintingTest::initTestCase();
    QVERIFY(addPrinter(u"bare"_s, QString()));
}

void tst_oddpanel::bundleThatOffersNoTab_data()
{
    const TestTable<QString, QStringList> table("kind", "problems");
    table.add("plug-in that cannot work here", u"Unwilling"_s,
              {u"Odd.pde: the library has no class Unwilling that works on this system"_s});
    table.add("plug-in without a panel", u"Panelless"_s, {u"Odd.pde: could not make its panel"_s});
    table.add("panel with an empty list of options", u"Keyless"_s, {});
    table.add("panel without a list of options", u"Undeclaring"_s, {});
}

void tst_oddpanel::bundleThatOffersNoTab()
{
    QFETCH(const QString, kind);
    QFETCH(const QStringList, problems);
    OddDialog dialog(kind);
    QVERIFY(dialog.user().open());
    QVERIFY(!dialog.tabs().contains(kind));
    QVERIFY(!dialog.tabs().contains(kSummaryTab));
    QCOMPARE(dialog.problems(), problems);
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(job > 0);
    QCOMPARE(mSite.choices(job), QStringList());
    QCOMPARE(dialog.problems(), problems);
}

void tst_oddpanel::panelIsToldOfEveryChoice()
{
    OddDialog dialog(u"Plain"_s);
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().showOptions());
    QVERIFY(dialog.user().showTab(u"Plain"_s));
    QCOMPARE(dialog.panel().summary(), QStringList{u"Kind: Plain"_s});
    QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())), QStringList{mirrorOn});
    const auto *view = qobject_cast<QLabel *>(dialog.user().widget(u"oddView"_s));
    QVERIFY(view);
    // Also when the choice was marked before.
    QCOMPARE(view->text(), u"willShow KvMirror=ON KvMirror=ON"_s);
}

void tst_oddpanel::panelIsToldOfARequest()
{
    OddDialog dialog(u"Unsaving"_s, {mirrorOn});
    QCOMPARE(dialog.attachment().host()->ppd().markedChoice(u"KvMirror"_s), u"ON"_s);
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().showOptions());
    QVERIFY(dialog.user().showTab(u"Unsaving"_s));
    const auto *view = qobject_cast<QLabel *>(dialog.user().widget(u"oddView"_s));
    QVERIFY(view);
    QCOMPARE(view->text(), u"KvMirror=ON willShow"_s);
    // The panel has no control for the option: what is marked is the choice.
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_oddpanel::choiceThatThePrinterLacksIsReported()
{
    OddDialog dialog(u"Lying"_s);
    QVERIFY(dialog.user().open());
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(dialog.problems(), QStringList({u"the printer's PPD has no choice KvMirror=MAYBE"_s,
                                             u"the printer's PPD has no choice KvNone=ON"_s}));
    QCOMPARE(mSite.choices(job), QStringList{mirrorOn});
}

void tst_oddpanel::panelThatCannotSave()
{
    OddDialog dialog(u"Unsaving"_s);
    QVERIFY(dialog.user().open());
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(dialog.problems(), QStringList{u"the tape is stuck"_s});
    QCOMPARE(mSite.choices(job), QStringList{mirrorOff});
}

void tst_oddpanel::panelWithoutAView()
{
    OddDialog dialog(u"Viewless"_s, {mirrorOff});
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().showOptions());
    for (int i = 0; i < 2; ++i) {
        QVERIFY(dialog.user().showTab(u"Viewless"_s));
        QVERIFY(dialog.user().showTab(kSummaryTab));
    }
    QCOMPARE(dialog.problems(), QStringList{u"the panel \"Viewless\" could not make its view"_s});
    QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())), QStringList{mirrorOn});
}

void tst_oddpanel::panelThatRefusesToPrint()
{
    const BundleFolder folder;
    QVERIFY(folder.addOdd(u"Odd.pde"_s, u"Refusing"_s));
    CommandLine line;
    line.printer = u"tape"_s;
    line.files = QStringList{mSite.document()};
    PrintCommand command(line, folder.path());
    ExitStatus status = ExitStatus::Printed;
    QPrintDialog *dialog = command.prepare(&status);
    QVERIFY(dialog);
    DialogDriver user(*dialog);
    QVERIFY(user.open());
    const QList<int> before = mSite.scheduler().jobIds();
    QVERIFY(user.print());
    QVERIFY(command.attachment()->isRefused());
    QCOMPARE(command.print(), ExitStatus::NotPrinted);
    QCOMPARE(command.jobId(), 0);
    QCOMPARE(mSite.scheduler().jobIds(), before);

    AttachedDialog told(u"tape"_s, {}, folder.path());
    QVERIFY(told.user().open());
    QVERIFY(told.user().print());
    QCOMPARE(told.problems(), QStringList{u"tape: a panel keeps the job from being printed"_s});
}

void tst_oddpanel::refusalEndsWithTheNextAcceptance()
{
    OddDialog dialog(u"Refusing"_s);
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().print());
    QVERIFY(dialog.attachment().isRefused());
    // A printer without a PPD has no panels.
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPrinter(u"bare"_s));
    QVERIFY(dialog.print(mSite.scheduler()) > 0);
    QVERIFY(!dialog.attachment().isRefused());
}

void tst_oddpanel::panelsOfTwoBundles()
{
    const BundleFolder folder;
    QVERIFY(folder.addOdd(u"B.pde"_s, u"Second"_s));
    QVERIFY(folder.addOdd(u"A.pde"_s, u"First"_s));
    AttachedDialog dialog(u"tape"_s, {}, folder.path());
    QCOMPARE(dialog.tabs().mid(2), QStringList({u"First"_s, u"Second"_s, kSummaryTab}));
    QVERIFY(dialog.user().open());
    QCOMPARE(dialog.panel().summary(), QStringList({u"Kind: First"_s, u"Kind: Second"_s}));
    QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())), QStringList{mirrorOn});
}

void tst_oddpanel::panelWithoutASummary()
{
    OddDialog dialog(u"Lying"_s);
    QVERIFY(dialog.user().open());
    QCOMPARE(dialog.panel().summary(), QStringList());
}

KV_TEST(tst_oddpanel)
#include "tst_oddpanel.moc"
