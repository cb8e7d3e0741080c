// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "DriverlessPrinter.h"
#include "PrintingTest.h"
#include "ProgramRun.h"

#include <QTest>

namespace {
const QString queue = u"driverless"_s;
const QString everyBox = u"mCutEveryChkBx"_s;
const QString endBox = u"mCutAndEndChkBx"_s;

/// IPP's values of "finishings".
constexpr int noFinishing = 3;
constexpr int trimAfterPages = 60;
constexpr int trimAfterJob = 63;
} // namespace

/// A printer without a driver: what is chosen in the panel is asked from the printer itself.
class tst_driverless : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void printerIsAskedForWhatIsChosen_data();
    void printerIsAskedForWhatIsChosen();
    void printerIsListed();
    void printerIsChecked();

private: // NOLINT(readability-redundant-access-specifiers)
    DriverlessPrinter mPrinter;
};

void tst_driverless::initTestCase()
{
    PrintingTest::initTestCase();
    QCOMPARE(mPrinter.open(queue), QString());
}

void tst_driverless::printerIsAskedForWhatIsChosen_data()
{
    const TestTable<QStringList, int> table("boxes", "finishing");
    table.add("nothing", {}, noFinishing);
    table.add("every label", {everyBox}, trimAfterPages);
    table.add("at the end", {endBox}, trimAfterJob);
    table.add("both", {everyBox, endBox}, trimAfterPages);
}

void tst_driverless::printerIsAskedForWhatIsChosen()
{
    QFETCH(const QStringList, boxes);
    QFETCH(const int, finishing);
    const qsizetype former = mPrinter.finishings().size();
    AttachedDialog dialog(queue);
    QVERIFY(dialog.openTab());
    QCOMPARE(dialog.panel().boxes(), QStringList({endBox, everyBox}));
    QVERIFY(!dialog.panel().isTicked(everyBox) && !dialog.panel().isTicked(endBox));
    for (const QString &box : boxes) {
        QVERIFY(dialog.panel().click(box));
    }
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(mSite.isPrinted(job));
    const QList<int> finishings = mPrinter.finishings();
    QCOMPARE(finishings.size(), former + 1);
    QCOMPARE(finishings.first(), finishing);
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_driverless::printerIsListed()
{
    const ProgramRun run = runKvprint({u"--list"_s, u"-d"_s, queue});
    QVERIFY2(run.status == 0, qPrintable(run.errors));
    QVERIFY2(run.output.contains(u"EveryEndMirrorOnOnOff"_s), qPrintable(run.output));
    QVERIFY2(run.output.contains(QStringLiteral("\n  Map: " KV_MAPS "/standard.json\n")),
             qPrintable(run.output));
}

void tst_driverless::printerIsChecked()
{
    const ProgramRun run = runKvprint({u"--check"_s, u"-d"_s, queue});
    QVERIFY2(run.status == 0, qPrintable(run.output + run.errors));
    const QString table =
        u"driverless\n"
        "  Map: %1\n"
        "  OPTION            PANEL        FROM      WHY NOT\n"
        "  KvCutLabel        Cut Options  CutMedia\n"
        "  KvCutAtEnd        Cut Options  CutMedia\n"
        "  KvAutoTapeCut     Cut Options  CutMedia\n"
        "  KvMirror                                 the PPD lacks choices of MirrorPrint\n"
        "  KvHalfCut                                the map has no KvHalfCut\n"
        "  KvChainPrint                             the map has no KvChainPrint\n"
        "  KvSpecialTape                            the map has no KvSpecialTape\n"
        "  KvRemoveBlkSpace                         the map has no KvRemoveBlkSpace\n"
        "  KvCutMark                                the map has no KvCutMark\n"
        "\n"
        "  No remarks\n"_s;
    QCOMPARE(run.output, table.arg(QStringLiteral(KV_MAPS "/standard.json")));
}

KV_TEST(tst_driverless)
#include "tst_driverless.moc"
