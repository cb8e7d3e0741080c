// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "BundleFolder.h"
#include "PanelUser.h"
#include "PrintingSite.h"
#include "dialog/PrintDialogAttachment.h"
#include "host/PanelHost.h"
#include "kvprint/PrintCommand.h"

#include <QLabel>
#include <QTest>

namespace {
const QString mirrorOn = QStringLiteral("KvMirror=ON");
const QString mirrorOff = QStringLiteral("KvMirror=OFF");
} // namespace

class tst_oddpanel : public QObject
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

private: // NOLINT(readability-redundant-access-specifiers)
    PrintingSite mSite;
};

void tst_oddpanel::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
    QString error;
    QVERIFY2(mSite.scheduler().addPrinter(QStringLiteral("bare"), QString(), &error),
             qPrintable(error));
}

void tst_oddpanel::bundleThatOffersNoTab_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QStringList>("problems");
    QTest::newRow("plug-in that cannot work here")
        << u"Unwilling"_s
        << QStringList{u"Odd.pde: the library has no class Unwilling that works on this system"_s};
    QTest::newRow("plug-in without a panel")
        << u"Panelless"_s << QStringList{u"Odd.pde: could not make its panel"_s};
    QTest::newRow("panel with an empty list of options") << u"Keyless"_s << QStringList();
    QTest::newRow("panel without a list of options") << u"Undeclaring"_s << QStringList();
}

void tst_oddpanel::bundleThatOffersNoTab()
{
    QFETCH(const QString, kind);
    QFETCH(const QStringList, problems);
    const BundleFolder folder;
    QVERIFY(folder.addOdd(QStringLiteral("Odd.pde"), kind));
    AttachedDialog dialog(QStringLiteral("tape"), {}, folder.path());
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
    const BundleFolder folder;
    QVERIFY(folder.addOdd(QStringLiteral("Odd.pde"), QStringLiteral("Plain")));
    AttachedDialog dialog(QStringLiteral("tape"), {}, folder.path());
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().showOptions());
    QVERIFY(dialog.user().showTab(QStringLiteral("Plain")));
    QCOMPARE(PanelUser(dialog.user()).summary(), QStringList{u"Kind: Plain"_s});
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.choices(job), QStringList{mirrorOn});
    const auto *view = qobject_cast<QLabel *>(dialog.user().widget(QStringLiteral("oddView")));
    QVERIFY(view);
    // Also when the choice was marked before.
    QCOMPARE(view->text(), QStringLiteral("willShow KvMirror=ON KvMirror=ON"));
}

void tst_oddpanel::panelIsToldOfARequest()
{
    const BundleFolder folder;
    QVERIFY(folder.addOdd(QStringLiteral("Odd.pde"), QStringLiteral("Unsaving")));
    AttachedDialog dialog(QStringLiteral("tape"), {mirrorOn}, folder.path());
    QCOMPARE(dialog.attachment().host()->ppd().markedChoice(u"KvMirror"_s), u"ON"_s);
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().showOptions());
    QVERIFY(dialog.user().showTab(QStringLiteral("Unsaving")));
    const auto *view = qobject_cast<QLabel *>(dialog.user().widget(QStringLiteral("oddView")));
    QVERIFY(view);
    QCOMPARE(view->text(), QStringLiteral("KvMirror=ON willShow"));
    // The panel has no control for the option.
    QCOMPARE(dialog.problems(),
             QStringList{
                 u"KvMirror=ON cannot be chosen on the paper T12x100 with the other settings"_s});
}

void tst_oddpanel::choiceThatThePrinterLacksIsReported()
{
    const BundleFolder folder;
    QVERIFY(folder.addOdd(QStringLiteral("Odd.pde"), QStringLiteral("Lying")));
    AttachedDialog dialog(QStringLiteral("tape"), {}, folder.path());
    QVERIFY(dialog.user().open());
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(dialog.problems(), QStringList({u"the printer's PPD has no choice KvMirror=MAYBE"_s,
                                             u"the printer's PPD has no choice KvNone=ON"_s}));
    QCOMPARE(mSite.choices(job), QStringList{mirrorOn});
}

void tst_oddpanel::panelThatCannotSave()
{
    const BundleFolder folder;
    QVERIFY(folder.addOdd(QStringLiteral("Odd.pde"), QStringLiteral("Unsaving")));
    AttachedDialog dialog(QStringLiteral("tape"), {}, folder.path());
    QVERIFY(dialog.user().open());
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(dialog.problems(), QStringList{u"the tape is stuck"_s});
    QCOMPARE(mSite.choices(job), QStringList{mirrorOff});
}

void tst_oddpanel::panelWithoutAView()
{
    const BundleFolder folder;
    QVERIFY(folder.addOdd(QStringLiteral("Odd.pde"), QStringLiteral("Viewless")));
    AttachedDialog dialog(QStringLiteral("tape"), {mirrorOff}, folder.path());
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().showOptions());
    for (int i = 0; i < 2; ++i) {
        QVERIFY(dialog.user().showTab(QStringLiteral("Viewless")));
        QVERIFY(dialog.user().showTab(kSummaryTab));
    }
    QCOMPARE(dialog.problems(), QStringList{u"the panel \"Viewless\" could not make its view"_s});
    QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())), QStringList{mirrorOn});
}

void tst_oddpanel::panelThatRefusesToPrint()
{
    const BundleFolder folder;
    QVERIFY(folder.addOdd(QStringLiteral("Odd.pde"), QStringLiteral("Refusing")));
    CommandLine line;
    line.printer = QStringLiteral("tape");
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

    AttachedDialog told(QStringLiteral("tape"), {}, folder.path());
    QVERIFY(told.user().open());
    QVERIFY(told.user().print());
    QCOMPARE(told.problems(), QStringList{u"tape: a panel keeps the job from being printed"_s});
}

void tst_oddpanel::refusalEndsWithTheNextAcceptance()
{
    const BundleFolder folder;
    QVERIFY(folder.addOdd(QStringLiteral("Odd.pde"), QStringLiteral("Refusing")));
    AttachedDialog dialog(QStringLiteral("tape"), {}, folder.path());
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().print());
    QVERIFY(dialog.attachment().isRefused());
    // A printer without a PPD has no panels.
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPrinter(QStringLiteral("bare")));
    QVERIFY(dialog.print(mSite.scheduler()) > 0);
    QVERIFY(!dialog.attachment().isRefused());
}

void tst_oddpanel::panelsOfTwoBundles()
{
    const BundleFolder folder;
    QVERIFY(folder.addOdd(QStringLiteral("B.pde"), QStringLiteral("Second")));
    QVERIFY(folder.addOdd(QStringLiteral("A.pde"), QStringLiteral("First")));
    AttachedDialog dialog(QStringLiteral("tape"), {}, folder.path());
    QCOMPARE(dialog.tabs().mid(2), QStringList({u"First"_s, u"Second"_s, kSummaryTab}));
    QVERIFY(dialog.user().open());
    QCOMPARE(PanelUser(dialog.user()).summary(),
             QStringList({u"Kind: First"_s, u"Kind: Second"_s}));
    QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())), QStringList{mirrorOn});
}

void tst_oddpanel::panelWithoutASummary()
{
    const BundleFolder folder;
    QVERIFY(folder.addOdd(QStringLiteral("Odd.pde"), QStringLiteral("Lying")));
    AttachedDialog dialog(QStringLiteral("tape"), {}, folder.path());
    QVERIFY(dialog.user().open());
    QCOMPARE(PanelUser(dialog.user()).summary(), QStringList());
}

KV_TEST(tst_oddpanel)
#include "tst_oddpanel.moc"
