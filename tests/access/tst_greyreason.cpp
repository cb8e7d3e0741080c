// SPDX-License-Identifier: Apache-2.0
#include "AccessEvents.h"
#include "AccessTree.h"
#include "PanelFixture.h"

/// Why a control is greyed, in its tip and its description.
class GreyReasonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reasonIsThatOfTheRule_data();
    void reasonIsThatOfTheRule();
    void usableControlTellsWhatItDoes();
    void everyGreyedControlTellsAReason();
    void reasonGoesWithThePaper();
    void reasonGoesWithSpecialTape();
    void countTellsWhatItNeeds();
    void customSizeGreysBlankSpaceWhenSaved();
    void stuckBoxSaysSo();
    void missingOptionSaysSo();
    void greyedBoxShowsTheReasonAsTip();
    void elidedTitleStandsInFrontOfTheTip();
    void markupInATitleIsText();
};

namespace {

const QString onThisTape = QStringLiteral("Not available on this tape.");
const QString withSpecialTape = QStringLiteral("Not available together with “KvSpecialTape”.");
const QString withoutCutEvery = QStringLiteral("Available when “KvCutLabel” is selected.");
const QString reopen = QStringLiteral(
    "Not available since the tape was changed. Open the print dialog again to use it.");

struct GreyedBoxes
{
    QList<Option> greyed;
};

QString reasonOf(const PanelFixture &fixture, Option option)
{
    const CheckBox *box = fixture.box(option);
    return box->isEnabled() ? QString() : descriptionOf(box);
}

QString helpOf(const PanelFixture &fixture, Option option)
{
    return fixture.bundle->localizedStringForKey(
        QLatin1String(OptionCatalogue::rows[option].helpKey));
}

/// The options that are greyed for this reason.
QList<Option> greyedFor(const PanelFixture &fixture, const QString &reason)
{
    QList<Option> options;
    for (const Option option : everyOption) {
        if (reasonOf(fixture, option) == reason) {
            options.append(option);
        }
    }
    return options;
}
} // namespace

void GreyReasonTest::reasonIsThatOfTheRule_data()
{
    QTest::addColumn<QString>("paper");
    QTest::addColumn<bool>("isSpecialTape");
    QTest::addColumn<GreyedBoxes>("tapeGreys");
    QTest::addColumn<GreyedBoxes>("specialTapeGreys");
    const GreyedBoxes excluded{{cutEvery, autoCut, halfCut, chainPrint}};
    QTest::newRow("standard size") << u"62x29"_s << false << GreyedBoxes() << GreyedBoxes();
    for (const char *paper : {"DC03", "AV2055", "C_62"}) {
        QTest::addRow("%s", paper) << QString::fromLatin1(paper) << false
                                   << GreyedBoxes{{removeBlkSpace}} << GreyedBoxes();
        QTest::addRow("%s, special tape", paper)
            << QString::fromLatin1(paper) << true << GreyedBoxes{{removeBlkSpace}} << excluded;
    }
    QTest::newRow("FL30") << u"FL30"_s << false
                          << GreyedBoxes{{halfCut, chainPrint, specialTape, removeBlkSpace}}
                          << GreyedBoxes();
    QTest::newRow("standard size, special tape") << u"62x29"_s << true << GreyedBoxes() << excluded;
    // What special tape had greyed stays greyed: the reason is still that.
    QTest::newRow("FL30, special tape")
        << u"FL30"_s << true << GreyedBoxes{{halfCut, chainPrint, specialTape, removeBlkSpace}}
        << GreyedBoxes{{cutEvery, autoCut}};
}

void GreyReasonTest::reasonIsThatOfTheRule()
{
    QFETCH(QString, paper);
    QFETCH(bool, isSpecialTape);
    QFETCH(GreyedBoxes, tapeGreys);
    QFETCH(GreyedBoxes, specialTapeGreys);
    PanelFixture fixture(allOff());
    fixture.show();
    if (isSpecialTape) {
        fixture.click(specialTape);
    }
    fixture.host->changePaper(paper);
    QCOMPARE(greyedFor(fixture, onThisTape), tapeGreys.greyed);
    QCOMPARE(greyedFor(fixture, withSpecialTape), specialTapeGreys.greyed);
    int greyed = 0;
    for (const Option option : everyOption) {
        greyed += int(!fixture.box(option)->isEnabled());
    }
    QCOMPARE(greyed, int(tapeGreys.greyed.size() + specialTapeGreys.greyed.size()));
}

void GreyReasonTest::usableControlTellsWhatItDoes()
{
    PanelFixture fixture(allOff());
    fixture.show();
    for (const Option option : everyOption) {
        QVERIFY(fixture.box(option)->isEnabled());
        QCOMPARE(descriptionOf(fixture.box(option)), helpOf(fixture, option));
        QCOMPARE(fixture.box(option)->toolTip(), descriptionOf(fixture.box(option)));
    }
}

void GreyReasonTest::everyGreyedControlTellsAReason()
{
    PanelFixture fixture(allOff());
    fixture.show();
    const auto isRight = [&fixture](Option option) {
        const CheckBox *box = fixture.box(option);
        const QString description = descriptionOf(box);
        const bool tellsHelp = description == helpOf(fixture, option);
        return tellsHelp == box->isEnabled() && box->toolTip() == description;
    };
    for (const char *paper : {"62x29", "FL30", "DC03", "HS058", "Custom.62x100", "FL30", "62x29"}) {
        for (const Option clicked : everyOption) {
            fixture.click(clicked);
            fixture.host->changePaper(QString::fromLatin1(paper));
            for (const Option option : everyOption) {
                QVERIFY2(isRight(option), factsOf(option).outlet);
            }
            const QLineEdit *field = fixture.panel->mCutEveryTxBx;
            QCOMPARE(descriptionOf(field) == u"A number from 1 to 99.", field->isEnabled());
        }
    }
}

void GreyReasonTest::reasonGoesWithThePaper()
{
    PanelFixture fixture(allOff());
    fixture.show();
    fixture.host->changePaper(u"FL30"_s);
    QCOMPARE(descriptionOf(fixture.box(halfCut)), onThisTape);
    fixture.host->changePaper(u"62x29"_s);
    QCOMPARE(descriptionOf(fixture.box(halfCut)), helpOf(fixture, halfCut));
}

void GreyReasonTest::reasonGoesWithSpecialTape()
{
    PanelFixture fixture(allOff());
    fixture.show();
    fixture.click(specialTape);
    QCOMPARE(descriptionOf(fixture.box(chainPrint)), withSpecialTape);
    QCOMPARE(descriptionOf(fixture.panel->mCutEveryTxBx), withSpecialTape);
    fixture.click(specialTape);
    QCOMPARE(descriptionOf(fixture.box(chainPrint)), helpOf(fixture, chainPrint));
    QCOMPARE(descriptionOf(fixture.panel->mCutEveryTxBx), withoutCutEvery);
}

void GreyReasonTest::countTellsWhatItNeeds()
{
    PanelFixture fixture(allOff());
    fixture.show();
    const QList<QWidget *> count = {fixture.panel->mCutEveryTxBx, fixture.panel->mCutEveryStpr,
                                    fixture.panel->mCutEveryStr};
    for (const QWidget *control : count) {
        QCOMPARE(descriptionOf(control), withoutCutEvery);
        QCOMPARE(control->toolTip(), withoutCutEvery);
    }
    fixture.click(cutEvery);
    for (const QWidget *control : count) {
        QCOMPARE(descriptionOf(control), u"A number from 1 to 99."_s);
    }
}

void GreyReasonTest::customSizeGreysBlankSpaceWhenSaved()
{
    PanelFixture fixture(allOff());
    fixture.show();
    fixture.host->changePaper(u"Custom.62x100"_s);
    QCOMPARE(reasonOf(fixture, removeBlkSpace), QString());
    fixture.panel->saveValuesAndReturnError(nullptr);
    QCOMPARE(reasonOf(fixture, removeBlkSpace), onThisTape);
}

void GreyReasonTest::stuckBoxSaysSo()
{
    // Without special tape nothing enables half cut again.
    PanelFixture fixture({.options = everyOptionBut(specialTape), .defaults = {{cutEvery, "7"}}});
    fixture.show();
    fixture.host->changePaper(u"FL30"_s);
    QCOMPARE(greyedFor(fixture, onThisTape), QList<Option>({halfCut, removeBlkSpace}));
    fixture.host->changePaper(u"62x29"_s);
    QVERIFY(!fixture.box(halfCut)->isEnabled());
    QCOMPARE(reasonOf(fixture, halfCut), reopen);
}

void GreyReasonTest::missingOptionSaysSo()
{
    PanelFixture fixture({.options = everyOptionBut(halfCut)});
    fixture.show();
    QVERIFY(!fixture.panel->option(halfCut));
    fixture.box(halfCut)->setEnabled(false);
    fixture.box(specialTape)->hide();
    fixture.panel->enabledCheck_OP();
    QCOMPARE(reasonOf(fixture, halfCut), u"Not available for this printer."_s);
}

void GreyReasonTest::greyedBoxShowsTheReasonAsTip()
{
    AccessEvents::isSomebodyListening = false;
    PanelFixture fixture(allOff());
    fixture.show();
    fixture.click(specialTape);
    QVERIFY(!fixture.box(halfCut)->isEnabled());
    QCOMPARE(shownTip(fixture.box(halfCut)), withSpecialTape);
    fixture.click(specialTape);
    QCOMPARE(shownTip(fixture.box(halfCut)), helpOf(fixture, halfCut));
    AccessEvents::isSomebodyListening = true;
}

void GreyReasonTest::elidedTitleStandsInFrontOfTheTip()
{
    const QByteArray title(79, 'W');
    PanelFixture fixture(PPDText().onOff("KvHalfCut", "OFF", title));
    fixture.show();
    QCOMPARE(shownTip(fixture.box(halfCut)),
             QString::fromLatin1(title) + u'\n' + helpOf(fixture, halfCut));
}

void GreyReasonTest::markupInATitleIsText()
{
    PanelFixture fixture(PPDText()
                             .onOff("KvHalfCut")
                             .onOff("KvSpecialTape", "OFF", "<3C>b>Special<3C>/b>")
                             .size("62x29", 175.0, 82.0));
    fixture.show();
    fixture.click(specialTape);
    QCOMPARE(descriptionOf(fixture.box(halfCut)),
             u"Not available together with “<b>Special</b>”."_s);
    QVERIFY(fixture.box(halfCut)->toolTip().contains(u"&lt;b&gt;Special&lt;/b&gt;"_s));
}

KV_TEST(GreyReasonTest)
#include "tst_greyreason.moc"
