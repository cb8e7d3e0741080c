// SPDX-License-Identifier: Apache-2.0
#include "CutterPrinter.h"
#include "PrintingTest.h"
#include "ProgramRun.h"
#include "SampleChoices.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

namespace {
/// What a job carries of a sample printer whose panel has been seen, with some choices replaced.
QStringList seen(const QString &printer, const QString &others)
{
    return SampleChoices::replaced(SampleChoices::seen(printer), others);
}
} // namespace

/// Printing without a dialog, as the scheduler sees it.
class tst_directprinting : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void choicesOfTheJob_data();
    void choicesOfTheJob();
    void presetOfTheJob_data();
    void presetOfTheJob();
    void printerWithOtherWords_data();
    void printerWithOtherWords();
    void savedOptions_data();
    void savedOptions();
    void savedOptionThatThePaperForbids();
    void savedOptionsOfOtherKinds();
    void savedOptionsOfAnInstance();
    void copies_data();
    void copies();
    void filesAndTitle();
    void oddFileNames();
    void fileThatTellsNoSize();
    void paper_data();
    void paper();
    void paperReplacesTheSavedOne_data();
    void paperReplacesTheSavedOne();
    void otherOptionsAreHandedOn();
    void defaultPrinter();
    void printerWithoutThePanelsOptions();
    void printerWithoutAPPD();
    void shrinkTubeIsWarnedOf();

private: // NOLINT(readability-redundant-access-specifiers)
    /// Runs kvprint: the job that it printed, 0 for none or more than one.
    int print(const QStringList &arguments, const QStringList &variables = {});
    QString attribute(int job, const char *name) const;

    /// How the last run ended.
    ProgramRun mRun;
    QString mDocument;
};

void tst_directprinting::initTestCase()
{
    PrintingTest::initTestCase();
    mDocument = mSite.document();
}

int tst_directprinting::print(const QStringList &arguments, const QStringList &variables)
{
    const auto before = mSite.scheduler().jobIds().size();
    mRun = runKvprint(arguments, {{}, variables});
    const QList<int> after = mSite.scheduler().jobIds();
    if (mRun.status != 0 || after.size() != before + 1) {
        qWarning("%s", qPrintable(mRun.errors));
        return 0;
    }
    return after.last();
}

QString tst_directprinting::attribute(int job, const char *name) const
{
    return mSite.job(job).value(QLatin1String(name));
}

void tst_directprinting::choicesOfTheJob_data()
{
    const TestTable<QString, QStringList, QString> table("printer", "asked", "others");
    table.add("nothing asked for", u"tape"_s, {}, QString());
    table.add("half cut", u"tape"_s, {u"KvHalfCut=ON"_s}, u"KvHalfCut=ON"_s);
    table.add("several", u"tape"_s, {u"KvHalfCut=ON"_s, u"KvMirror=ON KvAutoTapeCut=OFF"_s},
              u"KvHalfCut=ON KvMirror=ON KvAutoTapeCut=OFF"_s);
    table.add("the default once more", u"tape"_s, {u"KvAutoTapeCut=ON"_s}, QString());
    table.add("on and off again", u"tape"_s, {u"KvHalfCut=ON"_s, u"KvHalfCut=OFF"_s}, QString());
    table.add("special tape, which leaves no cut", u"tape"_s, {u"KvSpecialTape=ON"_s},
              u"KvSpecialTape=ON KvAutoTapeCut=OFF"_s);
    table.add("special tape before what it forbids is turned off", u"tape"_s,
              {u"KvSpecialTape=ON"_s, u"KvAutoTapeCut=OFF"_s, u"KvHalfCut=OFF"_s},
              u"KvSpecialTape=ON KvAutoTapeCut=OFF"_s);
    table.add("labels", u"label"_s, {u"KvCutLabel=25"_s, u"KvCutAtEnd=ON"_s},
              u"KvCutLabel=25 KvCutAtEnd=ON"_s);
    table.add("count that cuts", u"follow"_s, {u"KvCutLabel=99"_s}, u"KvCutLabel=99"_s);
    table.add("no automatic cut", u"follow"_s, {u"KvAutoTapeCut=OFF"_s}, u"KvAutoTapeCut=OFF"_s);
    table.add("a count, but no automatic cut", u"follow"_s,
              {u"KvAutoTapeCut=OFF"_s, u"KvCutLabel=7"_s}, u"KvAutoTapeCut=OFF KvCutLabel=7"_s);
    // libcups takes letters of either case, and so does lp.
    table.add("small letters in the choice", u"tape"_s, {u"KvHalfCut=on"_s, u"KvAutoTapeCut=off"_s},
              u"KvHalfCut=ON KvAutoTapeCut=OFF"_s);
    table.add("small letters in the option", u"tape"_s, {u"kvhalfcut=ON"_s}, u"KvHalfCut=ON"_s);
    table.add("cut marks", u"mark"_s, {u"KvCutMark=ON KvChainPrint=ON"_s},
              u"KvCutMark=ON KvChainPrint=ON"_s);
    table.add("everything but special tape", u"all"_s,
              {u"KvCutLabel=2 KvCutAtEnd=ON KvMirror=ON KvAutoTapeCut=ON KvHalfCut=ON "
               "KvChainPrint=ON KvRemoveBlkSpace=ON KvCutMark=ON"_s},
              u"KvCutLabel=2 KvCutAtEnd=ON KvMirror=ON KvAutoTapeCut=ON KvHalfCut=ON "
              "KvChainPrint=ON KvRemoveBlkSpace=ON KvCutMark=ON"_s);
}

void tst_directprinting::choicesOfTheJob()
{
    QFETCH(const QString, printer);
    QFETCH(const QStringList, asked);
    QFETCH(const QString, others);
    QCOMPARE(mSite.choices(print(atPrinter(printer, options(asked) << mDocument))),
             seen(printer, others));
    QCOMPARE(mRun.output, QString());
    QVERIFY2(!mRun.errors.contains(u"kvprint:"), qPrintable(mRun.errors));
}

void tst_directprinting::presetOfTheJob_data()
{
    const TestTable<QString, QString, QStringList, QString> table("printer", "preset", "asked",
                                                                  "others");
    table.add("half cut alone", u"tape"_s, u"AHCMOffOnOffOff"_s, {},
              u"KvAutoTapeCut=OFF KvHalfCut=ON"_s);
    table.add("everything", u"tape"_s, u"AHCMOnOnOnOff"_s, {},
              u"KvAutoTapeCut=ON KvHalfCut=ON KvChainPrint=ON"_s);
    table.add("special tape", u"tape"_s, u"SPMROnOff"_s, {},
              u"KvAutoTapeCut=OFF KvSpecialTape=ON"_s);
    table.add("the selected one", u"tape"_s, u"AHCMOnOffOffOff"_s, {}, QString());
    table.add("and an option", u"tape"_s, u"AHCMOffOnOffOff"_s, {u"KvMirror=ON"_s},
              u"KvAutoTapeCut=OFF KvHalfCut=ON KvMirror=ON"_s);
    table.add("and an option that changes it", u"tape"_s, u"AHCMOffOnOffOff"_s,
              {u"KvHalfCut=OFF KvChainPrint=ON"_s}, u"KvAutoTapeCut=OFF KvChainPrint=ON"_s);
    table.add("labels", u"label"_s, u"EveryEndMirrorOffOnOff"_s, {},
              u"KvAutoTapeCut=OFF KvCutAtEnd=ON"_s);
    table.add("cut marks", u"mark"_s, u"CTMROnOnOff"_s, {}, u"KvCutMark=ON KvChainPrint=ON"_s);
    table.add("no automatic cut", u"follow"_s, u"AHCMOffOffOffOff"_s, {}, u"KvAutoTapeCut=OFF"_s);
    table.add("no automatic cut, but then there is one", u"follow"_s, u"AHCMOffOffOffOff"_s,
              {u"KvCutLabel=5"_s, u"KvAutoTapeCut=ON"_s}, u"KvAutoTapeCut=ON KvCutLabel=5"_s);
}

void tst_directprinting::presetOfTheJob()
{
    QFETCH(const QString, printer);
    QFETCH(const QString, preset);
    QFETCH(const QStringList, asked);
    QFETCH(const QString, others);
    const int job =
        print(atPrinter(printer, QStringList{u"--preset"_s, preset} + options(asked) << mDocument));
    QCOMPARE(mSite.choices(job), seen(printer, others));
}

void tst_directprinting::printerWithOtherWords_data()
{
    const TestTable<QString, QByteArray, QStringList, QString> table("cut", "saved", "arguments",
                                                                     "printed");
    for (const char *cut : CutterPrinter::cuts) {
        const QString name = QLatin1String(cut);
        table.add(cut, name, "", {}, u"CutMedia=%1 MirrorPrint=false"_s.arg(name));
    }
    const QByteArray saved = "Default cutter CutMedia=EndOfSet\n";
    table.add("saved", u"None"_s, saved, {}, u"CutMedia=EndOfSet MirrorPrint=false"_s);
    table.add("panel's words", u"None"_s, "", {u"-o"_s, u"KvCutAtEnd=ON"_s},
              u"CutMedia=EndOfJob MirrorPrint=false"_s);
    table.add("printer's words", u"None"_s, saved, {u"-o"_s, u"CutMedia=Auto MirrorPrint=True"_s},
              u"CutMedia=Auto MirrorPrint=true"_s);
    table.add("preset", u"Twice"_s, "", {u"--preset"_s, u"EveryEndMirrorOnOnOff"_s},
              u"CutMedia=EndOfPage MirrorPrint=false"_s);
    table.add("preset over saved", u"Twice"_s, saved, {u"--preset"_s, u"EveryEndMirrorOffOffOff"_s},
              u"CutMedia=None MirrorPrint=false"_s);
}

void tst_directprinting::printerWithOtherWords()
{
    QFETCH(const QString, cut);
    QFETCH(const QByteArray, saved);
    QFETCH(const QStringList, arguments);
    const QString ppd = mSite.file(u"cutter.ppd"_s, CutterPrinter::ppd(cut.toLatin1()));
    QVERIFY(addPrinter(u"cutter"_s, ppd));
    QVERIFY(mSite.saveUserOptions(saved));
    const int job = print(atPrinter(u"cutter"_s, arguments + QStringList{mDocument}));
    QTEST(CutterPrinter::printed(mSite.job(job)), "printed");
    QCOMPARE(mRun.errors, QString());
}

void tst_directprinting::savedOptions_data()
{
    const TestTable<QString, QStringList, QString> table("saved", "arguments", "others");
    table.add("saved", u"KvHalfCut=ON KvMirror=ON"_s, {}, u"KvHalfCut=ON KvMirror=ON"_s);
    table.add("an option besides", u"KvHalfCut=ON"_s, options({u"KvMirror=ON"_s}),
              u"KvHalfCut=ON KvMirror=ON"_s);
    table.add("an option against it", u"KvHalfCut=ON KvMirror=ON"_s, options({u"KvHalfCut=OFF"_s}),
              u"KvMirror=ON"_s);
    table.add("a preset, and what it leaves alone", u"KvHalfCut=ON KvRemoveBlkSpace=ON"_s,
              {u"--preset"_s, u"AHCMOnOffOnOff"_s}, u"KvChainPrint=ON KvRemoveBlkSpace=ON"_s);
}

void tst_directprinting::savedOptions()
{
    QFETCH(const QString, saved);
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, others);
    QVERIFY(mSite.saveUserOptions(u"Dest tape %1\n"_s.arg(saved).toUtf8()));
    QCOMPARE(mSite.choices(print(atPrinter(u"tape"_s, arguments + QStringList{mDocument}))),
             seen(u"tape"_s, others));
}

void tst_directprinting::savedOptionThatThePaperForbids()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=ON\n"));
    const int job = print(atPrinter(u"tape"_s, options({u"media=FL21x45"_s}) << mDocument));
    QVERIFY(mRun.tells(u"KvHalfCut=ON cannot be chosen on the paper FL21x45"_s));
    QCOMPARE(mSite.choices(job), seen(u"tape"_s, QString()));
}

void tst_directprinting::savedOptionsOfOtherKinds()
{
    QVERIFY(addPrinter(u"bare"_s, {}));
    for (const QString &printer : {u"tape"_s, u"bare"_s}) {
        const QString saved = u"Dest %1 number-up=2 job-billing=labels copies=3\n"_s;
        QVERIFY(mSite.saveUserOptions(saved.arg(printer).toUtf8()));
        int job = print(atPrinter(printer, {mDocument}));
        QCOMPARE(attribute(job, "number-up"), u"2"_s);
        QCOMPARE(attribute(job, "job-billing"), u"labels"_s);
        QCOMPARE(attribute(job, "copies"), u"3"_s);
        job = print(atPrinter(printer, {u"-o"_s, u"number-up=4"_s, u"-n1"_s, mDocument}));
        QCOMPARE(attribute(job, "number-up"), u"4"_s);
        QCOMPARE(attribute(job, "copies"), u"1"_s);
    }
}

void tst_directprinting::savedOptionsOfAnInstance()
{
    const QString draft = u"tape/draft"_s;
    QVERIFY(mSite.saveUserOptions("Dest tape/draft KvHalfCut=ON number-up=2\n"));
    int job = print(atPrinter(draft, {mDocument}));
    QVERIFY(attribute(job, "job-printer-uri").endsWith(u"/tape"));
    QCOMPARE(mSite.choices(job), seen(u"tape"_s, u"KvHalfCut=ON"_s));
    QCOMPARE(attribute(job, "number-up"), u"2"_s);
    job = print(atPrinter(draft, options({u"KvHalfCut=OFF"_s, u"number-up=4"_s}) << mDocument));
    QCOMPARE(mSite.choices(job), seen(u"tape"_s, QString()));
    QCOMPARE(attribute(job, "number-up"), u"4"_s);

    QCOMPARE(print(atPrinter(u"tape/none"_s, {mDocument})), 0);
    QCOMPARE(mRun.status, 3);
    QVERIFY(mRun.tells(u"kvprint: there is no printer tape/none; the printers are: all, "_s));
}

void tst_directprinting::copies_data()
{
    const TestTable<QStringList, QString> table("arguments", "copies");
    table.add("-n", {u"-n"_s, u"3"_s}, u"3"_s);
    table.add("one", {u"-n"_s, u"1"_s}, u"1"_s);
    table.add("as an option", options({u"copies=4"_s}), u"4"_s);
    table.add("both", {u"-n"_s, u"2"_s, u"-o"_s, u"copies=4"_s}, u"2"_s);
}

void tst_directprinting::copies()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, copies);
    QCOMPARE(attribute(print(atPrinter(u"tape"_s, arguments + QStringList{mDocument})), "copies"),
             copies);
}

void tst_directprinting::filesAndTitle()
{
    const QStringList files{mSite.document(u"first.txt"_s), mSite.document(u"second.txt"_s),
                            mDocument};
    // A job that is done has no documents any more.
    const QStringList held = options({u"job-hold-until=indefinite"_s});
    const int job = print(atPrinter(u"label"_s, held + files));
    QCOMPARE(attribute(job, "number-of-documents"), u"3"_s);
    QCOMPARE(attribute(job, "job-name"), u"first.txt"_s);
    QVERIFY(attribute(job, "job-printer-uri").endsWith(u"/label"));
}

void tst_directprinting::oddFileNames()
{
    const QString folder = QFileInfo(mDocument).path();
    for (const QString &name : {u"two words.txt"_s, u"it's \"quoted\".txt"_s, u"-n.txt"_s,
                                u"--help"_s, u"Größe €.txt"_s}) {
        QVERIFY(!mSite.document(name).isNull());
        mRun = runKvprint(atPrinter(u"tape"_s, {u"--"_s, name}), {{}, {}, folder});
        QVERIFY2(mRun.status == 0, qPrintable(mRun.errors));
        QCOMPARE(attribute(mSite.scheduler().jobIds().last(), "job-name"), name);
    }
}

void tst_directprinting::fileThatTellsNoSize()
{
    const QString file = u"/proc/version"_s;
    QCOMPARE(QFileInfo(file).size(), 0);
    const int job = print(atPrinter(u"tape"_s, {file}));
    QVERIFY(attribute(job, "job-k-octets").toInt() > 0);
}

void tst_directprinting::paper_data()
{
    const TestTable<QString, QString, QString> table("printer", "option", "paper");
    table.add("media", u"tape"_s, u"media=T24x100"_s, u"media=T24x100"_s);
    table.add("PageSize", u"tape"_s, u"PageSize=T24x100"_s, u"PageSize=T24x100"_s);
    table.add("custom size", u"tape"_s, u"media=Custom.20x50mm"_s, u"media=Custom.20x50mm"_s);
    table.add("custom size as PageSize", u"all"_s, u"PageSize=Custom.2x5cm"_s,
              u"PageSize=Custom.2x5cm"_s);
}

void tst_directprinting::paper()
{
    QFETCH(const QString, printer);
    QFETCH(const QString, option);
    QFETCH(const QString, paper);
    const int job = print(atPrinter(printer, options({option}) << mDocument));
    QStringList found;
    for (const char *key : {"media", "PageSize"}) {
        const QString value = attribute(job, key);
        if (!value.isEmpty()) {
            found.append(QLatin1String(key) + u'=' + value);
        }
    }
    QCOMPARE(found, QStringList{paper});
    QCOMPARE(mSite.choices(job), seen(printer, QString()));
}

void tst_directprinting::paperReplacesTheSavedOne_data()
{
    QTest::addColumn<QString>("saved");
    QTest::addColumn<QString>("asked");
    for (const QString &saved : {u"media=FL21x45"_s, u"PageSize=FL21x45"_s}) {
        for (const QString &asked : {u"media=T24x100"_s, u"PageSize=T24x100"_s}) {
            QTest::addRow("%s, %s", qPrintable(saved), qPrintable(asked)) << saved << asked;
        }
    }
}

void tst_directprinting::paperReplacesTheSavedOne()
{
    QFETCH(const QString, saved);
    QFETCH(const QString, asked);
    QVERIFY(mSite.saveUserOptions(u"Dest tape %1\n"_s.arg(saved).toUtf8()));
    // On the saved paper a half cut would be an error.
    const int job = print(atPrinter(u"tape"_s, options({asked, u"KvHalfCut=ON"_s}) << mDocument));
    QCOMPARE(attribute(job, "media") + attribute(job, "PageSize"), u"T24x100"_s);
    QVERIFY(mSite.choices(job).contains(u"KvHalfCut=ON"_s));
}

void tst_directprinting::otherOptionsAreHandedOn()
{
    const int job = print(atPrinter(
        u"tape"_s,
        options({u"number-up=2"_s, u"job-billing='two words'"_s, u"KvCutMark=ON"_s, u"landscape"_s})
            << mDocument));
    QCOMPARE(attribute(job, "number-up"), u"2"_s);
    QCOMPARE(attribute(job, "job-billing"), u"two words"_s);
    // The printer has no cut marks: what it makes of that is its business.
    QCOMPARE(attribute(job, "KvCutMark"), u"ON"_s);
    QCOMPARE(attribute(job, "landscape"), u"true"_s);
}

void tst_directprinting::defaultPrinter()
{
    QVERIFY(mSite.saveUserOptions("Default label KvCutLabel=7\n"));
    int job = print({u"--no-dialog"_s, mDocument});
    QVERIFY(attribute(job, "job-printer-uri").endsWith(u"/label"));
    QCOMPARE(mSite.choices(job), seen(u"label"_s, u"KvCutLabel=7"_s));
    // Without a default one, the first.
    QVERIFY(mSite.saveUserOptions(""));
    job = print({u"--no-dialog"_s, mDocument});
    QVERIFY(attribute(job, "job-printer-uri").endsWith(u"/all"));
}

void tst_directprinting::printerWithoutThePanelsOptions()
{
    QCOMPARE(mSite.choices(print(atPrinter(
                 u"plain"_s, options({u"KvDensity=Dark"_s, u"KvHalfCut=ON"_s}) << mDocument))),
             QStringList({u"KvDensity=Dark"_s, u"KvHalfCut=ON"_s}));
}

void tst_directprinting::printerWithoutAPPD()
{
    QVERIFY(addPrinter(u"bare"_s, {}));
    const int job =
        print(atPrinter(u"bare"_s, options({u"KvMirror=ON"_s}) << u"-n"_s << u"2"_s << mDocument));
    QCOMPARE(mSite.choices(job), QStringList{u"KvMirror=ON"_s});
    QCOMPARE(attribute(job, "copies"), u"2"_s);
}

void tst_directprinting::shrinkTubeIsWarnedOf()
{
    const int job =
        print(atPrinter(u"follow"_s, QStringList{u"--preset"_s, u"AHCMOffOffOffOff"_s} +
                                             options({u"media=HS12x100"_s, u"KvAutoTapeCut=ON"_s})
                                         << mDocument),
              {u"XDG_RUNTIME_DIR"_s});
    QVERIFY(mRun.tells(u"kvprint: Heat-shrink tube is loaded. "_s));
    // The warning opens an alert, the preset the menu: neither says anything of its own.
    const QStringList lines = mRun.errors.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.filter(u"kvprint: "_s), lines);
    QCOMPARE(mSite.choices(job), seen(u"follow"_s, QString()));
    QCOMPARE(attribute(job, "media"), u"HS12x100"_s);
}

KV_TEST(tst_directprinting)
#include "tst_directprinting.moc"
