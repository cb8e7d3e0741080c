// SPDX-License-Identifier: Apache-2.0
#include "CutterPrinter.h"
#include "PrintingTest.h"
#include "ProgramRun.h"
#include "host/PanelBundles.h"
#include "host/ProblemReporter.h"
#include "kvprint/PrinterCheck.h"
#include "support/PPDText.h"
#include "support/TestTable.h"

#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <algorithm>

namespace {
const QString standardMap = QStringLiteral(KV_MAPS "/standard.json");
const QString noPanel = u"no panel has options of this printer"_s;

/// A sound map of half cut for a printer with one option.
constexpr char finishingMap[] = R"({
    "for": {"options": ["Finishing"], "attributes": {"Manufacturer": "Korvane"}},
    "options": {"KvHalfCut": {"text": "Half Cut", "choices": ["OFF", "ON"]}},
    "tables": [[
        {"panel": {"KvHalfCut": "OFF"}, "printer": {"Finishing": "None"}},
        {"panel": {"KvHalfCut": "ON"}, "printer": {"Finishing": ["Half", "HalfCut"]}}
    ]]
})";

QByteArray finishingPPD(const char *half)
{
    return PPDText().option("Finishing", {"None", half}, "None").data();
}

/// A PPD with a panel, and an option of these lines.
QByteArray withLines(const QByteArray &lines)
{
    return PPDText().onOff("KvMirror").data() + lines;
}

QByteArray withHalfCut(const QByteArrayList &choices, const QByteArray &byDefault,
                       const QByteArray &text = "Half Cut")
{
    return PPDText().onOff("KvMirror").option("KvHalfCut", choices, byDefault, text).data();
}

QByteArray withCounts(const QByteArrayList &counts)
{
    return PPDText().option("KvCutLabel", counts, counts.first()).onOff("KvAutoTapeCut").data();
}

QByteArray withSize(const QByteArray &size)
{
    return PPDText().onOff("KvMirror").size("T12x100", 34, 283).size(size, 72, 144).data();
}

/// The printers of a check in JSON.
QJsonArray printersOf(const ProgramRun &run)
{
    return QJsonDocument::fromJson(run.output.toUtf8()).object().value(u"printers").toArray();
}

QStringList remarksOf(const QJsonValue &printer)
{
    return printer[u"remarks"].toVariant().toStringList();
}

/// The files below a folder whose names match, sorted.
QStringList filesBelow(const QString &folder, const QString &pattern)
{
    QStringList files;
    QDirIterator all(folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        files.append(all.next());
    }
    files.sort();
    return files;
}
} // namespace

/// What kvprint tells of a printer, a PPD or a keyword map before anybody prints.
class tst_check : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void soundPPD();
    void soundSamples();
    void optionsOfAMap();
    void remarkOnAPPD_data();
    void remarkOnAPPD();
    void printerWithoutAPanel();
    void queue();
    void queueWithoutAPPD();
    void unreadableInput_data();
    void unreadableInput();
    void otherPPDsAreCheckedBesideAnUnreadableOne();
    void installedPPDs();

    void soundMap();
    void remarkOnAMap_data();
    void remarkOnAMap();

private: // NOLINT(readability-redundant-access-specifiers)
    /// The check of a PPD with the installed maps.
    PrinterCheck checked(const QByteArray &ppd) const;

    ProblemReporter mReporter;
    PanelBundles mBundles = PanelBundles::load(QStringLiteral(KV_BUNDLE_FOLDER), mReporter);
};

PrinterCheck tst_check::checked(const QByteArray &ppd) const
{
    QString error;
    auto read = PPDFile::read(ppd, u"test"_s, &error);
    if (!read) {
        qWarning("%s", qPrintable(error));
        return {};
    }
    return PrinterCheck::of(PanelTarget::of(std::move(read)), mBundles, mBundles.maps());
}

void tst_check::soundPPD()
{
    const QString path = PrintingSite::ppdPath(u"label"_s);
    const ProgramRun run = runKvprint({u"--check"_s, path}, {{}, {noScheduler}});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output,
             path + u"\n"
                    "  OPTION            PANEL        FROM           WHY NOT\n"
                    "  KvCutLabel        Cut Options  KvCutLabel\n"
                    "  KvCutAtEnd        Cut Options  KvCutAtEnd\n"
                    "  KvMirror          Cut Options  KvMirror\n"
                    "  KvAutoTapeCut     Cut Options  KvAutoTapeCut\n"
                    "  KvHalfCut                                     the PPD has no KvHalfCut\n"
                    "  KvChainPrint                                  the PPD has no KvChainPrint\n"
                    "  KvSpecialTape                                 the PPD has no KvSpecialTape\n"
                    "  KvRemoveBlkSpace                              the PPD has no "
                    "KvRemoveBlkSpace\n"
                    "  KvCutMark                                     the PPD has no KvCutMark\n"
                    "\n"
                    "  No remarks\n"_s);
}

void tst_check::soundSamples()
{
    QStringList paths;
    for (const QString &printer : PrintingSite::printers()) {
        if (printer != u"plain") {
            paths.append(PrintingSite::ppdPath(printer));
        }
    }
    const ProgramRun run = runKvprint(QStringList{u"--check"_s, u"--json"_s} + paths);
    const QJsonArray printers = printersOf(run);
    QCOMPARE(printers.size(), paths.size());
    for (qsizetype i = 0; i < printers.size(); ++i) {
        QCOMPARE(printers.at(i)[u"ppd"].toString(), paths.at(i));
        QCOMPARE(printers.at(i)[u"name"], QJsonValue(QJsonValue::Null));
        QCOMPARE(printers.at(i)[u"map"], QJsonValue(QJsonValue::Null));
        QCOMPARE(printers.at(i)[u"panels"].toArray(), QJsonArray{u"Cut Options"_s});
        QCOMPARE(printers.at(i)[u"options"].toArray().size(), 9);
        QCOMPARE(remarksOf(printers.at(i)), QStringList());
    }
    QCOMPARE(run.status, 0);
}

void tst_check::optionsOfAMap()
{
    const PrinterCheck check =
        checked(PPDText().option("CutMedia", {"None", "Auto"}, "None").data());
    QCOMPARE(check.map, standardMap);
    QCOMPARE(check.remarks, QStringList());
    QMap<QString, QString> said;
    for (const PrinterCheck::Option &option : check.options) {
        QCOMPARE(option.panel.isNull(), option.sources.isEmpty());
        said.insert(option.key, option.sources.join(u' ') + option.reason);
    }
    QCOMPARE(said.size(), 9);
    QCOMPARE(said.value(u"KvCutLabel"_s), u"CutMedia"_s);
    QCOMPARE(said.value(u"KvAutoTapeCut"_s), u"CutMedia"_s);
    QCOMPARE(said.value(u"KvCutAtEnd"_s), u"the PPD lacks choices of CutMedia"_s);
    QCOMPARE(said.value(u"KvMirror"_s), u"the PPD lacks choices of MirrorPrint"_s);
    QCOMPARE(said.value(u"KvHalfCut"_s), u"the map has no KvHalfCut"_s);
}

void tst_check::remarkOnAPPD_data()
{
    const TestTable<QByteArray, QStringList> table("ppd", "remarks");
    const QByteArrayList switches{"OFF/Off", "ON/On"};
    const QString order = u"KvHalfCut: has the choices %1; the check box needs OFF and ON, in this "
                          "order"_s;
    table.add("sound", withHalfCut(switches, "OFF"), {});
    table.add("no choices", withHalfCut({}, "OFF"), {u"KvHalfCut: has no choices"_s});
    table.add("one choice", withHalfCut({"OFF"}, "OFF"), {order.arg(u"OFF"_s)});
    table.add("same choice twice", withHalfCut({"OFF", "ON", "ON"}, "OFF"),
              {u"KvHalfCut: has the choice ON twice"_s, order.arg(u"OFF, ON, ON"_s)});
    table.add("on before off", withHalfCut({"ON", "OFF"}, "OFF"), {order.arg(u"ON, OFF"_s)});
    table.add("other words", withHalfCut({"False", "True"}, "False"),
              {order.arg(u"False, True"_s)});
    table.add("no default", withHalfCut(switches, ""), {u"KvHalfCut: has no default"_s});
    table.add("strange default", withHalfCut(switches, "MAYBE"),
              {u"KvHalfCut: has the default MAYBE, which is none of its choices"_s});
    table.add("title that is no UTF-8", withHalfCut(switches, "OFF", "Halb\xe4"),
              {u"KvHalfCut: has a title that is not UTF-8"_s});
    table.add("choice's title that is no UTF-8", withHalfCut({"OFF", "ON/\xfc"}, "OFF"),
              {u"KvHalfCut: has a title of its choice ON that is not UTF-8"_s});

    table.add("one count", withCounts({"1"}), {});
    table.add("counts from two", withCounts({"2", "3", "4"}), {});
    table.add("gap", withCounts({"1", "2", "4"}),
              {u"KvCutLabel: has 4 behind 2; counts have to ascend by one, because they are chosen "
               "by their place"_s});
    table.add("descending", withCounts({"2", "1"}),
              {u"KvCutLabel: has 1 behind 2; counts have to ascend by one, because they are chosen "
               "by their place"_s});
    table.add("no count", withCounts({"1", "All"}),
              {u"KvCutLabel: has the choice All, which is no count"_s});

    table.add("auto cut without a box", PPDText().onOff("KvAutoTapeCut").data(),
              {u"KvAutoTapeCut: has no check box: there is no KvCutLabel to set it, and "
               "KvAutoCutObjHidden is not False"_s});
    table.add("auto cut with a box",
              PPDText().onOff("KvAutoTapeCut").attribute("KvAutoCutObjHidden", "False").data(), {});
    table.add(
        "count without auto cut", PPDText().counts(1, 3).data(),
        {u"the panel \"Cut Options\" sets KvAutoTapeCut, which the printer's PPD lacks: no job "
         "carries it"_s});

    table.add("unread option", PPDText().onOff("KvMirror").onOff("KvHalfCutt").data(),
              {u"KvHalfCutt: no panel reads this option"_s});
    table.add("unread keyword", withLines("*KvTapeKind: \"RV\"\n*KvTapeType: \"RV\"\n"),
              {u"KvTapeKind: no panel reads this keyword"_s});
    table.add("option without OpenUI", withLines("*KvHalfCut ON/On: \"\"\n"),
              {u"KvHalfCut: has a line outside of OpenUI and CloseUI, which no panel reads"_s});
    table.add("keywords of others", withLines("*XxTapeKind: \"RV\"\n"), {});

    table.add("tape", withSize("T24x100"), {});
    table.add("die-cut labels", withSize("DC62x29"), {});
    table.add("flag labels by accident", withSize("FLSA"),
              {u"FLSA: counts as flag labels, because its name begins with FL"_s});
    table.add(
        "die-cut labels in small letters", withSize("dc62x29"),
        {u"dc62x29: does not count as die-cut labels: its name would have to begin with DC"_s});
    table.add("paper that looks like none", withSize("Flyer"), {});
}

void tst_check::remarkOnAPPD()
{
    QFETCH(const QByteArray, ppd);
    const PrinterCheck check = checked(ppd);
    QCOMPARE(check.panels, QStringList{u"Cut Options"_s});
    QTEST(check.remarks, "remarks");
}

void tst_check::printerWithoutAPanel()
{
    const ProgramRun run = runKvprint({u"--check"_s, u"--json"_s, u"-d"_s, u"plain"_s});
    QCOMPARE(run.status, 1);
    const QJsonArray printers = printersOf(run);
    QCOMPARE(printers.size(), 1);
    QCOMPARE(printers.first()[u"name"].toString(), u"plain"_s);
    QCOMPARE(printers.first()[u"panels"].toArray(), QJsonArray());
    QCOMPARE(printers.first()[u"options"].toArray(), QJsonArray());
    QCOMPARE(remarksOf(printers.first()),
             QStringList({noPanel,
                          u"the map %1 does not fit: the PPD lacks choices of CutMedia and "
                          "MirrorPrint"_s.arg(standardMap),
                          u"KvDensity: no panel reads this option"_s}));
}

void tst_check::queue()
{
    QVERIFY(mSite.saveUserOptions("Default mark\n"));
    for (const QStringList &printer : {QStringList{}, QStringList{u"-d"_s, u"mark"_s}}) {
        const ProgramRun run = runKvprint(QStringList{u"--check"_s} + printer);
        QCOMPARE(run.status, 0);
        QVERIFY2(run.output.startsWith(u"mark\n  OPTION "_s), qPrintable(run.output));
    }
}

void tst_check::queueWithoutAPPD()
{
    QVERIFY(addPrinter(u"bare"_s));
    const ProgramRun run = runKvprint({u"--check"_s, u"-d"_s, u"bare"_s});
    QCOMPARE(run.status, 1);
    QCOMPARE(run.output, u"bare\n  REMARK\n  the printer has no PPD\n"_s);
}

void tst_check::unreadableInput_data()
{
    const TestTable<QStringList, QString> table("arguments", "error");
    const QString spoilt = mSite.file(u"spoilt.ppd"_s, "*PPD-Adobe: \"4.3\"\nno PPD\n");
    table.add("PPD", {u"--check"_s, spoilt}, spoilt + u": line 2: Missing asterisk in column 1"_s);
    table.add("no PPD", {u"--check"_s, u"no.ppd"_s}, u"no.ppd: No such file or directory"_s);
    table.add("queue", {u"--check"_s, u"-d"_s, u"nowhere"_s}, u"nowhere"_s);
    table.add("no map", {u"--check-map"_s, u"no.json"_s}, u"no.json is missing"_s);
    table.add("folder as a map", {u"--check-map"_s, u"/"_s}, u"/ is a folder"_s);
    table.add("PPD for a map", {u"--check-map"_s, standardMap, spoilt}, spoilt);
}

void tst_check::unreadableInput()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, error);
    const ProgramRun run = runKvprint(arguments);
    QCOMPARE(run.status, 3);
    QVERIFY(run.tells(u"kvprint: "_s) && run.tells(error));
}

void tst_check::otherPPDsAreCheckedBesideAnUnreadableOne()
{
    const QString label = PrintingSite::ppdPath(u"label"_s);
    const ProgramRun run = runKvprint({u"--check"_s, u"no.ppd"_s, label});
    QCOMPARE(run.status, 3);
    QVERIFY(run.tells(u"no.ppd: No such file or directory"_s));
    QVERIFY2(run.output.startsWith(label), qPrintable(run.output));
}

void tst_check::installedPPDs()
{
    QTemporaryDir made;
    const QStringList sources = filesBelow(u"/usr/share/cups/drv"_s, u"*.drv"_s);
    for (const QString &source : sources) {
        const QString folder = made.filePath(QFileInfo(source).baseName());
        QCOMPARE(runProgram(u"ppdc"_s, {u"-d"_s, folder, source}).status, 0);
    }
    const QStringList ppds =
        filesBelow(made.path(), u"*.ppd"_s) + filesBelow(u"/usr/share/ppd"_s, u"*.ppd"_s);
    // Debian's own descriptions of printers also give PPDs that libcups cannot read.
    const qsizetype readable = std::count_if(ppds.begin(), ppds.end(), [](const QString &ppd) {
        return PPDHandle(ppdOpenFile(QFile::encodeName(ppd).constData())) != nullptr;
    });
    QVERIFY(readable > 20);
    const ProgramRun run = runKvprint(QStringList{u"--check"_s, u"--json"_s} + ppds);
    const bool areAllRead = run.status == 0 || run.status == 1;
    QVERIFY2(areAllRead || run.status == 3, qPrintable(run.errors));
    QCOMPARE(areAllRead, readable == ppds.size());
    const QJsonArray printers = printersOf(run);
    QCOMPARE(printers.size(), readable);
    for (const QJsonValue &printer : printers) {
        QVERIFY(!printer[u"panels"].toArray().isEmpty() || remarksOf(printer).contains(noPanel));
    }
}

void tst_check::soundMap()
{
    const QString cutter = mSite.file(u"cutter.ppd"_s, CutterPrinter::ppd("None"));
    const ProgramRun run = runKvprint({u"--json"_s, u"--check-map"_s, standardMap, cutter});
    QCOMPARE(run.status, 0);
    const QJsonArray printers = printersOf(run);
    QCOMPARE(printers.size(), 2);
    for (const QJsonValue &printer : printers) {
        QCOMPARE(printer[u"map"].toString(), standardMap);
        QCOMPARE(printer[u"options"].toArray().size(), 9);
        QCOMPARE(remarksOf(printer), QStringList());
    }
    QCOMPARE(printers.at(0)[u"ppd"], QJsonValue(QJsonValue::Null));
    QCOMPARE(printers.at(1)[u"ppd"].toString(), cutter);
}

void tst_check::remarkOnAMap_data()
{
    const TestTable<QByteArray, QByteArray, QStringList> table("map", "ppd", "remarks");
    const auto changed = [](const char *from, const char *to) {
        return QByteArray(finishingMap).replace(from, to);
    };
    const QByteArray half = finishingPPD("Half");
    table.add("sound", finishingMap, {}, {});
    table.add("alternative in no PPD", finishingMap, half,
              {u"Finishing=HalfCut: none of the PPDs has it"_s});
    table.add("names in no PPD", finishingMap, PPDText().data(),
              {u"Finishing: none of the PPDs has it"_s});
    table.add("other maker", changed("\"Korvane\"", "\"Other\""), half,
              {u"Finishing=HalfCut: none of the PPDs has it"_s,
               u"Manufacturer: \"Other\": none of the PPDs has it"_s});
    table.add("missing row", changed("\"OFF\", \"ON\"", "\"OFF\", \"ON\", \"MAYBE\""), {},
              {u"MAP: line 3: the rows name OFF, ON for KvHalfCut, whose choices are MAYBE, OFF, "
               "ON"_s});
    table.add("on before off", changed("\"OFF\", \"ON\"", "\"ON\", \"OFF\""), {},
              {u"KvHalfCut: has the choices ON, OFF; the check box needs OFF and ON, in this "
               "order"_s});
    table.add("option of no panel", changed("KvHalfCut", "KvHalfCutt"), {},
              {noPanel, u"KvHalfCutt: no panel reads this option"_s});
    table.add("count that gets lost",
              changed("[\"OFF\", \"ON\"]}",
                      "[\"OFF\", \"ON\"]}, \"KvCutLabel\": {\"text\": \"Cut\", \"choices\": "
                      "[\"1\", \"2\"], \"with\": \"KvHalfCut\"}"),
              {},
              {u"the panel \"Cut Options\" sets KvAutoTapeCut, which the printer's PPD lacks: no "
               "job carries it"_s,
               u"KvCutLabel: has 2 choices, but the printer is not told which"_s});
}

void tst_check::remarkOnAMap()
{
    QFETCH(const QByteArray, map);
    QFETCH(const QByteArray, ppd);
    QFETCH(QStringList, remarks);
    const QString file = mSite.file(u"map.json"_s, map);
    QStringList arguments{u"--json"_s, u"--check-map"_s, file};
    if (!ppd.isEmpty()) {
        arguments.append(mSite.file(u"finishing.ppd"_s, ppd));
    }
    const ProgramRun run = runKvprint(arguments);
    QCOMPARE(run.status, remarks.isEmpty() ? 0 : 1);
    remarks.replaceInStrings(u"MAP"_s, file);
    QCOMPARE(remarksOf(printersOf(run).first()), remarks);
}

KV_TEST(tst_check)
#include "tst_check.moc"
