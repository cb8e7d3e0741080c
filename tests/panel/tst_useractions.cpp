#include "PanelFixture.h"

#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

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

/// What a warning was like when it was open.
struct Warning
{
    QString text;
    QString informativeText;
    QStringList buttons;
    Qt::WindowModality modality;
    const QWidget *parent;
};

/// Waits for warnings, notes them and presses Return or Escape, or clicks the button.
class WarningWatcher : public QObject
{
public:
    explicit WarningWatcher(Qt::Key key = Qt::Key_unknown)
        : mKey(key)
    {
        connect(&mTimer, &QTimer::timeout, this, [this] { look(); });
        mTimer.start(5);
    }

    QList<Warning> warnings;

private:
    void look()
    {
        auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!alert) {
            return;
        }
        QStringList buttons;
        for (const QAbstractButton *button : alert->buttons()) {
            buttons.append(button->text());
        }
        warnings.append({alert->text(), alert->informativeText(), buttons, alert->windowModality(),
                         alert->parentWidget()});
        if (mKey == Qt::Key_unknown) {
            QTest::mouseClick(alert->buttons().constFirst(), Qt::LeftButton);
        } else {
            QTest::keyClick(alert, mKey);
        }
    }

    Qt::Key mKey;
    QTimer mTimer;
};

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
    WarningWatcher watcher;
    fixture.click(cutEvery);
    QCOMPARE(fixture.takeTold(), QStringList{u"KvAutoTapeCut=OFF"_s});
    QCOMPARE(watcher.warnings.size(), 0);

    fixture.click(cutEvery);
    QCOMPARE(watcher.warnings.size(), warns ? 1 : 0);
    QVERIFY(fixture.isOn(cutEvery));
    QCOMPARE(fixture.takeTold(), QStringList{u"KvAutoTapeCut=ON"_s});
    if (warns) {
        const Warning &warning = watcher.warnings.constFirst();
        QCOMPARE(warning.text, QString());
        QCOMPARE(warning.informativeText, warningText);
        QCOMPARE(warning.buttons, QStringList{u"OK"_s});
        QCOMPARE(warning.modality, Qt::WindowModal);
        QCOMPARE(warning.parent, fixture.panel->kPDEView->window());
    }
}

void UserActionsTest::warningComesEachTimeItIsTurnedOn()
{
    PanelFixture fixture;
    fixture.show();
    fixture.host->setPaper(u"HS058"_s);
    WarningWatcher watcher;
    for (const int warned : {0, 1, 1, 2, 2, 3}) {
        fixture.click(cutEvery);
        QCOMPARE(watcher.warnings.size(), warned);
    }
    // Only the cut-every box warns.
    fixture.click(autoCut);
    QVERIFY(fixture.isOn(autoCut));
    QCOMPARE(watcher.warnings.size(), 3);
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
    WarningWatcher watcher{Qt::Key(key)};
    fixture.click(cutEvery);
    QCOMPARE(watcher.warnings.size(), 0);
    fixture.takeTold();
    fixture.click(cutEvery);
    QCOMPARE(watcher.warnings.size(), 1);
    QVERIFY(fixture.isOn(cutEvery));
    QCOMPARE(fixture.takeTold(), QStringList{u"KvAutoTapeCut=ON"_s});
}

KV_TEST(UserActionsTest)
#include "tst_useractions.moc"
