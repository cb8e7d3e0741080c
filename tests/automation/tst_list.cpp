// SPDX-License-Identifier: Apache-2.0
#include "CutterPrinter.h"
#include "PrintingTest.h"
#include "ProgramRun.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {
const QString list = u"--list"_s;

/// The printers of a list in JSON; none when it is no such list.
QJsonArray printersIn(const ProgramRun &run)
{
    const QJsonObject list = QJsonDocument::fromJson(run.output.toUtf8()).object();
    return list.keys() == QStringList{u"printers"_s} ? list.value(u"printers").toArray()
                                                     : QJsonArray();
}

/// The names of objects in an array.
QStringList namesIn(const QJsonValue &array)
{
    QStringList names;
    const QJsonArray all = array.toArray();
    for (const QJsonValue &value : all) {
        names.append(value[u"name"].toString());
    }
    return names;
}

/// The object of that name in an array; empty when there is none.
QJsonObject named(const QJsonValue &array, const QString &name)
{
    const QJsonArray all = array.toArray();
    for (const QJsonValue &value : all) {
        if (value[u"name"] == QJsonValue(name)) {
            return value.toObject();
        }
    }
    return {};
}

QStringList rangeOf(int first, int last)
{
    QStringList numbers;
    for (int number = first; number <= last; ++number) {
        numbers.append(QString::number(number));
    }
    return numbers;
}
} // namespace

/// The list of printers, their options and their presets.
class tst_list : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void allPrinters();
    void onePrinter();
    void optionsOfThePanelComeFirst();
    void option();
    void currentIsWhatAJobWouldCarry();
    void instances();
    void presets();
    void presetsThatThePaperForbids();
    void printerOfAPPD();
    void mapIsTold();
    void tableOfAPPD();
    void tableOfPrinters();
    void printerWithoutAPPD();
    void schedulerThatDoesNotAnswer();
    void printerWhosePPDIsBroken();
    void outputThatCannotBeWritten();

private: // NOLINT(readability-redundant-access-specifiers)
    /// The object of a queue in the list of that queue alone.
    static QJsonObject printer(const QString &name);
};

QJsonObject tst_list::printer(const QString &name)
{
    const ProgramRun run = runKvprint({list, u"--json"_s, u"-d"_s, name});
    const QJsonArray printers = printersIn(run);
    return run.status == 0 && printers.size() == 1 ? printers.first().toObject() : QJsonObject();
}

void tst_list::allPrinters()
{
    QVERIFY(mSite.saveUserOptions("Default mark\n"));
    const ProgramRun run = runKvprint({list, u"--json"_s});
    QCOMPARE(run.status, 0);
    QVERIFY2(!run.errors.contains(u"kvprint: "), qPrintable(run.errors));
    const QJsonArray printers = printersIn(run);
    QStringList expected = PrintingSite::printers();
    expected.sort();
    QCOMPARE(namesIn(printers), expected);
    for (const QJsonValue &printer : printers) {
        const bool isPlain = printer[u"name"] == QJsonValue(u"plain"_s);
        QCOMPARE(printer[u"default"], QJsonValue(printer[u"name"] == QJsonValue(u"mark"_s)));
        QCOMPARE(printer[u"panel"], isPlain ? QJsonValue() : QJsonValue(u"Cut Options"_s));
        QCOMPARE(printer[u"presets"].toArray().isEmpty(), isPlain);
        QVERIFY(!printer[u"options"].toArray().isEmpty());
    }
}

void tst_list::onePrinter()
{
    const QJsonObject label = printer(u"label"_s);
    QCOMPARE(label.value(u"name").toString(), u"label"_s);
    QCOMPARE(label.value(u"default"), QJsonValue(false));
    QCOMPARE(namesIn(label.value(u"presets")),
             QStringList({u"EveryEndMirrorOffOffOff"_s, u"EveryEndMirrorOffOnOff"_s,
                          u"EveryEndMirrorOnOffOff"_s, u"EveryEndMirrorOnOnOff"_s}));
}

void tst_list::optionsOfThePanelComeFirst()
{
    const QJsonArray options = printer(u"tape"_s).value(u"options").toArray();
    const QStringList names = namesIn(options);
    const QStringList ofPanel{u"KvMirror"_s,     u"KvAutoTapeCut"_s, u"KvHalfCut"_s,
                              u"KvChainPrint"_s, u"KvSpecialTape"_s, u"KvRemoveBlkSpace"_s};
    QCOMPARE(names.mid(0, ofPanel.size()), ofPanel);
    QVERIFY(names.contains(u"PageSize"_s));
    QVERIFY(!names.contains(u"PageRegion"_s));
    for (const QJsonValue &option : options) {
        QCOMPARE(option[u"panel"].toBool(), ofPanel.contains(option[u"name"].toString()));
    }
}

void tst_list::option()
{
    const QJsonArray options = printer(u"label"_s).value(u"options").toArray();
    const QJsonObject mirror = named(options, u"KvMirror"_s);
    QCOMPARE(mirror.keys(), QStringList({u"choices"_s, u"current"_s, u"default"_s, u"name"_s,
                                         u"panel"_s, u"text"_s}));
    QCOMPARE(mirror.value(u"text").toString(), u"Mirror Printing"_s);
    QCOMPARE(mirror.value(u"choices").toArray(),
             QJsonArray({QJsonObject{{u"name"_s, u"OFF"_s}, {u"text"_s, u"Off"_s}},
                         QJsonObject{{u"name"_s, u"ON"_s}, {u"text"_s, u"On"_s}}}));
    const QJsonObject count = named(options, u"KvCutLabel"_s);
    QCOMPARE(count.value(u"default").toString(), u"1"_s);
    QCOMPARE(namesIn(count.value(u"choices")), rangeOf(1, 99));
    const QJsonObject size = named(options, u"PageSize"_s);
    QCOMPARE(size.value(u"default").toString(), u"62x29"_s);
    QVERIFY(namesIn(size.value(u"choices")).contains(u"DC62x29"_s));
}

void tst_list::currentIsWhatAJobWouldCarry()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=ON PageSize=T24x100\n"));
    const QJsonValue options = printer(u"tape"_s).value(u"options");
    const std::tuple<const char *, const char *, const char *> values[] = {
        {"KvHalfCut", "OFF", "ON"},
        {"KvAutoTapeCut", "ON", "ON"},
        {"KvMirror", "OFF", "OFF"},
        {"PageSize", "T12x100", "T24x100"},
    };
    for (const auto &[name, byDefault, current] : values) {
        const QJsonObject option = named(options, QLatin1String(name));
        QCOMPARE(option.value(u"default").toString(), QLatin1String(byDefault));
        QCOMPARE(option.value(u"current").toString(), QLatin1String(current));
    }
}

void tst_list::instances()
{
    QVERIFY(mSite.saveUserOptions("Default tape/draft KvHalfCut=ON\n"));
    const QJsonArray printers = printersIn(runKvprint({list, u"--json"_s}));
    QStringList expected = PrintingSite::printers() + QStringList{u"tape/draft"_s};
    expected.sort();
    QCOMPARE(namesIn(printers), expected);
    const QJsonObject draft = named(printers, u"tape/draft"_s);
    QCOMPARE(draft.value(u"default"), QJsonValue(true));
    QCOMPARE(named(draft.value(u"options"), u"KvHalfCut"_s).value(u"current").toString(), u"ON"_s);
    const QJsonObject tape = named(printers, u"tape"_s);
    QCOMPARE(tape.value(u"default"), QJsonValue(false));
    QCOMPARE(named(tape.value(u"options"), u"KvHalfCut"_s).value(u"current").toString(), u"OFF"_s);
    QCOMPARE(printer(u"tape/draft"_s).value(u"options"), draft.value(u"options"));
}

void tst_list::presets()
{
    const QJsonArray presets = printer(u"tape"_s).value(u"presets").toArray();
    QCOMPARE(namesIn(presets),
             QStringList({u"AHCMOffOffOffOff"_s, u"AHCMOffOffOnOff"_s, u"AHCMOffOnOffOff"_s,
                          u"AHCMOffOnOnOff"_s, u"AHCMOnOffOffOff"_s, u"AHCMOnOffOnOff"_s,
                          u"AHCMOnOnOffOff"_s, u"AHCMOnOnOnOff"_s, u"SPMROnOff"_s}));
    for (qsizetype i = 0; i < presets.size(); ++i) {
        QCOMPARE(presets.at(i)[u"tag"].toInt(), 5 + int(i));
        QCOMPARE(presets.at(i)[u"enabled"], QJsonValue(true));
        // The printer's default is to cut.
        QCOMPARE(presets.at(i)[u"selected"], QJsonValue(i == 4));
    }
    QCOMPARE(presets.at(2)[u"text"].toString(), u"Half cut"_s);
}

void tst_list::presetsThatThePaperForbids()
{
    QVERIFY(mSite.saveUserOptions("Dest tape PageSize=FL21x45\n"));
    const QJsonArray presets = printer(u"tape"_s).value(u"presets").toArray();
    QList<int> enabled;
    for (const QJsonValue &preset : presets) {
        if (preset[u"enabled"].toBool()) {
            enabled.append(preset[u"tag"].toInt());
        }
    }
    QCOMPARE(enabled, QList<int>({5, 9}));
}

void tst_list::printerOfAPPD()
{
    const QString path = PrintingSite::ppdPath(u"follow"_s);
    const ProgramRun run = runKvprint({u"--ppd"_s, path, list, u"--json"_s}, {{}, {noScheduler}});
    QCOMPARE(run.status, 0);
    const QJsonArray printers = printersIn(run);
    QCOMPARE(printers.size(), 1);
    QCOMPARE(printers.first()[u"name"], QJsonValue());
    QCOMPARE(printers.first()[u"ppd"].toString(), path);
    QCOMPARE(printers.first()[u"panel"].toString(), u"Cut Options"_s);
    QCOMPARE(printers.first()[u"map"], QJsonValue(QJsonValue::Null));
    QVERIFY(!named(printers.first()[u"options"], u"KvCutLabel"_s).isEmpty());
}

void tst_list::mapIsTold()
{
    const QString path = mSite.file(u"cutter.ppd"_s, CutterPrinter::ppd("None"));
    const QString map = QStringLiteral(KV_MAPS "/standard.json");
    const QStringList arguments{u"--ppd"_s, path, list};
    const QJsonArray printers = printersIn(runKvprint(arguments + QStringList{u"--json"_s}));
    QCOMPARE(printers.size(), 1);
    QCOMPARE(printers.first()[u"map"].toString(), map);
    const QString heading = path + u"\n  Map: "_s + map + u"\n  OPTION "_s;
    const ProgramRun table = runKvprint(arguments);
    QVERIFY2(table.output.startsWith(heading), qPrintable(table.output));
}

void tst_list::tableOfAPPD()
{
    const QString path = PrintingSite::ppdPath(u"label"_s);
    const ProgramRun run = runKvprint({u"--ppd"_s, path, list}, {{}, {noScheduler}});
    QCOMPARE(run.status, 0);
    const QString table = path +
                          u"\n"
                          "  OPTION         DEFAULT  CURRENT  CHOICES\n"
                          "  KvCutLabel     1        1        1-99\n"
                          "  KvCutAtEnd     OFF      OFF      OFF ON\n"
                          "  KvMirror       OFF      OFF      OFF ON\n"
                          "  KvAutoTapeCut  ON       ON       OFF ON\n"
                          "  PageSize       62x29    62x29    62x29 17x54 29x90 38x90 62x100 "
                          "DC17x87 DC24x24 DC62x29 C_12 C_29 C_62\n"
                          "\n"
                          "  PRESET                      MEANING\n"
                          "  EveryEndMirrorOffOffOff     No cutting\n"
                          "  EveryEndMirrorOffOnOff      Cut at end\n"
                          "  EveryEndMirrorOnOffOff   *  Cut between labels\n"
                          "  EveryEndMirrorOnOnOff       Cut between labels and at end\n"_s;
    QCOMPARE(run.output, table);
}

void tst_list::tableOfPrinters()
{
    QVERIFY(mSite.saveUserOptions("Default tape KvHalfCut=ON\n"));
    const ProgramRun run = runKvprint({list});
    QCOMPARE(run.status, 0);
    QStringList printers;
    const QStringList lines = run.lines();
    for (const QString &line : lines) {
        if (!line.startsWith(u' ')) {
            printers.append(line);
        }
        QVERIFY2(!line.endsWith(u' '), qPrintable(line));
    }
    QCOMPARE(printers, QStringList({u"all"_s, u"follow"_s, u"label"_s, u"mark"_s, u"plain"_s,
                                    u"tape (default)"_s}));
    QVERIFY(run.output.contains(u"\n  KvHalfCut         OFF      ON       OFF ON\n"));
    QVERIFY(run.output.contains(u"\n  KvDensity  Normal   Normal   Light Normal Dark\n"));
}

void tst_list::printerWithoutAPPD()
{
    QVERIFY(addPrinter(u"raw"_s, {}));
    const QJsonObject raw = printer(u"raw"_s);
    QVERIFY(mSite.scheduler().jobIds().isEmpty());
    QCOMPARE(raw.value(u"name").toString(), u"raw"_s);
    QCOMPARE(raw.value(u"panel"), QJsonValue());
    QVERIFY(raw.value(u"options").toArray().isEmpty());
    QVERIFY(raw.value(u"presets").toArray().isEmpty());
    const ProgramRun table = runKvprint({list, u"-d"_s, u"raw"_s});
    QCOMPARE(table.status, 0);
    QCOMPARE(table.output, u"raw\n  no options\n"_s);
    QVERIFY2(!table.errors.contains(u"kvprint: "), qPrintable(table.errors));
}

void tst_list::schedulerThatDoesNotAnswer()
{
    for (const QStringList &more : {QStringList{}, QStringList{u"--json"_s}}) {
        const ProgramRun run = runKvprint(QStringList{list} + more, {{}, {noScheduler}});
        QCOMPARE(run.status, 3);
        QCOMPARE(run.output, QString());
        QVERIFY(run.tells(u"kvprint: no print scheduler answers at 127.0.0.1"_s));
    }
}

void tst_list::printerWhosePPDIsBroken()
{
    const QString tape = PrintingSite::ppdPath(u"tape"_s);
    QVERIFY(addPrinter(u"spoilt"_s, tape));
    QFile ppd(mSite.scheduler().folder() + u"/etc/ppd/spoilt.ppd"_s);
    QVERIFY(ppd.open(QIODevice::WriteOnly) && ppd.write("no PPD\n") > 0);
    ppd.close();
    const ProgramRun run = runKvprint({list, u"--json"_s});
    QCOMPARE(run.status, 0);
    QVERIFY(run.tells(u"kvprint: PPD of spoilt: line 1: Missing asterisk in column 1"_s));
    const QJsonArray printers = printersIn(run);
    QVERIFY(named(printers, u"spoilt"_s).value(u"options").toArray().isEmpty());
    QVERIFY(!named(printers, u"tape"_s).value(u"options").toArray().isEmpty());
}

void tst_list::outputThatCannotBeWritten()
{
    // More than is kept back for the end.
    const QString line = u"exec '%1' --ppd '%2' --list --json > /dev/full"_s;
    const ProgramRun run =
        runInShell(line.arg(QStringLiteral(KV_PRINT_PROGRAM), PrintingSite::ppdPath(u"label"_s)));
    QCOMPARE(run.status, 3);
    QVERIFY(run.tells(u"No space left on device"_s));
}

KV_TEST(tst_list)
#include "tst_list.moc"
