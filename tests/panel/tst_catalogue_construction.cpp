// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

#include "printcore/NotificationCenter.h"

/// The nine options and what the panel is like before it has a view.
class CatalogueAndConstructionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachRowNamesItsOption_data();
    void eachRowNamesItsOption();
    void rowsAreFoundByTheirExactKeyword();
    void missingKeywordLeavesTheOptionOut_data();
    void missingKeywordLeavesTheOptionOut();
    void printerWithoutAnyOptionDeclaresNothing();
    void choicesAreInTheOrderOfThePPD();
    void boxStartsTickedOnlyForItsKeyword_data();
    void boxStartsTickedOnlyForItsKeyword();
    void panelStartsWithNothingSelected();
    void onlyUSBSchemesCountAsUSB_data();
    void onlyUSBSchemesCountAsUSB();
    void printerWithoutURIIsNotConnectedByUSB();
    void autoCutHasItsOwnBoxOnlyWhenThePPDSaysSo_data();
    void autoCutHasItsOwnBoxOnlyWhenThePPDSaysSo();
    void heatShrinkTubeTurnsAutoCutOffBeforeAnythingIsShown_data();
    void heatShrinkTubeTurnsAutoCutOffBeforeAnythingIsShown();
    void heatShrinkTubeIsHarmlessWithoutAutoCut();
    void declaredKeysFollowThePPD_data();
    void declaredKeysFollowThePPD();
    void keysAreDeclaredOnceAndSavedOnce();
    void panelNeedsDialogAndBundle();
    void viewIsLoadedOnce();
    void firstShowInitialisesAndSavesEveryOption();
    void everyItemIsRefreshedInOrderThePopUpLast();
    void everyMarkedChoiceIsReadInOrder();
    void paperChangeIsFollowedFromAnyObject();
    void otherNotificationsAreNotFollowed();
    void closedPanelFollowsThePaperNoMore();
    void panelOffersNoHelpAndDoesNothingOnClose();
};

void CatalogueAndConstructionTest::eachRowNamesItsOption_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<QByteArray>("checkedKeyword");
    for (const Option option : everyOption) {
        QTest::newRow(factsOf(option).keyword)
            << int(option) << QByteArray(option == OptionCatalogue::CutEvery ? "1" : "ON");
    }
}

void CatalogueAndConstructionTest::eachRowNamesItsOption()
{
    QFETCH(int, option);
    QFETCH(QByteArray, checkedKeyword);
    const OptionFacts &facts = factsOf(Option(option));
    const OptionRow &row = OptionCatalogue::rows.at(std::size_t(option));
    QCOMPARE(QByteArray(row.keyword), QByteArray(facts.keyword));
    QCOMPARE(QByteArray(row.labelKey), QByteArray(facts.labelKey));
    QCOMPARE(QByteArray(row.summaryTitleKey), QByteArray(facts.summaryKey));
    QCOMPARE(QByteArray(row.checkedKeyword), checkedKeyword);
    QCOMPARE(row.itemType, facts.itemType);

    PanelFixture fixture;
    fixture.load();
    QCOMPARE(fixture.box(Option(option))->objectName(), QLatin1String(facts.outlet));
    QCOMPARE(QByteArray(fixture.panel->option(Option(option))->keyword), QByteArray(facts.keyword));
    const ppd_choice_t *first = fixture.panel->choices(Option(option)).at(0)->choice();
    QCOMPARE(first->option, fixture.panel->option(Option(option)));
}

void CatalogueAndConstructionTest::rowsAreFoundByTheirExactKeyword()
{
    QCOMPARE(OptionCatalogue::rows.size(), std::size_t(9));
    for (const Option option : everyOption) {
        const QString keyword = QLatin1String(factsOf(option).keyword);
        QCOMPARE(OptionCatalogue::rowForKeyword(keyword), &OptionCatalogue::rows[option]);
        QVERIFY(!OptionCatalogue::rowForKeyword(keyword.toLower()));
    }
    for (const char16_t *unknown : {u"", u"KvCut", u"KvMirror2", u"PageSize"}) {
        QVERIFY(!OptionCatalogue::rowForKeyword(QString::fromUtf16(unknown)));
    }
    QVERIFY(!OptionCatalogue::rowForKeyword(QString()));
}

void CatalogueAndConstructionTest::missingKeywordLeavesTheOptionOut_data()
{
    QTest::addColumn<int>("missing");
    for (const Option option : everyOption) {
        QTest::newRow(factsOf(option).keyword) << int(option);
    }
}

void CatalogueAndConstructionTest::missingKeywordLeavesTheOptionOut()
{
    QFETCH(int, missing);
    const auto absent = Option(missing);
    PanelFixture fixture({.options = everyOptionBut(absent)});
    fixture.load();
    for (const Option option : everyOption) {
        QCOMPARE(fixture.panel->option(option) == nullptr, option == absent);
        QCOMPARE(fixture.panel->choices(option).isNull(), option == absent);
    }
    fixture.panel->initUI();
    // Remove blank space follows the medium alone.
    QCOMPARE(fixture.box(absent)->isEnabled(), absent == OptionCatalogue::RemoveBlkSpace);

    fixture.setOn(absent, true);
    fixture.panel->changeOption(fixture.box(absent));
    fixture.panel->saveValuesAndReturnError(nullptr);
    const QString keyword = QLatin1String(factsOf(absent).keyword);
    QVERIFY(!fixture.host->told.isEmpty());
    for (const Pair &pair : std::as_const(fixture.host->told)) {
        QVERIFY(pair.first != keyword);
    }
    QVERIFY(!fixture.panel->selection(absent));
}

void CatalogueAndConstructionTest::printerWithoutAnyOptionDeclaresNothing()
{
    PanelFixture fixture({.options = {}});
    fixture.show();
    for (const Option option : everyOption) {
        QVERIFY(!fixture.panel->option(option));
        QVERIFY(fixture.panel->choices(option).isNull());
    }
    QCOMPARE(*fixture.panel->supportedPPDOptionKeys(), QStringList());
    QVERIFY(fixture.panel->saveValuesAndReturnError(nullptr));
    QVERIFY(fixture.panel->restoreValuesAndReturnError(nullptr));
    QVERIFY(fixture.panel->shouldPrint());
    QCOMPARE(fixture.takeTold(), QStringList());
}

void CatalogueAndConstructionTest::choicesAreInTheOrderOfThePPD()
{
    PanelFixture fixture;
    fixture.build();
    const ChoiceList &counts = fixture.panel->choices(OptionCatalogue::CutEvery);
    QCOMPARE(counts.size(), 99);
    QCOMPARE(counts.at(0)->ppdTitle(), QStringLiteral("1"));
    QCOMPARE(counts.at(98)->ppdTitle(), QStringLiteral("99"));
    for (const Option option : everyOptionBut(OptionCatalogue::CutEvery)) {
        const ChoiceList &choices = fixture.panel->choices(option);
        QCOMPARE(choices.size(), 2);
        QCOMPARE(choices.at(0)->ppdTitle(), QStringLiteral("OFF"));
        QCOMPARE(choices.at(1)->ppdTitle(), QStringLiteral("ON"));
    }
}

void CatalogueAndConstructionTest::boxStartsTickedOnlyForItsKeyword_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<QByteArray>("defaultChoice");
    QTest::addColumn<bool>("ticked");
    for (const char *count : {"1", "2", "10", "99"}) {
        QTest::addRow("KvCutLabel defaults to %s", count)
            << int(OptionCatalogue::CutEvery) << QByteArray(count) << (QByteArray(count) == "1");
    }
    for (const char *count : {"OFF", "ON", "01"}) {
        QTest::addRow("KvCutLabel defaults to %s", count)
            << int(OptionCatalogue::CutEvery) << QByteArray(count) << false;
    }
    for (const Option option : everyOptionBut(OptionCatalogue::CutEvery)) {
        for (const char *choice : {"ON", "OFF", "On", "1", "ONE"}) {
            QTest::addRow("%s defaults to %s", factsOf(option).keyword, choice)
                << int(option) << QByteArray(choice) << (QByteArray(choice) == "ON");
        }
    }
}

void CatalogueAndConstructionTest::boxStartsTickedOnlyForItsKeyword()
{
    QFETCH(int, option);
    QFETCH(QByteArray, defaultChoice);
    QFETCH(bool, ticked);
    TestPrinter printer{.options = everyOptionBut(Option(option))};
    PPDText text = printer.text();
    text.option(factsOf(Option(option)).keyword, {"first", defaultChoice, "last"}, defaultChoice);
    PanelFixture fixture(text);
    fixture.load();
    fixture.setOn(Option(option), !ticked);
    fixture.panel->initUI();
    QCOMPARE(fixture.isOn(Option(option)), ticked);
}

void CatalogueAndConstructionTest::panelStartsWithNothingSelected()
{
    PanelFixture fixture;
    fixture.build();
    for (const Option option : everyOption) {
        QVERIFY(!fixture.panel->selection(option));
    }
    QVERIFY(!fixture.panel->mAutoCut_CutEvery_Selection);
    QVERIFY(!fixture.panel->mOptionView);
    QCOMPARE(int(fixture.panel->checkValues_dec), 1);
    QCOMPARE(int(fixture.panel->column_dec), 0);
    QCOMPARE(int(fixture.panel->set_formatSetting), 0);
    QCOMPARE(fixture.panel->mTapeState, 0);
    QCOMPARE(fixture.takeTold(), QStringList());
}

void CatalogueAndConstructionTest::onlyUSBSchemesCountAsUSB_data()
{
    QTest::addColumn<QString>("uri");
    QTest::addColumn<int>("usb");
    QTest::newRow("usb") << u"usb://Korvane/T"_s << 1;
    QTest::newRow("KVMQUSB") << u"KVMQUSB://Korvane/T"_s << 1;
    QTest::newRow("upper-case USB") << u"USB://Korvane/T"_s << 0;
    QTest::newRow("lower-case kvmqusb") << u"kvmqusb://Korvane/T"_s << 0;
    QTest::newRow("usb with more letters") << u"usbx://Korvane/T"_s << 0;
    QTest::newRow("network") << u"ipp://printer.local/"_s << 0;
    QTest::newRow("usb in the path only") << u"ipp://usb/usb"_s << 0;
    QTest::newRow("no scheme") << u"usb"_s << 0;
    QTest::newRow("empty") << u""_s << 0;
    QTest::newRow("not known") << QString() << 0;
}

void CatalogueAndConstructionTest::onlyUSBSchemesCountAsUSB()
{
    QFETCH(QString, uri);
    QFETCH(int, usb);
    PanelFixture fixture;
    fixture.host->printer = Printer(u"queue"_s, uri);
    fixture.build();
    QCOMPARE(int(fixture.panel->usb_dec), usb);
}

void CatalogueAndConstructionTest::printerWithoutURIIsNotConnectedByUSB()
{
    PanelFixture fixture;
    fixture.host->printer.reset();
    fixture.build();
    QCOMPARE(int(fixture.panel->usb_dec), 0);
}

void CatalogueAndConstructionTest::autoCutHasItsOwnBoxOnlyWhenThePPDSaysSo_data()
{
    QTest::addColumn<bool>("hasAutoCut");
    QTest::addColumn<QByteArray>("hidden");
    QTest::addColumn<int>("own");
    QTest::newRow("not hidden") << true << QByteArray("False") << 1;
    QTest::newRow("hidden") << true << QByteArray("True") << 0;
    QTest::newRow("lower-case false") << true << QByteArray("false") << 0;
    QTest::newRow("nothing said") << true << QByteArray() << 0;
    QTest::newRow("not hidden, but no auto cut") << false << QByteArray("False") << 0;
}

void CatalogueAndConstructionTest::autoCutHasItsOwnBoxOnlyWhenThePPDSaysSo()
{
    QFETCH(bool, hasAutoCut);
    QFETCH(QByteArray, hidden);
    QFETCH(int, own);
    PPDText text;
    text.counts();
    if (hasAutoCut) {
        text.onOff("KvAutoTapeCut");
    }
    if (!hidden.isNull()) {
        text.attribute("KvAutoCutObjHidden", hidden);
    }
    PanelFixture fixture(text);
    fixture.load();
    QCOMPARE(int(fixture.panel->mAutoCutHideKey_dec), own);
    QCOMPARE(fixture.box(OptionCatalogue::AutoCut)->isHidden(), own == 0);
}

void CatalogueAndConstructionTest::heatShrinkTubeTurnsAutoCutOffBeforeAnythingIsShown_data()
{
    QTest::addColumn<QString>("paper");
    QTest::addColumn<QString>("ticketPaper");
    QTest::addColumn<QString>("marked");
    QTest::newRow("HS058") << u"HS058"_s << QString() << u"OFF"_s;
    QTest::newRow("HS alone, not in the PPD") << u"HS"_s << QString() << u"OFF"_s;
    QTest::newRow("from the ticket") << QString() << u"HS58"_s << u"OFF"_s;
    QTest::newRow("ticket behind a named paper") << u"62x29"_s << u"HS58"_s << u"ON"_s;
    QTest::newRow("lower case") << u"hs058"_s << QString() << u"ON"_s;
    QTest::newRow("first letter only") << u"H"_s << QString() << u"ON"_s;
    QTest::newRow("elsewhere in the name") << u"AHS"_s << QString() << u"ON"_s;
    QTest::newRow("no name") << QString() << QString() << u"ON"_s;
    QTest::newRow("standard") << u"62x29"_s << QString() << u"ON"_s;
}

void CatalogueAndConstructionTest::heatShrinkTubeTurnsAutoCutOffBeforeAnythingIsShown()
{
    QFETCH(QString, paper);
    QFETCH(QString, ticketPaper);
    QFETCH(QString, marked);
    PanelFixture fixture({.defaults = {{OptionCatalogue::AutoCut, "ON"}}});
    fixture.host->setPaper(paper, 82.0);
    if (!ticketPaper.isNull()) {
        fixture.host->setTicket({{u"MqPaperName2"_s, ticketPaper}});
    }
    fixture.build();
    QCOMPARE(fixture.host->marked("KvAutoTapeCut"), marked);
    QCOMPARE(fixture.takeTold(), QStringList());
}

void CatalogueAndConstructionTest::heatShrinkTubeIsHarmlessWithoutAutoCut()
{
    PanelFixture fixture({.options = everyOptionBut(OptionCatalogue::AutoCut)});
    fixture.host->setPaper(u"HS058"_s, 82.0);
    fixture.build();
    QVERIFY(fixture.host->marked("KvAutoTapeCut").isNull());
}

void CatalogueAndConstructionTest::declaredKeysFollowThePPD_data()
{
    QTest::addColumn<TestPrinter>("printer");
    QTest::addColumn<QStringList>("keys");
    const QStringList all = {u"KvCutLabel"_s,    u"KvCutAtEnd"_s,       u"KvMirror"_s,
                             u"KvAutoTapeCut"_s, u"KvHalfCut"_s,        u"KvChainPrint"_s,
                             u"KvSpecialTape"_s, u"KvRemoveBlkSpace"_s, u"KvCutMark"_s};
    QTest::newRow("all") << TestPrinter() << all;
    QTest::newRow("auto cut without a box of its own")
        << TestPrinter{.separateAutoCut = false} << all;
    QTest::newRow("all, in another order in the PPD")
        << TestPrinter{.options = QList<Option>(everyOption.rbegin(), everyOption.rend())} << all;
    QTest::newRow("none") << TestPrinter{.options = {}} << QStringList();
    QStringList drivenByCutEvery = all;
    drivenByCutEvery.move(3, 1);
    QTest::newRow("no auto cut") << TestPrinter{.options = everyOptionBut(OptionCatalogue::AutoCut)}
                                 << drivenByCutEvery;
    for (const Option option : everyOptionBut(OptionCatalogue::AutoCut)) {
        QStringList keys = all;
        keys.removeOne(QLatin1String(factsOf(option).keyword));
        QTest::addRow("no %s", factsOf(option).keyword)
            << TestPrinter{.options = everyOptionBut(option)} << keys;
    }
    QTest::newRow("neither cut every nor auto cut")
        << TestPrinter{.options = {OptionCatalogue::Mirror}} << QStringList{u"KvMirror"_s};
}

void CatalogueAndConstructionTest::declaredKeysFollowThePPD()
{
    QFETCH(TestPrinter, printer);
    QFETCH(QStringList, keys);
    PanelFixture fixture(printer);
    fixture.build();
    QCOMPARE(*fixture.panel->supportedPPDOptionKeys(), keys);
}

void CatalogueAndConstructionTest::keysAreDeclaredOnceAndSavedOnce()
{
    PanelFixture fixture;
    fixture.build();
    const auto keys = fixture.panel->supportedPPDOptionKeys();
    QCOMPARE(fixture.takeTold().size(), 9);
    QCOMPARE(fixture.panel->supportedPPDOptionKeys(), keys);
    QCOMPARE(keys->size(), 9);
    QCOMPARE(fixture.takeTold(), QStringList());
}

void CatalogueAndConstructionTest::panelNeedsDialogAndBundle()
{
    auto host = std::make_shared<TestHost>(TestPrinter().text().open());
    QVERIFY(!OptionPDE13_v400_::initWithCallback(nullptr, testBundle()));
    QVERIFY(!OptionPDE13_v400_::initWithCallback(host, nullptr));
    QVERIFY(OptionPDE13_v400_::initWithCallback(host, testBundle()));
}

void CatalogueAndConstructionTest::viewIsLoadedOnce()
{
    PanelFixture fixture;
    fixture.load();
    QWidget *view = fixture.panel->kPDEView;
    const OptionView13_v400_ *preview = fixture.panel->mOptionView;
    QVERIFY(view && preview);
    QCOMPARE(fixture.panel->panelView(), view);
    QCOMPARE(fixture.panel->mOptionView.data(), preview);
}

void CatalogueAndConstructionTest::firstShowInitialisesAndSavesEveryOption()
{
    PanelFixture fixture(
        {.defaults = {{OptionCatalogue::Mirror, "ON"}, {OptionCatalogue::CutMark, "ON"}}});
    fixture.load();
    fixture.panel->willShow();
    const QStringList saved = {
        u"KvCutLabel=1"_s,      u"KvCutAtEnd=OFF"_s,       u"KvMirror=ON"_s,
        u"KvAutoTapeCut=OFF"_s, u"KvHalfCut=OFF"_s,        u"KvChainPrint=OFF"_s,
        u"KvSpecialTape=OFF"_s, u"KvRemoveBlkSpace=OFF"_s, u"KvCutMark=ON"_s};
    QCOMPARE(fixture.takeTold(), saved);
    QCOMPARE(int(fixture.panel->set_formatSetting), 1);

    fixture.setOn(OptionCatalogue::HalfCut, true);
    fixture.panel->initUI();
    QVERIFY(fixture.isOn(OptionCatalogue::HalfCut));
    fixture.panel->willShow();
    QCOMPARE(fixture.takeTold(), QStringList());
}

void CatalogueAndConstructionTest::everyItemIsRefreshedInOrderThePopUpLast()
{
    PanelFixture fixture;
    fixture.load();
    RecordingPanel &panel = *fixture.panel;
    panel.setPDEItems();
    QCOMPARE(panel.refreshed, QList<quint32>({0x100, 0x200, 0x400, 0x800, 0x1000, 0x2000, 0x4000,
                                              0x10000, 0x80000, 0x40000}));
    QCOMPARE(panel.reread, QList<quint32>());
}

void CatalogueAndConstructionTest::everyMarkedChoiceIsReadInOrder()
{
    PanelFixture fixture;
    fixture.load();
    RecordingPanel &panel = *fixture.panel;
    panel.setPDEItems2();
    const QList<quint32> order = {0x100,  0x200,  0x400,   0x800,  0x1000,
                                  0x2000, 0x4000, 0x10000, 0x80000};
    QCOMPARE(panel.reread, order);
    QCOMPARE(panel.refreshed, QList<quint32>());
    panel.reread.clear();
    panel.restoreValuesAndReturnError(nullptr);
    QCOMPARE(panel.reread, order);
    QCOMPARE(panel.refreshed.size(), 10);
    QCOMPARE(panel.refreshed.last(), 0x40000U);
}

void CatalogueAndConstructionTest::paperChangeIsFollowedFromAnyObject()
{
    PanelFixture fixture;
    fixture.load();
    RecordingPanel &panel = *fixture.panel;
    int somebody = 0;
    for (const void *object :
         {static_cast<const void *>(fixture.host.get()), static_cast<const void *>(&somebody),
          static_cast<const void *>(nullptr)}) {
        panel.refreshed.clear();
        NotificationCenter::defaultCenter().postNotification(
            u"PMPrintDestinationPaperDidChangeNotification"_s, object);
        QCOMPARE(panel.refreshed.size(), 10);
    }
}

void CatalogueAndConstructionTest::otherNotificationsAreNotFollowed()
{
    PanelFixture fixture;
    fixture.load();
    RecordingPanel &panel = *fixture.panel;
    for (const char16_t *name : {u"PMPrintDestinationPaperDidChange", u"PaperDidChange", u""}) {
        NotificationCenter::defaultCenter().postNotification(QString::fromUtf16(name), nullptr);
    }
    QCOMPARE(panel.refreshed, QList<quint32>());
}

void CatalogueAndConstructionTest::closedPanelFollowsThePaperNoMore()
{
    PanelFixture fixture({.defaults = {{OptionCatalogue::AutoCut, "ON"}}});
    fixture.show();
    fixture.host->mark("KvAutoTapeCut", "ON");
    fixture.host->panel = nullptr;
    QPointer<QWidget> view = fixture.panel->kPDEView;
    QPointer<QWidget> preview = fixture.panel->mOptionView.data();
    fixture.panel.reset();
    QVERIFY(!view);
    QVERIFY(!preview);
    fixture.host->changePaper(u"HS058"_s);
    QCOMPARE(fixture.host->marked("KvAutoTapeCut"), u"ON"_s);
}

void CatalogueAndConstructionTest::panelOffersNoHelpAndDoesNothingOnClose()
{
    PanelFixture fixture;
    fixture.show();
    const QList<Option> on = fixture.optionsOn();
    QVERIFY(!fixture.panel->shouldShowHelp());
    QVERIFY(fixture.panel->shouldHide());
    fixture.panel->printWindowWillClose();
    fixture.panel->initSetTitleTexts();
    fixture.panel->getValuesFromKey();
    fixture.panel->initializeUI_OtherStr();
    fixture.panel->tabView_didSelectTabViewItem(nullptr, nullptr);
    QCOMPARE(fixture.optionsOn(), on);
    QCOMPARE(fixture.takeTold(), QStringList());
}

KV_TEST(CatalogueAndConstructionTest)
#include "tst_catalogue_construction.moc"
