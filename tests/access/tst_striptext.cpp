// SPDX-License-Identifier: Apache-2.0
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

struct BoxesOn
{
    QList<Option> on;
};

const QString uncut = QStringLiteral("The labels stay together on one strip, which is not cut.");
const QString cut = QStringLiteral("The strip is cut between the labels.");
const QString count = QStringLiteral("Number of labels between cuts: 7.");
const QString end = QStringLiteral("The strip is cut at its end.");
const QString specialTapeWords =
    QStringLiteral("It is a special tape, which is not cut between the labels.");
const QString halfCutWords = QStringLiteral(
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
    QTest::addColumn<BoxesOn>("boxes");
    QTest::addColumn<QStringList>("sentences");
    const auto tapeRow = [](const char *name, const QList<Option> &on,
                            const QStringList &sentences) {
        QTest::addRow("tape printer, %s", name) << false << BoxesOn{on} << sentences;
    };
    const auto labelRow = [](const char *name, const QList<Option> &on,
                             const QStringList &sentences) {
        QTest::addRow("label printer, %s", name) << true << BoxesOn{on} << sentences;
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
    row("auto cut and chain printing", {autoCut, chainPrint}, {cut, chained});
    row("cut at end", {cutAtEnd}, {end});
    row("cut every and at end", {cutEvery, cutAtEnd}, {cut, count, end});
    row("half cut", {halfCut}, {uncut, halfCutWords});
    row("chain printing", {chainPrint}, {uncut, chained});
    row("mirror printing", {mirror}, {uncut, mirrored});
    row("no blank space", {removeBlkSpace}, {uncut, tight});
    row("cut marks", {cutMark}, {uncut, marks});
    row("special tape", {specialTape}, {specialTapeWords});
    row("special tape wins", {specialTape, cutEvery, autoCut, halfCut, chainPrint, cutMark},
        {specialTapeWords});
    row("special tape, cut at end", {specialTape, cutAtEnd}, {specialTapeWords, end});
    row("special tape, the rest", {specialTape, mirror, removeBlkSpace},
        {specialTapeWords, tight, mirrored});
    row("everything but special tape",
        {cutEvery, cutAtEnd, mirror, autoCut, halfCut, chainPrint, removeBlkSpace, cutMark},
        {cut, count, end, halfCutWords, chained, marks, tight, mirrored});
}

void StripTextTest::choicesAreToldInSentences()
{
    QFETCH(bool, labelSeries);
    QFETCH(BoxesOn, boxes);
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
    fixture.click(removeBlkSpace);
    QCOMPARE(wordsOf(fixture), QStringList({uncut, tight}));
    fixture.host->changePaper(u"DC03"_s);
    QCOMPARE(wordsOf(fixture), QStringList({uncut}));
    fixture.host->changePaper(u"62x29"_s);
    QCOMPARE(wordsOf(fixture), QStringList({uncut, tight}));
}

void StripTextTest::hiddenBoxCountsAsOff()
{
    PanelFixture fixture({.options = everyOptionBut(halfCut), .defaults = {{cutEvery, "7"}}});
    fixture.show();
    choose(fixture, {halfCut});
    QCOMPARE(wordsOf(fixture), QStringList({uncut}));
}

void StripTextTest::presetChangesTheWords()
{
    PanelFixture fixture({.options = everyOptionBut(cutMark), .defaults = {{cutEvery, "7"}}});
    fixture.show();
    QVERIFY(fixture.panel->choosePreset(u"AHCMOffOnOnOff"_s));
    QCOMPARE(wordsOf(fixture), QStringList({uncut, halfCutWords, chained}));
}

void StripTextTest::imageIsDescribed()
{
    PanelFixture fixture(allOff());
    fixture.show();
    fixture.click(mirror);
    const OptionView13_v400_ *view = fixture.panel->mOptionView;
    QAccessibleImageInterface *image = accessOf(view)->imageInterface();
    QVERIFY(image);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(image->imageDescription(), uncut + u'\n' + mirrored);
    QCOMPARE(image->imageSize(), view->size());
    QCOMPARE(image->imagePosition(), view->mapToGlobal(QPoint()));
}

KV_TEST(StripTextTest)
#include "tst_striptext.moc"
