#include "PrintingSite.h"
#include "ProgramRun.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {
const QString list = QStringLiteral("--list");
const QString noScheduler = QStringLiteral("CUPS_SERVER=127.0.0.1:9");

/// The printers of a list in JSON; none when it is no such list.
QJsonArray printersIn(const ProgramRun &run)
{
    const QJsonObject list = QJsonDocument::fromJson(run.output.toUtf8()).object();
    return list.keys() == QStringList{u"printers"_qs} ? list.value(u"printers").toArray()
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
class tst_list : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void allPrinters();
    void onePrinter();
    void optionsOfThePanelComeFirst();
    void option();
    void currentIsWhatAJobWouldCarry();
    void instances();
    void presets();
    void presetsThatThePaperForbids();
    void printerOfAPPD();
    void tableOfAPPD();
    void tableOfPrinters();
    void printerWithoutAPPD();
    void unknownPrinter();
    void missingPPD();
    void schedulerThatDoesNotAnswer();
    void printerWhosePPDIsBroken();
    void outputThatCannotBeWritten();

private: // NOLINT(readability-redundant-access-specifiers)
    /// The object of a queue in the list of that queue alone.
    static QJsonObject printer(const QString &name);

    PrintingSite mSite;
};

void tst_list::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
}

void tst_list::init()
{
    QVERIFY(mSite.saveUserOptions(""));
}

QJsonObject tst_list::printer(const QString &name)
{
    const ProgramRun run = runKvprint({list, u"--json"_qs, u"-d"_qs, name});
    const QJsonArray printers = printersIn(run);
    return run.status == 0 && printers.size() == 1 ? printers.first().toObject() : QJsonObject();
}

void tst_list::allPrinters()
{
    QVERIFY(mSite.saveUserOptions("Default mark\n"));
    const ProgramRun run = runKvprint({list, u"--json"_qs});
    QCOMPARE(run.status, 0);
    QVERIFY2(!run.errors.contains(u"kvprint: "), qPrintable(run.errors));
    const QJsonArray printers = printersIn(run);
    QStringList expected = PrintingSite::printers();
    expected.sort();
    QCOMPARE(namesIn(printers), expected);
    for (const QJsonValue &printer : printers) {
        const bool isPlain = printer[u"name"] == QJsonValue(u"plain"_qs);
        QCOMPARE(printer[u"default"], QJsonValue(printer[u"name"] == QJsonValue(u"mark"_qs)));
        QCOMPARE(printer[u"panel"], isPlain ? QJsonValue() : QJsonValue(u"Cut Options"_qs));
        QCOMPARE(printer[u"presets"].toArray().isEmpty(), isPlain);
        QVERIFY(!printer[u"options"].toArray().isEmpty());
    }
}

void tst_list::onePrinter()
{
    const QJsonObject label = printer(u"label"_qs);
    QCOMPARE(label.value(u"name").toString(), u"label"_qs);
    QCOMPARE(label.value(u"default"), QJsonValue(false));
    QCOMPARE(namesIn(label.value(u"presets")),
             QStringList({u"EveryEndMirrorOffOffOff"_qs, u"EveryEndMirrorOffOnOff"_qs,
                          u"EveryEndMirrorOnOffOff"_qs, u"EveryEndMirrorOnOnOff"_qs}));
}

void tst_list::optionsOfThePanelComeFirst()
{
    const QJsonArray options = printer(u"tape"_qs).value(u"options").toArray();
    const QStringList names = namesIn(options);
    const QStringList ofPanel{u"KvMirror"_qs,     u"KvAutoTapeCut"_qs, u"KvHalfCut"_qs,
                              u"KvChainPrint"_qs, u"KvSpecialTape"_qs, u"KvRemoveBlkSpace"_qs};
    QCOMPARE(names.mid(0, ofPanel.size()), ofPanel);
    QVERIFY(names.contains(u"PageSize"_qs));
    QVERIFY(!names.contains(u"PageRegion"_qs));
    for (const QJsonValue &option : options) {
        QCOMPARE(option[u"panel"].toBool(), ofPanel.contains(option[u"name"].toString()));
    }
}

void tst_list::option()
{
    const QJsonArray options = printer(u"label"_qs).value(u"options").toArray();
    const QJsonObject mirror = named(options, u"KvMirror"_qs);
    QCOMPARE(mirror.keys(), QStringList({u"choices"_qs, u"current"_qs, u"default"_qs, u"name"_qs,
                                         u"panel"_qs, u"text"_qs}));
    QCOMPARE(mirror.value(u"text").toString(), u"Mirror Printing"_qs);
    QCOMPARE(mirror.value(u"choices").toArray(),
             QJsonArray({QJsonObject{{u"name"_qs, u"OFF"_qs}, {u"text"_qs, u"Off"_qs}},
                         QJsonObject{{u"name"_qs, u"ON"_qs}, {u"text"_qs, u"On"_qs}}}));
    const QJsonObject count = named(options, u"KvCutLabel"_qs);
    QCOMPARE(count.value(u"default").toString(), u"1"_qs);
    QCOMPARE(namesIn(count.value(u"choices")), rangeOf(1, 99));
    const QJsonObject size = named(options, u"PageSize"_qs);
    QCOMPARE(size.value(u"default").toString(), u"62x29"_qs);
    QVERIFY(namesIn(size.value(u"choices")).contains(u"DC62x29"_qs));
}

void tst_list::currentIsWhatAJobWouldCarry()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=ON PageSize=T24x100\n"));
    const QJsonValue options = printer(u"tape"_qs).value(u"options");
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
    const QJsonArray printers = printersIn(runKvprint({list, u"--json"_qs}));
    QStringList expected = PrintingSite::printers() + QStringList{u"tape/draft"_qs};
    expected.sort();
    QCOMPARE(namesIn(printers), expected);
    const QJsonObject draft = named(printers, u"tape/draft"_qs);
    QCOMPARE(draft.value(u"default"), QJsonValue(true));
    QCOMPARE(named(draft.value(u"options"), u"KvHalfCut"_qs).value(u"current").toString(),
             u"ON"_qs);
    const QJsonObject tape = named(printers, u"tape"_qs);
    QCOMPARE(tape.value(u"default"), QJsonValue(false));
    QCOMPARE(named(tape.value(u"options"), u"KvHalfCut"_qs).value(u"current").toString(),
             u"OFF"_qs);
    QCOMPARE(printer(u"tape/draft"_qs).value(u"options"), draft.value(u"options"));
}

void tst_list::presets()
{
    const QJsonArray presets = printer(u"tape"_qs).value(u"presets").toArray();
    QCOMPARE(namesIn(presets),
             QStringList({u"AHCMOffOffOffOff"_qs, u"AHCMOffOffOnOff"_qs, u"AHCMOffOnOffOff"_qs,
                          u"AHCMOffOnOnOff"_qs, u"AHCMOnOffOffOff"_qs, u"AHCMOnOffOnOff"_qs,
                          u"AHCMOnOnOffOff"_qs, u"AHCMOnOnOnOff"_qs, u"SPMROnOff"_qs}));
    for (qsizetype i = 0; i < presets.size(); ++i) {
        QCOMPARE(presets.at(i)[u"tag"].toInt(), 5 + int(i));
        QCOMPARE(presets.at(i)[u"enabled"], QJsonValue(true));
        // The printer's default is to cut.
        QCOMPARE(presets.at(i)[u"selected"], QJsonValue(i == 4));
    }
    QCOMPARE(presets.at(2)[u"text"].toString(), u"Half cut"_qs);
}

void tst_list::presetsThatThePaperForbids()
{
    QVERIFY(mSite.saveUserOptions("Dest tape PageSize=FL21x45\n"));
    const QJsonArray presets = printer(u"tape"_qs).value(u"presets").toArray();
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
    const QString path = PrintingSite::ppdPath(u"follow"_qs);
    const ProgramRun run = runKvprint({u"--ppd"_qs, path, list, u"--json"_qs}, {{}, {noScheduler}});
    QCOMPARE(run.status, 0);
    const QJsonArray printers = printersIn(run);
    QCOMPARE(printers.size(), 1);
    QCOMPARE(printers.first()[u"name"], QJsonValue());
    QCOMPARE(printers.first()[u"ppd"].toString(), path);
    QCOMPARE(printers.first()[u"panel"].toString(), u"Cut Options"_qs);
    QVERIFY(!named(printers.first()[u"options"], u"KvCutLabel"_qs).isEmpty());
}

void tst_list::tableOfAPPD()
{
    const QString path = PrintingSite::ppdPath(u"label"_qs);
    const ProgramRun run = runKvprint({u"--ppd"_qs, path, list}, {{}, {noScheduler}});
    QCOMPARE(run.status, 0);
    const QString table = path +
                          u"\n"
                          "  OPTION      DEFAULT  CURRENT  CHOICES\n"
                          "  KvCutLabel  1        1        1-99\n"
                          "  KvCutAtEnd  OFF      OFF      OFF ON\n"
                          "  KvMirror    OFF      OFF      OFF ON\n"
                          "  PageSize    62x29    62x29    62x29 17x54 29x90 38x90 62x100 DC17x87 "
                          "DC24x24 DC62x29 C_12 C_29 C_62\n"
                          "\n"
                          "  PRESET                      MEANING\n"
                          "  EveryEndMirrorOffOffOff     No cutting\n"
                          "  EveryEndMirrorOffOnOff      Cut at end\n"
                          "  EveryEndMirrorOnOffOff   *  Cut between labels\n"
                          "  EveryEndMirrorOnOnOff       Cut between labels and at end\n"_qs;
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
    QCOMPARE(printers, QStringList({u"all"_qs, u"follow"_qs, u"label"_qs, u"mark"_qs, u"plain"_qs,
                                    u"tape (default)"_qs}));
    QVERIFY(run.output.contains(u"\n  KvHalfCut         OFF      ON       OFF ON\n"));
    QVERIFY(run.output.contains(u"\n  KvDensity  Normal   Normal   Light Normal Dark\n"));
}

void tst_list::printerWithoutAPPD()
{
    QString error;
    QVERIFY2(mSite.scheduler().addPrinter(u"raw"_qs, {}, &error), qPrintable(error));
    const QJsonObject raw = printer(u"raw"_qs);
    QVERIFY(mSite.scheduler().jobIds().isEmpty());
    QCOMPARE(raw.value(u"name").toString(), u"raw"_qs);
    QCOMPARE(raw.value(u"panel"), QJsonValue());
    QVERIFY(raw.value(u"options").toArray().isEmpty());
    QVERIFY(raw.value(u"presets").toArray().isEmpty());
    const ProgramRun table = runKvprint({list, u"-d"_qs, u"raw"_qs});
    QCOMPARE(table.status, 0);
    QCOMPARE(table.output, u"raw\n  no options\n"_qs);
    QVERIFY2(!table.errors.contains(u"kvprint: "), qPrintable(table.errors));
}

void tst_list::unknownPrinter()
{
    const ProgramRun run = runKvprint({list, u"-d"_qs, u"nowhere"_qs});
    QCOMPARE(run.status, 3);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.errors.contains(u"kvprint: there is no printer nowhere; the printers are: all, "),
             qPrintable(run.errors));
}

void tst_list::missingPPD()
{
    const ProgramRun run = runKvprint({list, u"--ppd"_qs, u"/nowhere.ppd"_qs});
    QCOMPARE(run.status, 3);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.errors.contains(u"kvprint: /nowhere.ppd: No such file or directory"),
             qPrintable(run.errors));
}

void tst_list::schedulerThatDoesNotAnswer()
{
    for (const QStringList &more : {QStringList{}, QStringList{u"--json"_qs}}) {
        const ProgramRun run = runKvprint(QStringList{list} + more, {{}, {noScheduler}});
        QCOMPARE(run.status, 3);
        QCOMPARE(run.output, QString());
        QVERIFY2(run.errors.contains(u"kvprint: no print scheduler answers at 127.0.0.1"),
                 qPrintable(run.errors));
    }
}

void tst_list::printerWhosePPDIsBroken()
{
    QString error;
    const QString tape = PrintingSite::ppdPath(u"tape"_qs);
    QVERIFY2(mSite.scheduler().addPrinter(u"spoilt"_qs, tape, &error), qPrintable(error));
    QFile ppd(mSite.scheduler().folder() + u"/etc/ppd/spoilt.ppd"_qs);
    QVERIFY(ppd.open(QIODevice::WriteOnly) && ppd.write("no PPD\n") > 0);
    ppd.close();
    const ProgramRun run = runKvprint({list, u"--json"_qs});
    QCOMPARE(run.status, 0);
    QVERIFY2(run.errors.contains(u"kvprint: PPD of spoilt: line 1: Missing asterisk in column 1"),
             qPrintable(run.errors));
    const QJsonArray printers = printersIn(run);
    QVERIFY(named(printers, u"spoilt"_qs).value(u"options").toArray().isEmpty());
    QVERIFY(!named(printers, u"tape"_qs).value(u"options").toArray().isEmpty());
}

void tst_list::outputThatCannotBeWritten()
{
    // More than is kept back for the end.
    const QString line = u"exec '%1' --ppd '%2' --list --json > /dev/full"_qs;
    const ProgramRun run =
        runInShell(line.arg(QStringLiteral(KV_PRINT_PROGRAM), PrintingSite::ppdPath(u"label"_qs)));
    QCOMPARE(run.status, 3);
    QVERIFY2(run.errors.contains(u"No space left on device"), qPrintable(run.errors));
}

KV_TEST(tst_list)
#include "tst_list.moc"
