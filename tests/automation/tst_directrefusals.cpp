// SPDX-License-Identifier: Apache-2.0
#include "CutterPrinter.h"
#include "PrintingTest.h"
#include "ProgramRun.h"

#include <QFileInfo>
#include <QTest>

/// What is refused without a dialog, and what the user is told then.
class tst_directrefusals : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void refused_data();
    void refused();
    void noScheduler();
};

void tst_directrefusals::refused_data()
{
    const TestTable<QStringList, int, QString> table("arguments", "status", "fault");
    const QString file = mSite.document();
    const auto tape = [&file](const QStringList &arguments) {
        return atPrinter(u"tape"_s, arguments + QStringList{file});
    };
    table.add(
        "half cut on flags", tape(options({u"media=FL21x45"_s, u"KvHalfCut=ON"_s})), 2,
        u"kvprint: KvHalfCut=ON cannot be chosen on the paper FL21x45 with the other settings; "
        "it stays OFF\n"_s);
    table.add("half cut on flags, the other way round",
              tape(options({u"KvHalfCut=ON PageSize=FL24x60"_s})), 2,
              u"KvHalfCut=ON cannot be chosen on the paper FL24x60"_s);
    table.add("half cut on special tape", tape(options({u"KvSpecialTape=ON"_s, u"KvHalfCut=ON"_s})),
              2, u"KvHalfCut=ON cannot be chosen on the paper T12x100"_s);
    table.add("special tape with a half cut",
              tape(options({u"KvHalfCut=ON"_s, u"KvSpecialTape=ON"_s})), 2,
              u"cannot be chosen on the paper T12x100"_s);
    table.add("auto cut on special tape",
              tape(options({u"KvSpecialTape=ON"_s, u"KvAutoTapeCut=ON"_s})), 2,
              u"KvAutoTapeCut=ON cannot be chosen on the paper T12x100"_s);
    table.add("half cut with the preset for special tape",
              tape(QStringList{u"--preset"_s, u"SPMROnOff"_s} + options({u"KvHalfCut=ON"_s})), 2,
              u"KvHalfCut=ON cannot be chosen on the paper T12x100"_s);
    table.add("blank space of die-cut labels",
              atPrinter(u"all"_s, options({u"media=DC24x24"_s, u"KvRemoveBlkSpace=ON"_s}) << file),
              2, u"KvRemoveBlkSpace=ON cannot be chosen on the paper DC24x24"_s);
    table.add(
        "preset on flags",
        tape(QStringList{u"--preset"_s, u"AHCMOffOnOffOff"_s} + options({u"media=FL21x45"_s})), 2,
        u"--preset AHCMOffOnOffOff: cannot be chosen on the paper FL21x45"_s);
    table.add("unknown preset", tape({u"--preset"_s, u"Frobnicate"_s}), 2,
              u"--preset Frobnicate: the presets are: AHCMOffOffOffOff, AHCMOffOffOnOff, "_s);
    table.add("preset of another printer", tape({u"--preset"_s, u"CTMROnOffOff"_s}), 2,
              u"--preset CTMROnOffOff: the presets are: "_s);
    table.add("preset in other letters", tape({u"--preset"_s, u"ahcmoffonoffoff"_s}), 2,
              u"--preset ahcmoffonoffoff: the presets are: "_s);
    table.add("preset of a printer that has none",
              atPrinter(u"plain"_s, {u"--preset"_s, u"AHCMOffOnOffOff"_s, file}), 2,
              u"--preset AHCMOffOnOffOff: the printer has no presets"_s);
    table.add("unknown choice", tape(options({u"KvHalfCut=MAYBE"_s})), 2,
              u"-o KvHalfCut=MAYBE: the choices of KvHalfCut are: OFF, ON"_s);
    table.add("custom value of an option that takes none",
              tape(options({u"KvHalfCut=Custom.ON"_s})), 2,
              u"-o KvHalfCut=Custom.ON: the choices of KvHalfCut are: OFF, ON"_s);
    table.add("count that is none", atPrinter(u"label"_s, options({u"KvCutLabel=100"_s}) << file),
              2, u"-o KvCutLabel=100: the choices of KvCutLabel are: 1, 2, "_s);
    table.add("unknown paper", tape(options({u"media=A4"_s})), 2,
              u"-o media=A4: the choices of media are: T12x100, "_s);
    table.add("custom size at a printer with fixed ones",
              atPrinter(u"mark"_s, options({u"media=Custom.20x50mm"_s}) << file), 2,
              u"-o media=Custom.20x50mm: the choices of media are: T12x100, "_s);
    QVERIFY(addPrinter(u"cutter"_s, mSite.file(u"cutter.ppd"_s, CutterPrinter::ppd("None"))));
    const auto cutter = [&file](const QString &choices) {
        return atPrinter(u"cutter"_s, options({choices}) << file);
    };
    const QString conflict = u"kvprint: CutMedia=EndOfJob cannot be combined with InkType=Thick: "
                             "the printer's PPD forbids it\n"_s;
    table.add("what the PPD forbids together", cutter(u"CutMedia=EndOfJob InkType=Thick"_s), 2,
              conflict);
    table.add("what it forbids together, in the panel's words",
              cutter(u"KvCutAtEnd=ON InkType=Thick"_s), 2, conflict);
    table.add("unknown printer", atPrinter(u"nowhere"_s, {file}), 3,
              u"there is no printer nowhere; the printers are: "_s);
    table.add("missing file", atPrinter(u"tape"_s, {file, u"/nowhere/a.pdf"_s}), 3,
              u"/nowhere/a.pdf: No such file or directory"_s);
    table.add("folder", atPrinter(u"tape"_s, {QFileInfo(file).path()}), 3, u": is a folder"_s);
    table.add("empty file", atPrinter(u"tape"_s, {mSite.file(u"empty"_s, {})}), 3, u": is empty"_s);

    const QString ppd = u"--ppd"_s;
    const auto dryRun = [&file](const QStringList &arguments) {
        return QStringList{u"--dry-run"_s, file} + arguments;
    };
    const QStringList onPPD = dryRun({ppd, PrintingSite::ppdPath(u"tape"_s)});
    table.add("dry run: half cut on flags, by the PPD",
              onPPD + options({u"KvHalfCut=ON"_s, u"media=FL21x45"_s}), 2,
              u"KvHalfCut=ON cannot be chosen on the paper FL21x45"_s);
    table.add("dry run: unknown choice", onPPD + options({u"KvHalfCut=MAYBE"_s}), 2,
              u"-o KvHalfCut=MAYBE: the choices of KvHalfCut are: OFF, ON"_s);
    table.add("dry run: unknown preset", onPPD + QStringList{u"--preset"_s, u"None"_s}, 2,
              u"--preset None: the presets are: "_s);
    table.add("dry run: unknown printer", dryRun({u"-d"_s, u"nowhere"_s}), 3,
              u"there is no printer nowhere"_s);
    table.add("dry run: missing PPD", dryRun({ppd, u"/nowhere.ppd"_s}), 3,
              u"/nowhere.ppd: No such file or directory"_s);
    table.add("dry run: broken PPD", dryRun({ppd, file}), 3, u": line 1: "_s);
    table.add("list: unknown printer", {u"--list"_s, u"-d"_s, u"nowhere"_s}, 3,
              u"there is no printer nowhere; the printers are: all, "_s);
    table.add("list: missing PPD", {u"--list"_s, ppd, u"/nowhere.ppd"_s}, 3,
              u"/nowhere.ppd: No such file or directory"_s);
}

void tst_directrefusals::refused()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    QFETCH(const QString, fault);
    const QList<int> before = mSite.scheduler().jobIds();
    const ProgramRun run = runKvprint(arguments);
    QCOMPARE(run.status, status);
    QVERIFY(run.tells(fault));
    QCOMPARE(run.errors.count(u"kvprint: "), 1);
    QCOMPARE(run.output, QString());
    QCOMPARE(mSite.scheduler().jobIds(), before);
}

void tst_directrefusals::noScheduler()
{
    const ProgramRun run =
        runKvprint(atPrinter(u"tape"_s, {mSite.document()}), {{}, {u"CUPS_SERVER=127.0.0.1:9"_s}});
    QCOMPARE(run.status, 3);
    QVERIFY(run.tells(u"kvprint: no print scheduler answers at 127.0.0.1 (port 9): "_s));
}

KV_TEST(tst_directrefusals)
#include "tst_directrefusals.moc"
