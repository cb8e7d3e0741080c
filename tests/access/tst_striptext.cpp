#include "AccessTree.h"
#include "PanelFixture.h"

/// The words that stand for the picture of the strip.
class StripTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choicesAreToldInSentences_data();
    void choicesAreToldInSentences();
    void countIsTold();
    void greyedBlankSpaceIsLeftOut();
    void hiddenBoxCountsAsOff();
    void presetChangesTheWords();
    void imageIsDescribed();
};

namespace {
constexpr auto cutEvery = OptionCatalogue::CutEvery;
constexpr auto atEnd = OptionCatalogue::CutAtEnd;
constexpr auto mirror = OptionCatalogue::Mirror;
constexpr auto autoCut = OptionCatalogue::AutoCut;
constexpr auto half = OptionCatalogue::HalfCut;
constexpr auto chain = OptionCatalogue::ChainPrint;
constexpr auto special = OptionCatalogue::SpecialTape;
constexpr auto blank = OptionCatalogue::RemoveBlkSpace;
constexpr auto mark = OptionCatalogue::CutMark;

struct Boxes
{
    QList<Option> on;
};

TestPrinter allOff(bool labelSeries = false)
{
    return {.labelSeries = labelSeries, .defaults = {{cutEvery, "7"}}};
}

const QString uncut = QStringLiteral("The labels stay together on one strip, which is not cut.");
const QString cut = QStringLiteral("The strip is cut between the labels.");
const QString count = QStringLiteral("Number of labels between cuts: 7.");
const QString end = QStringLiteral("The strip is cut at its end.");
const QString specialTape =
    QStringLiteral("It is a special tape, which is not cut between the labels.");
const QString halfCut = QStringLiteral(
    "The labels are cut but their backing is not, so that they are easy to peel off.");
const QString chained =
    QStringLiteral("The last label stays in the printer until the next print job.");
const QString marks = QStringLiteral("Marks between the labels show where to cut by hand.");
const QString tight = QStringLiteral("There is no blank tape before and after the print.");
const QString mirrored = QStringLiteral("The print is in mirror writing.");

QStringList wordsOf(const PanelFixture &fixture)
{
    return descriptionOf(fixture.panel->mOptionView).split(u'\n');
}

/// Puts the boxes into these states and no others.
void choose(const PanelFixture &fixture, const QList<Option> &on)
{
    for (const Option option : everyOption) {
        fixture.setOn(option, on.contains(option));
    }
    fixture.panel->enabledCheck_OP();
}
} // namespace

void StripTextTest::choicesAreToldInSentences_data()
{
    QTest::addColumn<bool>("labelSeries");
    QTest::addColumn<Boxes>("boxes");
    QTest::addColumn<QStringList>("sentences");
    const auto tapeRow = [](const char *name, const QList<Option> &on,
                            const QStringList &sentences) {
        QTest::addRow("tape printer, %s", name) << false << Boxes{on} << sentences;
    };
    const auto labelRow = [](const char *name, const QList<Option> &on,
                             const QStringList &sentences) {
        QTest::addRow("label printer, %s", name) << true << Boxes{on} << sentences;
    };
    const auto row = [&](const char *name, const QList<Option> &on, const QStringList &sentences) {
        tapeRow(name, on, sentences);
        labelRow(name, on, sentences);
    };
    row("nothing", {}, {uncut});
    tapeRow("cut every", {cutEvery}, {cut, count, end});
    labelRow("cut every", {cutEvery}, {cut, count});
    tapeRow("auto cut", {autoCut}, {cut, end});
    labelRow("auto cut", {autoCut}, {cut});
    row("auto cut and chain printing", {autoCut, chain}, {cut, chained});
    row("cut at end", {atEnd}, {end});
    row("cut every and at end", {cutEvery, atEnd}, {cut, count, end});
    row("half cut", {half}, {uncut, halfCut});
    row("chain printing", {chain}, {uncut, chained});
    row("mirror printing", {mirror}, {uncut, mirrored});
    row("no blank space", {blank}, {uncut, tight});
    row("cut marks", {mark}, {uncut, marks});
    row("special tape", {special}, {specialTape});
    row("special tape wins", {special, cutEvery, autoCut, half, chain, mark}, {specialTape});
    row("special tape, cut at end", {special, atEnd}, {specialTape, end});
    row("special tape, the rest", {special, mirror, blank}, {specialTape, tight, mirrored});
    row("everything but special tape", {cutEvery, atEnd, mirror, autoCut, half, chain, blank, mark},
        {cut, count, end, halfCut, chained, marks, tight, mirrored});
}

void StripTextTest::choicesAreToldInSentences()
{
    QFETCH(bool, labelSeries);
    QFETCH(Boxes, boxes);
    QFETCH(QStringList, sentences);
    PanelFixture fixture(allOff(labelSeries));
    fixture.show();
    QCOMPARE(wordsOf(fixture), QStringList(uncut));
    choose(fixture, boxes.on);
    QCOMPARE(wordsOf(fixture), sentences);
    QCOMPARE(fixture.panel->mOptionView->toolTip().split(u'\n'), sentences);
}

void StripTextTest::countIsTold()
{
    PanelFixture fixture(allOff());
    fixture.show();
    fixture.click(cutEvery);
    QCOMPARE(wordsOf(fixture), QStringList({cut, count, end}));
    fixture.type(u"12"_s);
    QCOMPARE(wordsOf(fixture).at(1), u"Number of labels between cuts: 12."_s);
    fixture.step("stepUp");
    QCOMPARE(wordsOf(fixture).at(1), u"Number of labels between cuts: 13."_s);
}

void StripTextTest::greyedBlankSpaceIsLeftOut()
{
    PanelFixture fixture(allOff());
    fixture.show();
    fixture.click(blank);
    QCOMPARE(wordsOf(fixture), QStringList({uncut, tight}));
    fixture.host->changePaper(u"DC03"_s);
    QCOMPARE(wordsOf(fixture), QStringList({uncut}));
    fixture.host->changePaper(u"62x29"_s);
    QCOMPARE(wordsOf(fixture), QStringList({uncut, tight}));
}

void StripTextTest::hiddenBoxCountsAsOff()
{
    PanelFixture fixture({.options = everyOptionBut(half), .defaults = {{cutEvery, "7"}}});
    fixture.show();
    choose(fixture, {half});
    QCOMPARE(wordsOf(fixture), QStringList({uncut}));
}

void StripTextTest::presetChangesTheWords()
{
    PanelFixture fixture({.options = everyOptionBut(mark), .defaults = {{cutEvery, "7"}}});
    fixture.show();
    QVERIFY(fixture.panel->choosePreset(u"AHCMOffOnOnOff"_s));
    QCOMPARE(wordsOf(fixture), QStringList({uncut, halfCut, chained}));
}

void StripTextTest::imageIsDescribed()
{
    PanelFixture fixture(allOff());
    fixture.show();
    fixture.click(mirror);
    const OptionView13_v400_ *view = fixture.panel->mOptionView;
    QAccessibleImageInterface *image = accessOf(view)->imageInterface();
    QVERIFY(image);
    QCOMPARE(image->imageDescription(), uncut + u'\n' + mirrored);
    QCOMPARE(image->imageSize(), view->size());
    QCOMPARE(image->imagePosition(), view->mapToGlobal(QPoint()));
}

QTEST_MAIN(StripTextTest)
#include "tst_striptext.moc"
