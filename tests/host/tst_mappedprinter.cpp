// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "BundleFolder.h"
#include "CutterPrinter.h"
#include "PrintingTest.h"
#include "PropertiesDialog.h"
#include "support/PPDText.h"
#include "support/TestTable.h"

#include <QTest>

namespace {
const QString everyBox = u"mCutEveryChkBx"_s;
const QString endBox = u"mCutAndEndChkBx"_s;
const QString mapFile = u"Contents/Resources/printers/odd.json"_s;

/// A printer with one option for everything, and one that says the opposite.
constexpr char oddMap[] = R"({
    "for": {"options": ["Finishing"], "attributes": {"Manufacturer": "Korvane"}},
    "autoCutBox": true,
    "options": {
        "KvAutoTapeCut": {"text": "Auto Cut", "choices": ["OFF", "ON"]},
        "KvHalfCut": {"text": "Half Cut", "choices": ["OFF", "ON"]},
        "KvMirror": {"text": "Mirror Printing", "choices": ["OFF", "ON"]}
    },
    "tables": [
        [
            {"panel": {"KvAutoTapeCut": "OFF", "KvHalfCut": "OFF"}, "printer": {"Finishing": "None"}},
            {"panel": {"KvAutoTapeCut": "ON", "KvHalfCut": "OFF"}, "printer": {"Finishing": "Cut"}},
            {"panel": {"KvAutoTapeCut": "OFF", "KvHalfCut": "ON"}, "printer": {"Finishing": "Half"}},
            {"panel": {"KvAutoTapeCut": "ON", "KvHalfCut": "ON"}, "printer": {"Finishing": "Both"}}
        ],
        [
            {"panel": {"KvMirror": "OFF"}, "printer": {"NoMirror": "True"}},
            {"panel": {"KvMirror": "ON"}, "printer": {"NoMirror": "False"}}
        ]
    ]
})";
} // namespace

/// Printers whose PPDs have other words than the panel's.
class tst_mappedprinter : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void whoChangesNothingGetsThePrintersOptions_data();
    void whoChangesNothingGetsThePrintersOptions();
    void clickedBoxesReachTheJob_data();
    void clickedBoxesReachTheJob();
    void optionsUseEitherWords_data();
    void optionsUseEitherWords();
    void nextDialogStartsFromTheLastChoices();
    void forbiddenTogether();
    void forbiddenTogetherBefore();
    void optionsLeaveThePropertiesDialog();
    void mapOfABundle();
    void faultyMapIsTold();

private: // NOLINT(readability-redundant-access-specifiers)
    /// Adds the printer "cutter" whose default is that choice.
    bool addCutter(const char *cut);
    /// What CutterPrinter::printed() says of a job.
    QString printed(int job) const;
};

bool tst_mappedprinter::addCutter(const char *cut)
{
    return addPrinter(u"cutter"_s, mSite.file(u"cutter.ppd"_s, CutterPrinter::ppd(cut)));
}

QString tst_mappedprinter::printed(int job) const
{
    return CutterPrinter::printed(mSite.job(job));
}

void tst_mappedprinter::whoChangesNothingGetsThePrintersOptions_data()
{
    const TestTable<QString, bool> table("cut", "isShown");
    for (const char *cut : CutterPrinter::cuts) {
        const QString name = QLatin1String(cut);
        table.add(cut, name, false);
        table.add(qPrintable(name + u" shown"_s), name, true);
    }
}

void tst_mappedprinter::whoChangesNothingGetsThePrintersOptions()
{
    QFETCH(const QString, cut);
    QFETCH(const bool, isShown);
    QVERIFY(addCutter(qPrintable(cut)));
    AttachedDialog dialog(u"cutter"_s);
    QVERIFY(dialog.user().open());
    if (isShown) {
        QVERIFY(dialog.user().showOptions());
        QVERIFY(dialog.user().showTab(kPanelTab) && dialog.user().showTab(kSummaryTab) &&
                dialog.user().showTab(kPanelTab));
    }
    QCOMPARE(printed(dialog.print(mSite.scheduler())), u"CutMedia=%1 MirrorPrint=false"_s.arg(cut));
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_mappedprinter::clickedBoxesReachTheJob_data()
{
    const TestTable<QStringList, QString> table("boxes", "printed");
    table.add("every label", {everyBox}, u"CutMedia=EndOfPage MirrorPrint=false"_s);
    table.add("at the end", {endBox}, u"CutMedia=EndOfJob MirrorPrint=false"_s);
    table.add("both", {everyBox, endBox}, u"CutMedia=EndOfPage MirrorPrint=false"_s);
    table.add("mirror", {mirrorBox}, u"CutMedia=None MirrorPrint=true"_s);
    table.add("there and back", {endBox, endBox}, u"CutMedia=None MirrorPrint=false"_s);
}

void tst_mappedprinter::clickedBoxesReachTheJob()
{
    QFETCH(const QStringList, boxes);
    QVERIFY(addCutter("None"));
    AttachedDialog dialog(u"cutter"_s);
    QVERIFY(dialog.openTab());
    QCOMPARE(dialog.panel().boxes(), QStringList({endBox, everyBox, mirrorBox}));
    QCOMPARE(dialog.panel().presets(), QList<int>({1, 2, 3, 4}));
    for (const QString &box : boxes) {
        QVERIFY(dialog.panel().click(box));
    }
    QTEST(printed(dialog.print(mSite.scheduler())), "printed");
}

void tst_mappedprinter::optionsUseEitherWords_data()
{
    const TestTable<QByteArray, QStringList, QString> table("saved", "given", "printed");
    table.add("saved in the printer's words", "Default cutter CutMedia=EndOfDoc\n", {},
              u"CutMedia=EndOfDoc MirrorPrint=false"_s);
    table.add("saved in the panel's words", "Default cutter KvCutAtEnd=ON\n", {},
              u"CutMedia=EndOfJob MirrorPrint=false"_s);
    table.add("given in the printer's words", "", {u"CutMedia=Auto"_s},
              u"CutMedia=Auto MirrorPrint=false"_s);
    table.add("given in the panel's words", "", {u"KvAutoTapeCut=ON"_s},
              u"CutMedia=EndOfPage MirrorPrint=false"_s);
    table.add("given over saved", "Default cutter KvCutAtEnd=ON\n", {u"CutMedia=None"_s},
              u"CutMedia=None MirrorPrint=false"_s);
    table.add("what no row names over saved", "Default cutter KvCutAtEnd=ON\n",
              {u"CutMedia=Twice"_s}, u"CutMedia=Twice MirrorPrint=false"_s);
    table.add("other letters over saved", "Default cutter KvMirror=ON\n", {u"MirrorPrint=false"_s},
              u"CutMedia=None MirrorPrint=false"_s);
    table.add("panel's words over saved", "Default cutter CutMedia=EndOfPage\n",
              {u"KvAutoTapeCut=OFF"_s, u"KvMirror=ON"_s}, u"CutMedia=EndOfJob MirrorPrint=true"_s);
}

void tst_mappedprinter::optionsUseEitherWords()
{
    QFETCH(const QByteArray, saved);
    QFETCH(const QStringList, given);
    QVERIFY(addCutter("None"));
    QVERIFY(mSite.saveUserOptions(saved));
    for (const bool isShown : {false, true}) {
        AttachedDialog dialog(u"cutter"_s, given);
        QVERIFY(isShown ? dialog.openTab() : dialog.user().open());
        QTEST(printed(dialog.print(mSite.scheduler())), "printed");
        QCOMPARE(dialog.problems(), QStringList());
    }
}

void tst_mappedprinter::nextDialogStartsFromTheLastChoices()
{
    QVERIFY(addCutter("Twice"));
    AttachedDialog dialog(u"cutter"_s);
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.panel().click(endBox));
    QCOMPARE(printed(dialog.print(mSite.scheduler())), u"CutMedia=EndOfJob MirrorPrint=false"_s);
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.panel().isTicked(endBox));
    QVERIFY(dialog.panel().click(endBox));
    QCOMPARE(printed(dialog.print(mSite.scheduler())), u"CutMedia=None MirrorPrint=false"_s);
}

void tst_mappedprinter::forbiddenTogether()
{
    QVERIFY(addCutter("None"));
    QVERIFY(mSite.saveUserOptions("Dest cutter InkType=Thick\n"));
    AttachedDialog dialog(u"cutter"_s);
    QVERIFY(dialog.openTab());
    QVERIFY(!dialog.panel().summary().first().contains(u"Ink"_s));
    QVERIFY(dialog.panel().click(endBox));
    QCOMPARE(dialog.panel().summary().first(), u"Conflict: Cut Media: EndOfJob – Ink: Thick"_s);
    QCOMPARE(printed(dialog.print(mSite.scheduler())), u"CutMedia=EndOfJob MirrorPrint=false"_s);
    QCOMPARE(dialog.problems(),
             QStringList(u"CutMedia=EndOfJob cannot be combined with InkType=Thick: the "
                         "printer's PPD forbids it"_s));
}

void tst_mappedprinter::forbiddenTogetherBefore()
{
    QVERIFY(addCutter("EndOfJob"));
    QVERIFY(mSite.saveUserOptions("Dest cutter InkType=Thick\n"));
    AttachedDialog dialog(u"cutter"_s);
    QVERIFY(dialog.openTab());
    QVERIFY(!dialog.panel().summary().first().contains(u"Ink"_s));
    QVERIFY(dialog.print(mSite.scheduler()) > 0);
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_mappedprinter::optionsLeaveThePropertiesDialog()
{
    QVERIFY(addCutter("None"));
    AttachedDialog dialog(u"cutter"_s);
    QVERIFY(dialog.openTab());
    QStringList listed;
    QVERIFY(PropertiesDialog::with(dialog.user(), false, [&](QDialog &properties) {
        listed = PropertiesDialog::options(properties);
    }));
    QVERIFY(!listed.contains(u"Cut Media"_s) && !listed.contains(u"Mirror Print"_s));
    QVERIFY(listed.contains(u"Ink"_s));
}

void tst_mappedprinter::mapOfABundle()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    QVERIFY(folder.create(mapFile, oddMap));
    PPDText text;
    text.option("Finishing", {"None", "Half", "Cut", "Both", "Chain"}, "Half")
        .option("NoMirror", {"False", "True"}, "True")
        .option("CutMedia", {"None", "EndOfPage"}, "EndOfPage")
        .size("w72h144", 72, 144);
    QVERIFY(addPrinter(u"odd"_s, mSite.file(u"odd.ppd"_s, text.data())));
    AttachedDialog dialog(u"odd"_s, {}, folder.path());
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.panel().isTicked(u"mHalfCutChkBx"_s));
    QVERIFY(!dialog.panel().isTicked(mirrorBox));
    QVERIFY(dialog.panel().click(u"mAutoCutChkBx"_s));
    QVERIFY(dialog.panel().click(mirrorBox));
    const QMap<QString, QString> job = mSite.job(dialog.print(mSite.scheduler()));
    QCOMPARE(job.value(u"Finishing"_s), u"Both"_s);
    QCOMPARE(job.value(u"NoMirror"_s), u"false"_s);
    QCOMPARE(CutterPrinter::printed(job), QString());
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_mappedprinter::faultyMapIsTold()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    QVERIFY(folder.create(mapFile, "{\n\"far\": 1}"));
    AttachedDialog dialog(u"tape"_s, {}, folder.path());
    QVERIFY(dialog.openTab());
    QCOMPARE(dialog.problems(),
             QStringList{folder.path(mapFile) + u": line 2: the map has no member \"far\""_s});
}

KV_TEST(tst_mappedprinter)
#include "tst_mappedprinter.moc"
