// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

/// The lines that the dialog's summary lists for the panel.
class SummaryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printerWithoutOptionsHasNoLines();
    void panelWithoutSelectionsHasNoLines();
    void linesComeInTheirOrder_data();
    void linesComeInTheirOrder();
    void lineWithoutSelectionIsLeftOut();
    void yesOrNoFollowsTheMark_data();
    void yesOrNoFollowsTheMark();
    void otherChoicesShowTheirText_data();
    void otherChoicesShowTheirText();
    void cutEveryShowsTheCountWhileAutoCutIsOn();
    void cutEveryShowsItsTextWithoutAutoCut_data();
    void cutEveryShowsItsTextWithoutAutoCut();
    void removeBlankSpaceNeedsAStandardSize_data();
    void removeBlankSpaceNeedsAStandardSize();
    void controlsPlayNoPart();
    void titleIsThePPDsTextTranslated();
    void unreadableTextFallsBackToTheSummaryTitle_data();
    void unreadableTextFallsBackToTheSummaryTitle();
    void equalTitlesShareTheLastValue();
    void emptyTitleStaysInTheOrder();
    void summaryChangesNothing();
};

namespace {

/// The options that have a plain yes or no in the summary.
const QList<Option> yesNoOptions = {
    OptionCatalogue::CutAtEnd,   OptionCatalogue::HalfCut, OptionCatalogue::SpecialTape,
    OptionCatalogue::ChainPrint, OptionCatalogue::Mirror,  OptionCatalogue::RemoveBlkSpace,
    OptionCatalogue::CutMark,
};

const QStringList allLines = {
    u"KvCutLabel"_s,   u"KvCutAtEnd"_s, u"KvHalfCut"_s,        u"KvSpecialTape"_s,
    u"KvChainPrint"_s, u"KvMirror"_s,   u"KvRemoveBlkSpace"_s, u"KvCutMark"_s,
};

QStringList order(const QVariantMap &summary)
{
    return summary.value(u"Summary Display Order"_s).toStringList();
}

/// A panel whose selections are what the PPD has marked.
PanelFixture restored(const PPDText &text)
{
    PanelFixture fixture(text);
    fixture.build();
    fixture.panel->setPDEItems2();
    return fixture;
}

QVariantMap summaryOf(PanelFixture &fixture)
{
    return fixture.panel->summaryInfo().value();
}

QString valueOf(PanelFixture &fixture, Option option)
{
    return summaryOf(fixture).value(QLatin1String(factsOf(option).keyword)).toString();
}
} // namespace

void SummaryTest::printerWithoutOptionsHasNoLines()
{
    PanelFixture fixture(TestPrinter{.options = {}});
    fixture.show();
    const QVariantMap summary = summaryOf(fixture);
    QCOMPARE(summary.keys(), QStringList{u"Summary Display Order"_s});
    QVERIFY(summary.first().canConvert<QStringList>());
    QCOMPARE(order(summary), QStringList());
}

void SummaryTest::panelWithoutSelectionsHasNoLines()
{
    PanelFixture fixture;
    fixture.build();
    QCOMPARE(summaryOf(fixture).keys(), QStringList{u"Summary Display Order"_s});
    fixture.panel->supportedPPDOptionKeys();
    QCOMPARE(order(summaryOf(fixture)), allLines);
}

void SummaryTest::linesComeInTheirOrder_data()
{
    QTest::addColumn<TestPrinter>("printer");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("all") << TestPrinter() << allLines;
    QTest::newRow("all, in another order in the PPD")
        << TestPrinter{.options = QList<Option>(everyOption.rbegin(), everyOption.rend())}
        << allLines;
    QTest::newRow("auto cut without a box of its own")
        << TestPrinter{.separateAutoCut = false} << allLines;
    for (const Option option : everyOptionBut(cutEvery)) {
        QStringList lines = allLines;
        lines.removeOne(QLatin1String(factsOf(option).keyword));
        QTest::addRow("no %s", factsOf(option).keyword)
            << TestPrinter{.options = everyOptionBut(option)} << lines;
    }
    QStringList withAutoCut = allLines;
    withAutoCut.replace(0, u"KvAutoTapeCut"_s);
    QTest::newRow("no KvCutLabel")
        << TestPrinter{.options = everyOptionBut(cutEvery)} << withAutoCut;
    QTest::newRow("auto cut alone")
        << TestPrinter{.options = {autoCut}} << QStringList{u"KvAutoTapeCut"_s};
}

void SummaryTest::linesComeInTheirOrder()
{
    QFETCH(TestPrinter, printer);
    QFETCH(QStringList, lines);
    PanelFixture fixture = restored(printer.text());
    const QVariantMap summary = summaryOf(fixture);
    QCOMPARE(order(summary), lines);
    QStringList keys = lines;
    keys.append(u"Summary Display Order"_s);
    keys.sort();
    QCOMPARE(summary.keys(), keys);
}

void SummaryTest::lineWithoutSelectionIsLeftOut()
{
    PanelFixture fixture = restored(TestPrinter().text());
    fixture.panel->select(mirror, nullptr);
    QStringList lines = allLines;
    lines.removeOne(u"KvMirror"_s);
    QCOMPARE(order(summaryOf(fixture)), lines);
    // Auto cut has a line as soon as cut every has none.
    fixture.panel->select(cutEvery, nullptr);
    lines.replace(0, u"KvAutoTapeCut"_s);
    QCOMPARE(order(summaryOf(fixture)), lines);
    fixture.panel->select(autoCut, nullptr);
    lines.removeFirst();
    QCOMPARE(order(summaryOf(fixture)), lines);
}

void SummaryTest::yesOrNoFollowsTheMark_data()
{
    QTest::addColumn<int>("option");
    for (const Option option : yesNoOptions + QList<Option>{autoCut}) {
        QTest::newRow(factsOf(option).keyword) << int(option);
    }
}

void SummaryTest::yesOrNoFollowsTheMark()
{
    QFETCH(int, option);
    const char *keyword = factsOf(Option(option)).keyword;
    PanelFixture fixture = restored(TestPrinter{.options = everyOptionBut(cutEvery)}.text());
    QCOMPARE(valueOf(fixture, Option(option)), u"No"_s);
    fixture.host->mark(keyword, "ON");
    QCOMPARE(valueOf(fixture, Option(option)), u"Yes"_s);
    fixture.host->mark(keyword, "OFF");
    QCOMPARE(valueOf(fixture, Option(option)), u"No"_s);
    // Not "No", but the text of the selection.
    fixture.unmark(keyword);
    QCOMPARE(valueOf(fixture, Option(option)), u"Off"_s);
}

void SummaryTest::otherChoicesShowTheirText_data()
{
    yesOrNoFollowsTheMark_data();
}

void SummaryTest::otherChoicesShowTheirText()
{
    QFETCH(int, option);
    QList<Option> others = everyOptionBut(Option(option));
    others.removeOne(cutEvery);
    const char *keyword = factsOf(Option(option)).keyword;
    PanelFixture fixture =
        restored(TestPrinter{.options = others}.text().option(keyword,
                                                              {"OFF/Off", "ON/On",
                                                               "AUTO/If \xC3\xBC"
                                                               "berhaupt"},
                                                              "AUTO"));
    QCOMPARE(valueOf(fixture, Option(option)), u"If \u00FCberhaupt"_s);
}

void SummaryTest::cutEveryShowsTheCountWhileAutoCutIsOn()
{
    for (const bool separate : {true, false}) {
        // The count's text in the PPD is another than its keyword.
        PanelFixture fixture =
            restored(printerWith(cutEvery, {"1/One", "7/Seven", "9/Nine"}, "1", separate));
        fixture.host->mark("KvCutLabel", "7");
        fixture.panel->setPDEItems2();
        QCOMPARE(valueOf(fixture, cutEvery), u"No"_s);
        fixture.host->mark("KvAutoTapeCut", "ON");
        QCOMPARE(valueOf(fixture, cutEvery), u"7 labels"_s);
        // The count is the selection's.
        fixture.host->mark("KvCutLabel", "9");
        QCOMPARE(valueOf(fixture, cutEvery), u"7 labels"_s);
        QVERIFY(!order(summaryOf(fixture)).contains(u"KvAutoTapeCut"_s));
        fixture.bundle->setLanguages({});
        QCOMPARE(valueOf(fixture, cutEvery), u"7 RS_Labels"_s);
    }
}

void SummaryTest::cutEveryShowsItsTextWithoutAutoCut_data()
{
    QTest::addColumn<QByteArrayList>("autoCutChoices");
    QTest::addColumn<QByteArray>("marked");
    QTest::newRow("no auto cut") << QByteArrayList() << QByteArray();
    QTest::newRow("nothing marked") << QByteArrayList{"OFF", "ON"} << QByteArray();
    QTest::newRow("third choice") << QByteArrayList{"OFF", "ON", "AUTO"} << QByteArray("AUTO");
}

void SummaryTest::cutEveryShowsItsTextWithoutAutoCut()
{
    QFETCH(QByteArrayList, autoCutChoices);
    QFETCH(QByteArray, marked);
    PPDText text;
    text.option("KvCutLabel", {"1/every label", "7/every week"}, "7");
    if (!autoCutChoices.isEmpty()) {
        text.option("KvAutoTapeCut", autoCutChoices, "OFF");
    }
    PanelFixture fixture = restored(text);
    if (marked.isNull()) {
        fixture.unmark("KvAutoTapeCut");
    } else {
        fixture.host->mark("KvAutoTapeCut", marked);
    }
    QCOMPARE(valueOf(fixture, cutEvery), u"every week"_s);
}

void SummaryTest::removeBlankSpaceNeedsAStandardSize_data()
{
    QTest::addColumn<qint32>("tapeState");
    QTest::addColumn<bool>("listed");
    QTest::newRow("standard size") << qint32(0) << true;
    QTest::newRow("label size") << qint32(1) << false;
    QTest::newRow("custom size") << qint32(2) << false;
    QTest::newRow("any other") << qint32(-1) << false;
}

void SummaryTest::removeBlankSpaceNeedsAStandardSize()
{
    QFETCH(qint32, tapeState);
    QFETCH(bool, listed);
    PanelFixture fixture = restored(TestPrinter().text());
    fixture.panel->setTapeState(tapeState);
    QStringList lines = allLines;
    if (!listed) {
        lines.removeOne(u"KvRemoveBlkSpace"_s);
    }
    QCOMPARE(order(summaryOf(fixture)), lines);
    QCOMPARE(summaryOf(fixture).contains(u"KvRemoveBlkSpace"_s), listed);
}

void SummaryTest::controlsPlayNoPart()
{
    PanelFixture fixture;
    fixture.show();
    const QVariantMap before = summaryOf(fixture);
    QCOMPARE(order(before), allLines);
    for (const Option option : everyOption) {
        fixture.setOn(option, !fixture.isOn(option));
        fixture.box(option)->setEnabled(false);
        fixture.box(option)->hide();
    }
    QCOMPARE(summaryOf(fixture), before);
}

void SummaryTest::titleIsThePPDsTextTranslated()
{
    PPDText text;
    text.onOff("KvMirror", "ON", "50 % & gr\xC3\xBCn %1").onOff("KvHalfCut", "OFF", "RS_HalfCut");
    PanelFixture fixture = restored(text);
    const QVariantMap summary = summaryOf(fixture);
    QCOMPARE(order(summary), QStringList({u"Half cut"_s, u"50 % & gr\u00FCn %1"_s}));
    QCOMPARE(summary.value(u"Half cut"_s), QVariant(u"No"_s));
    QCOMPARE(summary.value(u"50 % & gr\u00FCn %1"_s), QVariant(u"Yes"_s));
}

void SummaryTest::unreadableTextFallsBackToTheSummaryTitle_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<QString>("title");
    const QStringList titles = {u"Cut labels"_s,   u"Cut at end"_s,         u"Mirror printing"_s,
                                u"Auto cut"_s,     u"Half cut"_s,           u"Chain printing"_s,
                                u"Special tape"_s, u"Remove blank space"_s, u"Cut marks"_s};
    for (const Option option : everyOption) {
        QTest::newRow(factsOf(option).keyword) << int(option) << titles.at(int(option));
    }
}

void SummaryTest::unreadableTextFallsBackToTheSummaryTitle()
{
    QFETCH(int, option);
    QFETCH(QString, title);
    const OptionFacts &facts = factsOf(Option(option));
    PanelFixture fixture = restored(PPDText().onOff(facts.keyword, "OFF", "\xFF\xFE"));
    QCOMPARE(order(summaryOf(fixture)), QStringList{title});
    fixture.bundle->setLanguages({});
    QCOMPARE(order(summaryOf(fixture)), QStringList{QLatin1String(facts.summaryKey)});
    QCOMPARE(summaryOf(fixture).value(QLatin1String(facts.summaryKey)).toString(),
             option == cutEvery ? u"Off"_s : u"RS_STitle_No"_s);
}

void SummaryTest::equalTitlesShareTheLastValue()
{
    PPDText text;
    text.onOff("KvCutAtEnd", "OFF", "Same")
        .onOff("KvHalfCut", "OFF")
        .onOff("KvMirror", "ON", "Same");
    PanelFixture fixture = restored(text);
    const QVariantMap summary = summaryOf(fixture);
    QCOMPARE(order(summary), QStringList({u"Same"_s, u"KvHalfCut"_s, u"Same"_s}));
    QCOMPARE(summary.size(), 3);
    QCOMPARE(summary.value(u"Same"_s), QVariant(u"Yes"_s));
}

void SummaryTest::emptyTitleStaysInTheOrder()
{
    PanelFixture fixture = restored(TestPrinter().text());
    fixture.panel->option(OptionCatalogue::HalfCut)->text[0] = '\0';
    QStringList lines = allLines;
    lines.replace(2, QString());
    const QVariantMap summary = summaryOf(fixture);
    QCOMPARE(order(summary), lines);
    QCOMPARE(summary.value(u""_s), QVariant(u"No"_s));
}

void SummaryTest::summaryChangesNothing()
{
    PanelFixture fixture;
    fixture.show();
    fixture.host->mark("KvMirror", "ON");
    const QList<Option> on = fixture.optionsOn();
    const QVariantMap first = summaryOf(fixture);
    QCOMPARE(summaryOf(fixture), first);
    QCOMPARE(fixture.takeTold(), QStringList());
    QCOMPARE(fixture.optionsOn(), on);
    QCOMPARE(fixture.panel->refreshed, QList<quint32>());
    QCOMPARE(fixture.panel->selection(mirror)->ppdTitle(), u"OFF"_s);
}

KV_TEST(SummaryTest)
#include "tst_summary.moc"
