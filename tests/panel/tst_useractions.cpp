// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

#include <QMessageBox>
#include <QPushButton>

/// What the user's clicks and keystrokes do.
class UserActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clickedBoxIsToldAtOnce_data();
    void clickedBoxIsToldAtOnce();
    void clickedBoxRefreshesItsItemAlone_data();
    void clickedBoxRefreshesItsItemAlone();
    void cutEveryBoxDrivesAutoCut_data();
    void cutEveryBoxDrivesAutoCut();
    void cutEveryBoxWithoutAutoCutTellsNothing();
    void cutEveryBoxEnablesTheCount();
    void choiceThatTheDialogDropsIsTakenBack();
    void strangersClickOnlyRedrawsAndAppliesTheRules();
    void autoCutWithHeatShrinkTubeWarns_data();
    void autoCutWithHeatShrinkTubeWarns();
    void warningComesEachTimeItIsTurnedOn();
    void warningCanBeClosedByKeyboard_data();
    void warningCanBeClosedByKeyboard();
};

namespace {

/// The warning that is open when everything has been done; null when there is none.
QMessageBox *openWarning()
{
    QCoreApplication::sendPostedEvents();
    return qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
}

const QString warningText =
    u"Heat-shrink tube is loaded. It should not be cut with auto cut: the cutter may jam or wear "
    u"out. Turn auto cut off and cut the tube with scissors."_s;

} // namespace

void UserActionsTest::clickedBoxIsToldAtOnce_data()
{
    QTest::addColumn<int>("option");
    for (const Option option : everyOptionBut(cutEvery)) {
        QTest::newRow(factsOf(option).keyword) << int(option);
    }
}

void UserActionsTest::clickedBoxIsToldAtOnce()
{
    QFETCH(int, option);
    const auto clicked = Option(option);
    const QString keyword = QLatin1String(factsOf(clicked).keyword);
    PanelFixture fixture;
    fixture.show();
    for (const QString &choice : {u"ON"_s, u"OFF"_s, u"ON"_s}) {
        fixture.click(clicked);
        QCOMPARE(fixture.takeTold(), QStringList{keyword + u'=' + choice});
        QCOMPARE(fixture.isOn(clicked), choice == u"ON");
        QCOMPARE(fixture.selectedKeyword(clicked), choice);
        QCOMPARE(fixture.host->marked(factsOf(clicked).keyword), choice);
        for (const Option other : everyOptionBut(clicked)) {
            QCOMPARE(fixture.selectedKeyword(other), other == cutEvery ? u"1"_s : u"OFF"_s);
            QCOMPARE(fixture.isOn(other), other == cutEvery);
        }
    }
}

void UserActionsTest::clickedBoxRefreshesItsItemAlone_data()
{
    QTest::addColumn<int>("option");
    for (const Option option : everyOption) {
        QTest::newRow(factsOf(option).keyword) << int(option);
    }
}

void UserActionsTest::clickedBoxRefreshesItsItemAlone()
{
    QFETCH(int, option);
    PanelFixture fixture;
    fixture.show();
    PaintWatcher preview(fixture.panel->mOptionView);
    fixture.click(Option(option));
    const QList<quint32> item = {factsOf(Option(option)).itemType};
    QCOMPARE(fixture.panel->refreshed, item);
    QCOMPARE(fixture.panel->reread, item);
    QVERIFY(preview.waitForPaint());
}

void UserActionsTest::cutEveryBoxDrivesAutoCut_data()
{
    QTest::addColumn<bool>("separateAutoCut");
    QTest::newRow("auto cut has a box of its own") << true;
    QTest::newRow("auto cut has no box of its own") << false;
}

void UserActionsTest::cutEveryBoxDrivesAutoCut()
{
    QFETCH(bool, separateAutoCut);
    PanelFixture fixture({.separateAutoCut = separateAutoCut});
    fixture.show();
    QVERIFY(fixture.isOn(cutEvery));
    for (const QString &choice : {u"OFF"_s, u"ON"_s, u"OFF"_s}) {
        fixture.click(cutEvery);
        QCOMPARE(fixture.takeTold(), QStringList{u"KvAutoTapeCut="_s + choice});
        QCOMPARE(fixture.isOn(cutEvery), choice == u"ON");
        QCOMPARE(fixture.panel->mAutoCut_CutEvery_Selection->ppdTitle(), choice);
        QCOMPARE(fixture.selectedKeyword(cutEvery), u"1"_s);
        if (separateAutoCut) {
            // The other box waits for its own item to be refreshed.
            QVERIFY(!fixture.isOn(autoCut));
        }
    }
}

void UserActionsTest::cutEveryBoxWithoutAutoCutTellsNothing()
{
    PanelFixture fixture({.options = everyOptionBut(autoCut)});
    fixture.show();
    for (const bool on : {false, true}) {
        fixture.click(cutEvery);
        QCOMPARE(fixture.takeTold(), QStringList());
        QCOMPARE(fixture.isOn(cutEvery), on);
        QCOMPARE(fixture.panel->mCutEveryTxBx->isEnabled(), on);
    }
}

void UserActionsTest::cutEveryBoxEnablesTheCount()
{
    PanelFixture fixture({.defaults = {{cutEvery, "7"}}});
    fixture.show();
    QVERIFY(!fixture.panel->mCutEveryTxBx->isEnabled());
    QVERIFY(!fixture.panel->mCutEveryStpr->isEnabled());
    fixture.type(u"5"_s);
    fixture.step("stepUp");
    QCOMPARE(fixture.panel->mCutEveryTxBx->text(), u"7"_s);
    QCOMPARE(fixture.takeTold(), QStringList());

    fixture.click(cutEvery);
    QVERIFY(fixture.panel->mCutEveryTxBx->isEnabled());
    QVERIFY(fixture.panel->mCutEveryStpr->isEnabled());
    fixture.click(cutEvery);
    QVERIFY(!fixture.panel->mCutEveryTxBx->isEnabled());
    QVERIFY(!fixture.panel->mCutEveryStpr->isEnabled());
}

void UserActionsTest::choiceThatTheDialogDropsIsTakenBack()
{
    PanelFixture fixture;
    fixture.show();
    fixture.host->marks = false;
    fixture.click(OptionCatalogue::HalfCut);
    QCOMPARE(fixture.takeTold(), QStringList{u"KvHalfCut=ON"_s});
    QVERIFY(!fixture.isOn(OptionCatalogue::HalfCut));
    QCOMPARE(fixture.selectedKeyword(OptionCatalogue::HalfCut), u"OFF"_s);
}

void UserActionsTest::strangersClickOnlyRedrawsAndAppliesTheRules()
{
    PanelFixture fixture;
    fixture.show();
    QCheckBox stranger;
    stranger.setChecked(true);
    for (QAbstractButton *sender :
         {static_cast<QAbstractButton *>(&stranger), static_cast<QAbstractButton *>(nullptr)}) {
        fixture.box(OptionCatalogue::RemoveBlkSpace)->setEnabled(false);
        PaintWatcher preview(fixture.panel->mOptionView);
        fixture.panel->changeOption(sender);
        QVERIFY(fixture.box(OptionCatalogue::RemoveBlkSpace)->isEnabled());
        QVERIFY(preview.waitForPaint());
    }
    QCOMPARE(fixture.takeTold(), QStringList());
    QCOMPARE(fixture.panel->refreshed, QList<quint32>());
}

void UserActionsTest::autoCutWithHeatShrinkTubeWarns_data()
{
    QTest::addColumn<QString>("paper");
    QTest::addColumn<bool>("warns");
    QTest::newRow("HS058") << u"HS058"_s << true;
    QTest::newRow("HS alone") << u"HS"_s << true;
    QTest::newRow("name in the ticket") << QString() << true;
    QTest::newRow("lower case") << u"hs058"_s << false;
    QTest::newRow("H") << u"H"_s << false;
    QTest::newRow("HS elsewhere") << u"XHS"_s << false;
    QTest::newRow("standard paper") << u"62x29"_s << false;
    QTest::newRow("FL paper") << u"FL30"_s << false;
}

void UserActionsTest::autoCutWithHeatShrinkTubeWarns()
{
    QFETCH(QString, paper);
    QFETCH(bool, warns);
    PanelFixture fixture;
    fixture.show();
    fixture.host->setPaper(paper);
    fixture.host->setTicket({{u"MqPaperName2"_s, u"HS12"_s}});
    fixture.click(cutEvery);
    QCOMPARE(fixture.takeTold(), QStringList{u"KvAutoTapeCut=OFF"_s});
    QVERIFY(!openWarning());

    // The warning only informs: the choice does not wait for it.
    fixture.click(cutEvery);
    QVERIFY(fixture.isOn(cutEvery));
    QCOMPARE(fixture.takeTold(), QStringList{u"KvAutoTapeCut=ON"_s});
    QVERIFY(fixture.panel->mCutEveryTxBx->isEnabled());
    const QPointer<QMessageBox> warning = openWarning();
    QCOMPARE(!warning.isNull(), warns);
    if (warns) {
        QCOMPARE(warning->text(), QString());
        QCOMPARE(warning->informativeText(), warningText);
        QCOMPARE(warning->buttons().size(), 1);
        QCOMPARE(warning->buttons().constFirst()->text(), u"OK"_s);
        QCOMPARE(warning->windowModality(), Qt::WindowModal);
        QCOMPARE(warning->parentWidget(), fixture.panel->kPDEView->window());
        QTest::mouseClick(warning->buttons().constFirst(), Qt::LeftButton);
        QVERIFY(!openWarning());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!warning);
    }
}

void UserActionsTest::warningComesEachTimeItIsTurnedOn()
{
    PanelFixture fixture;
    fixture.show();
    fixture.host->setPaper(u"HS058"_s);
    for (const bool warns : {false, true, false, true}) {
        fixture.click(cutEvery);
        QCOMPARE(openWarning() != nullptr, warns);
        if (warns) {
            openWarning()->accept();
        }
    }
    // Only the cut-every box warns.
    fixture.click(autoCut);
    QVERIFY(fixture.isOn(autoCut));
    QVERIFY(!openWarning());
}

void UserActionsTest::warningCanBeClosedByKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void UserActionsTest::warningCanBeClosedByKeyboard()
{
    QFETCH(int, key);
    PanelFixture fixture;
    fixture.show();
    fixture.host->setPaper(u"HS058"_s);
    fixture.click(cutEvery);
    fixture.takeTold();
    fixture.click(cutEvery);
    QVERIFY(openWarning());
    QTest::keyClick(openWarning(), Qt::Key(key));
    QVERIFY(!openWarning());
    QVERIFY(fixture.isOn(cutEvery));
    QCOMPARE(fixture.takeTold(), QStringList{u"KvAutoTapeCut=ON"_s});
}

KV_TEST(UserActionsTest)
#include "tst_useractions.moc"
