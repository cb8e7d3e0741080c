// SPDX-License-Identifier: Apache-2.0
#include "cups/KeywordMap.h"
#include "cups/PPDFile.h"
#include "support/PPDText.h"
#include "support/TestProgram.h"
#include "support/TestTable.h"

#include <QFile>
#include <QTest>

namespace {
/// The options that stand in the sentence "KEY=CHOICE KEY=CHOICE".
JobOptions optionsOf(const QString &sentence)
{
    JobOptions options;
    options.parse(sentence);
    return options;
}

QString sentenceOf(const JobOptions &options)
{
    QStringList words;
    for (const auto &[key, choice] : options.pairs()) {
        words.append(key + u'=' + choice);
    }
    words.sort();
    return words.join(u' ');
}

QByteArray installedMap()
{
    QFile file(QStringLiteral(KV_MAPS "/standard.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The installed map for a PPD; nothing when it does not fit.
std::optional<KeywordMap> fittedTo(const PPDFile &ppd)
{
    QString fault;
    const auto map = KeywordMap::read(installedMap(), &fault);
    return map ? map->fittedTo(ppd) : std::nullopt;
}

/// A map of one option with these rows, in which NAME can be replaced.
QByteArray mapOf(const QByteArray &rows)
{
    return "{\"for\": {},\n"
           " \"options\": {\"KvMirror\": {\"text\": \"Mirror\", \"choices\": [\"OFF\", \"ON\"]}},\n"
           " \"tables\": [[\n" +
           rows + "\n]]}";
}

constexpr char offRow[] = R"({"panel": {"KvMirror": "OFF"}, "printer": {"Flip": "No"}})";
constexpr char onRow[] = R"({"panel": {"KvMirror": "ON"}, "printer": {"Flip": "Yes"}})";

std::unique_ptr<PPDFile> opened(const PPDText &text)
{
    QString error;
    return PPDFile::read(text.data(), u"test"_s, &error);
}
} // namespace

/// The maps between the panels' options and a printer's.
class tst_keywordmap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void installedMapFits_data();
    void installedMapFits();
    void thereAndBack_data();
    void thereAndBack();
    void unnamedChoiceStays();
    void alternativeStays();
    void optionsOfOtherPanelsStay();
    void ownKeywordsAreNeverMapped();
    void mapIsForSomePPDs_data();
    void mapIsForSomePPDs();
    void faultyMap_data();
    void faultyMap();
};

void tst_keywordmap::installedMapFits_data()
{
    const TestTable<QByteArrayList, bool, QStringList> table("cuts", "hasMirror", "added");
    const QByteArrayList all{"None", "Auto", "EndOfPage", "EndOfDoc", "EndOfSet", "EndOfJob"};
    const QString count = u"KvCutLabel"_s;
    const QString cut = u"KvAutoTapeCut"_s;
    const QString end = u"KvCutAtEnd"_s;
    const QString mirror = u"KvMirror"_s;
    table.add("driverless", all, false, {cut, end, count});
    table.add("driverless and mirror", all, true, {cut, end, count, mirror});
    table.add("mirror alone", {}, true, {mirror});
    table.add("cut alone", {"None", "Auto"}, false, {cut, count});
    table.add("end alone", {"None", "EndOfSet"}, false, {end});
    table.add("no cut", {"None"}, false, {});
    table.add("never without a cut", {"EndOfPage", "EndOfJob"}, false, {cut, count});
    table.add("other words", {"Knife", "Scissors"}, false, {});
    table.add("nothing", {}, false, {});
    table.add("other letters", {"none", "auto"}, false, {});
}

void tst_keywordmap::installedMapFits()
{
    QFETCH(const QByteArrayList, cuts);
    QFETCH(const bool, hasMirror);
    QFETCH(const QStringList, added);
    PPDText text;
    if (!cuts.isEmpty()) {
        text.option("CutMedia", cuts, cuts.first(), "Cut Media");
    }
    if (hasMirror) {
        text.option("MirrorPrint", {"False", "True"}, "False", "Mirror");
    }
    const auto ppd = opened(text);
    const auto fitted = fittedTo(*ppd);
    QCOMPARE(bool(fitted), !added.isEmpty());
    if (!fitted) {
        return;
    }
    QString fault;
    const auto extended = ppd->with(fitted->ppdLines(*ppd), &fault);
    QVERIFY2(extended, qPrintable(fault));
    QStringList keys;
    for (const char *key : {"KvAutoTapeCut", "KvCutAtEnd", "KvCutLabel", "KvMirror"}) {
        if (extended->hasOption(QLatin1String(key))) {
            keys.append(QLatin1String(key));
        }
    }
    QCOMPARE(keys, added);
    QCOMPARE(extended->attribute(u"KvTapeType"_s), u"RV"_s);
}

void tst_keywordmap::thereAndBack_data()
{
    const TestTable<QString, QString, QString> table("panel", "printer", "back");
    table.add("nothing", u"KvAutoTapeCut=OFF KvCutAtEnd=OFF"_s, u"CutMedia=None"_s, {});
    table.add("at the end", u"KvAutoTapeCut=OFF KvCutAtEnd=ON"_s, u"CutMedia=EndOfJob"_s, {});
    table.add("every label", u"KvAutoTapeCut=ON KvCutAtEnd=ON"_s, u"CutMedia=EndOfPage"_s, {});
    table.add("between labels", u"KvAutoTapeCut=ON KvCutAtEnd=OFF"_s, u"CutMedia=EndOfPage"_s,
              u"KvAutoTapeCut=ON KvCutAtEnd=ON"_s);
}

void tst_keywordmap::thereAndBack()
{
    QFETCH(const QString, panel);
    QFETCH(const QString, printer);
    QFETCH(const QString, back);
    const auto ppd = opened(PPDText().option(
        "CutMedia", {"None", "Auto", "EndOfPage", "EndOfDoc", "EndOfSet", "EndOfJob"}, "None"));
    const auto map = fittedTo(*ppd);
    for (const QString &former : {u"CutMedia=None"_s, u"CutMedia=EndOfJob"_s, printer}) {
        QCOMPARE(sentenceOf(map->printerChoices(optionsOf(panel), optionsOf(former))), printer);
    }
    QCOMPARE(sentenceOf(map->panelChoices(optionsOf(printer))), back.isNull() ? panel : back);
}

void tst_keywordmap::unnamedChoiceStays()
{
    const auto ppd =
        opened(PPDText().option("CutMedia", {"None", "EndOfPage", "EndOfJob", "Twice"}, "Twice"));
    const auto map = fittedTo(*ppd);
    const JobOptions former = map->markedIn(*ppd);
    QCOMPARE(sentenceOf(former), u"CutMedia=Twice"_s);
    const JobOptions shown = map->panelChoices(former);
    QCOMPARE(sentenceOf(shown), u"KvAutoTapeCut=OFF KvCutAtEnd=OFF"_s);
    QCOMPARE(sentenceOf(map->printerChoices(shown, former)), u"CutMedia=Twice"_s);
    QCOMPARE(
        sentenceOf(map->printerChoices(optionsOf(u"KvAutoTapeCut=OFF KvCutAtEnd=ON"_s), former)),
        u"CutMedia=EndOfJob"_s);
}

void tst_keywordmap::alternativeStays()
{
    const auto ppd =
        opened(PPDText().option("CutMedia", {"None", "Auto", "EndOfPage", "EndOfJob"}, "Auto"));
    const auto map = fittedTo(*ppd);
    const JobOptions former = map->markedIn(*ppd);
    QCOMPARE(sentenceOf(map->printerChoices(map->panelChoices(former), former)),
             u"CutMedia=Auto"_s);
}

void tst_keywordmap::optionsOfOtherPanelsStay()
{
    const auto ppd =
        opened(PPDText().option("CutMedia", {"None", "EndOfPage", "EndOfJob"}, "None"));
    const auto map = fittedTo(*ppd);
    QCOMPARE(sentenceOf(map->printerChoices(
                 optionsOf(u"KvAutoTapeCut=OFF KvCutAtEnd=ON ExPeelOff=ON"_s), {})),
             u"CutMedia=EndOfJob ExPeelOff=ON"_s);
}

void tst_keywordmap::ownKeywordsAreNeverMapped()
{
    const auto ppd =
        opened(PPDText().option("CutMedia", {"None", "EndOfPage"}, "None").onOff("KvHalfCut"));
    QVERIFY(!fittedTo(*ppd));
}

void tst_keywordmap::mapIsForSomePPDs_data()
{
    const TestTable<QByteArray, bool, int> table("conditions", "fits", "count");
    table.add("any", "{}", true, 0);
    table.add("option", R"({"options": ["Flip"]})", true, 1);
    table.add("options", R"({"options": ["Flip", "Duplex"]})", false, 2);
    table.add("maker", R"({"attributes": {"Manufacturer": "Korvane"}})", true, 1);
    table.add("maker and model",
              R"({"attributes": {"Manufacturer": "Korvane", "ModelName": "Other"}})", false, 2);
    table.add("no such attribute", R"({"attributes": {"Nothing": ""}})", false, 1);
}

void tst_keywordmap::mapIsForSomePPDs()
{
    QFETCH(const QByteArray, conditions);
    QFETCH(const bool, fits);
    QFETCH(const int, count);
    QByteArray json = mapOf(QByteArray(offRow) + ",\n" + onRow);
    json.replace("{}", conditions);
    QString fault;
    const auto map = KeywordMap::read(json, &fault);
    QVERIFY2(map, qPrintable(fault));
    QCOMPARE(map->conditions(), count);
    const auto ppd = opened(PPDText().option("Flip", {"No", "Yes"}, "No"));
    QCOMPARE(bool(map->fittedTo(*ppd)), fits);
}

void tst_keywordmap::faultyMap_data()
{
    const TestTable<QByteArray, QString> table("json", "fault");
    const QByteArray off(offRow);
    const QByteArray both = off + ",\n" + onRow;
    const auto changed = [&both](const char *from, const char *to) {
        return mapOf(both).replace(from, to);
    };
    table.add("no JSON", "{\n\n\"for\": }", u"line 3: "_s);
    table.add("empty", "", u"line 1: "_s);
    table.add("array", "[]", u"line 1: the map is no object"_s);
    table.add("unknown member", changed("\"tables\"", "\"rows\": 1, \"tables\""),
              u"line 3: the map has no member \"rows\""_s);
    table.add("no conditions", changed("\"for\": {}", "\"for\": 3"),
              u"line 1: \"for\" is no object"_s);
    table.add("unknown condition", changed("{}", "{\"model\": 1}"),
              u"line 1: \"for\" has no member \"model\""_s);
    table.add("wrong type", changed("{}", "{\"options\": [1]}"),
              u"line 1: \"options\" of \"for\" are no keywords"_s);
    table.add("no options",
              changed("\"KvMirror\": {\"text\": \"Mirror\", \"choices\": [\"OFF\", \"ON\"]}", ""),
              u"line 2: \"options\" is no object with 1 to 9 members"_s);
    table.add("keyword with a blank", changed("KvMirror", "Kv Mirror"),
              u"line 2: \"Kv Mirror\" is no keyword of a PPD"_s);
    table.add("keyword of 300 bytes", mapOf(both).replace("KvMirror", QByteArray(300, 'K')),
              u"line 2: \"%1\" is no keyword of a PPD"_s.arg(QString(300, u'K')));
    table.add(
        "line's end in a text", changed("\"Mirror\"", "\"Mirror\\n*Evil: 1\""),
        u"line 2: the text of KvMirror is none of 1 to 79 letters of ASCII, without colon and "
        "slash"_s);
    table.add("line's end in a choice", changed("[\"OFF\"", "[\"OFF/\\n\""),
              u"line 2: the choices of KvMirror are no keywords of a PPD"_s);
    table.add("number as an option", changed("[\"OFF\", \"ON\"]", "[\"OFF\", \"ON\"], \"with\": 3"),
              u"line 2: \"with\" of KvMirror is no keyword"_s);
    table.add("option that hangs on itself",
              changed("[\"OFF\", \"ON\"]", "[\"OFF\", \"ON\"], \"with\": \"KvMirror\""),
              u"line 2: no table decides KvMirror"_s);
    table.add("name that is no UTF-8",
              changed("{}", "{\"attributes\": {\"Manufacturer\": \"K\xfcrvane\"}}"), u"line 1: "_s);
    table.add("choice twice", changed("\"OFF\", \"ON\"", "\"ON\", \"ON\""),
              u"line 2: KvMirror has a choice twice"_s);
    table.add("no tables", changed("[[", "[], \"series\": [["),
              u"line 3: \"series\" is no keyword"_s);
    table.add("missing row", mapOf(off),
              u"line 2: the rows name OFF for KvMirror, whose choices are OFF, ON"_s);
    table.add("row twice", mapOf(both + ",\n" + off), u"line 2: two rows are for KvMirror=OFF"_s);
    table.add("printer's choice twice", changed("Yes", "No"),
              u"line 2: two rows are for Flip=No"_s);
    table.add("choice of no option", changed("\"KvMirror\": \"ON\"", "\"KvMirror\": \"on\""),
              u"line 2: the rows name OFF, on for KvMirror, whose choices are OFF, ON"_s);
    table.add("other options in a row", changed("{\"Flip\": \"Yes\"", "{\"Turn\": \"Yes\""),
              u"line 2: the rows of a table do not name the same options"_s);
    table.add("row of something else", mapOf("3"),
              u"line 1: \"panel\" of a row is no object with options"_s);
    QByteArrayList rows;
    for (int i = 0; i < 10'000; ++i) {
        rows.append(offRow);
    }
    table.add("10,000 rows", mapOf(rows.join(",\n")),
              u"line 3: a table is no array of 1 to 256 rows"_s);
}

void tst_keywordmap::faultyMap()
{
    QFETCH(const QByteArray, json);
    QFETCH(const QString, fault);
    QString told;
    QVERIFY(!KeywordMap::read(json, &told));
    // The rest of what JSON lacks is told by Qt.
    const bool isOfQt = fault.endsWith(u": "_s);
    QCOMPARE(isOfQt ? told.left(fault.size()) : told, fault);
}

KV_CORE_TEST(tst_keywordmap)
#include "tst_keywordmap.moc"
