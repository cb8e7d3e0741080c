// SPDX-License-Identifier: Apache-2.0
#include "RecordingHost.h"
#include "RecordingPanel.h"
#include "support/SystemCodeset.h"
#include "support/TestHost.h"

#include <QHash>
#include <QTest>

#include <functional>

/// What every panel inherits: how it meets the dialog.
class BasePanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void fetchesTheObjectsOfTheJobOnce();
    void letsGoOfTheDialogBeforeTheBundle();
    void startsWithNoChoicesOfItsOwn();
    void copiesTheDeviceURI_data();
    void copiesTheDeviceURI();
    void copiesTheDeviceURIInTheSystemEncoding();
    void deviceURIThatTheSystemEncodingLacksIsLeftOut();
    void printerThatIsMissingHasNoDeviceURI();
    void answersTheProtocol();
    void hooksOfTheBaseDoNothing();
    void runsTheHooksInOrder_data();
    void runsTheHooksInOrder();
    void nameIsFetchedOnce();
    void nameOfABundleWithoutTextsIsItsKey();
    void readsTheFileVersion();
    void tellsTheLabelPrinters_data();
    void tellsTheLabelPrinters();
    void panelWithoutPPD();
};

namespace {
using Calls = QStringList;

/// A panel of the base class for a printer.
std::unique_ptr<RecordingPanel> makePanel(const PPDText &text = PPDText())
{
    return std::make_unique<RecordingPanel>(std::make_shared<TestHost>(text.open()), testBundle());
}

QByteArray copiedURI(const QString &uri)
{
    const auto host = std::make_shared<TestHost>(PPDText().open(), uri);
    return RecordingPanel(host, testBundle()).deviceURI.data();
}

/// "usb://Korvane/" and as many letters as make it that long.
QString uriOfLength(int length)
{
    const QString start = u"usb://Korvane/"_s;
    return start + QString(length - start.size(), u'x');
}
} // namespace

void BasePanelTest::cleanup()
{
    setSystemCodeset({});
}

void BasePanelTest::fetchesTheObjectsOfTheJobOnce()
{
    const auto host = std::make_shared<RecordingHost>();
    RecordingPanel panel(host, testBundle());
    const Calls fetched = {u"printSession"_s, u"printSettings"_s, u"printSettings"_s,
                           u"pageFormat"_s,   u"PMPrinter"_s,     u"ppdFile"_s};
    QCOMPARE(host->calls, fetched);
    QCOMPARE(panel.printSession, &host->session);
    QCOMPARE(panel.pmPrintSettings, &host->settings);
    QCOMPARE(panel.printSettings, &host->settings);
    QCOMPARE(panel.formatSettings, &host->format);
    QCOMPARE(panel.printer, &host->printer);
    QCOMPARE(panel.ppd, host->ppd.get());

    panel.panelView();
    panel.willShow();
    panel.supportedPPDOptionKeys();
    panel.saveValuesAndReturnError(nullptr);
    panel.restoreValuesAndReturnError(nullptr);
    panel.fileVerString();
    QCOMPARE(host->calls, fetched);
}

void BasePanelTest::letsGoOfTheDialogBeforeTheBundle()
{
    QStringList gone;
    const auto kept = [&gone](auto object, const char *name) {
        using Object = typename decltype(object)::element_type;
        return std::shared_ptr<Object>(
            object.get(), [object, name, &gone](Object *) { gone.append(QLatin1String(name)); });
    };
    auto host = kept(std::make_shared<RecordingHost>(), "dialog");
    auto bundle = kept(testBundle(), "bundle");
    auto panel = std::make_unique<RecordingPanel>(host, bundle);
    host.reset();
    bundle.reset();
    QCOMPARE(gone, QStringList());
    panel.reset();
    QCOMPARE(gone, QStringList({u"dialog"_s, u"bundle"_s}));
}

void BasePanelTest::startsWithNoChoicesOfItsOwn()
{
    const auto panel = makePanel();
    QVERIFY(!panel->supportedOptions());
    QCOMPARE(panel->imageModeFlag(), qint16(0));
    QCOMPARE(panel->calls, Calls());
}

void BasePanelTest::copiesTheDeviceURI_data()
{
    QTest::addColumn<QString>("uri");
    QTest::addColumn<QByteArray>("copy");

    const auto fits = [](const char *name, const QString &uri) {
        QTest::newRow(name) << uri << uri.toLatin1();
    };
    const auto fails = [](const char *name, const QString &uri) {
        QTest::newRow(name) << uri << QByteArray("");
    };
    fits("short", u"usb://Korvane/LX%20200?serial=1"_s);
    fits("empty", u""_s);
    fails("unknown", QString());
    fits("254 characters", uriOfLength(254));
    fails("255 characters", uriOfLength(255));
    fails("256 characters", uriOfLength(256));
    fails("300 characters", uriOfLength(300));
    fails("a million characters", uriOfLength(1'000'000));
}

void BasePanelTest::copiesTheDeviceURI()
{
    QFETCH(QString, uri);
    QFETCH(QByteArray, copy);
    QCOMPARE(copiedURI(uri), copy);
}

void BasePanelTest::copiesTheDeviceURIInTheSystemEncoding()
{
    const QString accents = u"usb://Größe"_s;
    QCOMPARE(copiedURI(accents), QByteArray("usb://Gr\xc3\xb6\xc3\x9f"
                                            "e"));
    QCOMPARE(copiedURI(uriOfLength(253) + u'é'), QByteArray(""));
    setSystemCodeset("ISO-8859-1");
    QCOMPARE(copiedURI(accents), QByteArray("usb://Gr\xf6\xdf"
                                            "e"));
    QCOMPARE(copiedURI(uriOfLength(253) + u'é'), uriOfLength(253).toLatin1() + '\xe9');
}

void BasePanelTest::deviceURIThatTheSystemEncodingLacksIsLeftOut()
{
    setSystemCodeset("US-ASCII");
    QCOMPARE(copiedURI(u"usb://Größe"_s), QByteArray(""));
    setSystemCodeset("no-such-encoding");
    QCOMPARE(copiedURI(u"usb://Korvane"_s), QByteArray(""));
}

void BasePanelTest::printerThatIsMissingHasNoDeviceURI()
{
    const auto host = std::make_shared<TestHost>(PPDText().open());
    host->printer.reset();
    const RecordingPanel panel(host, testBundle());
    QCOMPARE(QByteArray(panel.deviceURI.data()), QByteArray(""));
    QVERIFY(!panel.printer);
}

void BasePanelTest::answersTheProtocol()
{
    const auto panel = makePanel();
    QCOMPARE(panel->panelKind(), u"jp.co.vendor.printer.cups.pde.OptionPDEKind"_s);
    QCOMPARE(panel->shouldHide(), true);
    QCOMPARE(panel->shouldPrint(), true);
    QCOMPARE(panel->shouldShowHelp(), false);
    QVERIFY(!panel->summaryInfo());
    QVERIFY(!panel->automation());
    panel->printWindowWillClose();
    QCOMPARE(panel->calls, Calls());
}

void BasePanelTest::hooksOfTheBaseDoNothing()
{
    const auto host = std::make_shared<RecordingHost>();
    const auto panel = std::make_unique<PlainPanel>(host, testBundle());
    const Calls fetched = host->calls;
    panel->initSetTitleTexts();
    panel->initUI();
    panel->getValuesFromKey();
    panel->setValuesToKey();
    panel->setPDEItems();
    panel->setPDEItems2();
    panel->updateUIItem(0xffffffff);
    panel->updateMarkedSelections(0xffffffff);
    panel->PPDOptionKeyValueDidChange(u"KvTest"_s, u"ON"_s);
    QCOMPARE(panel->indexForSummary(7), 0);
    QCOMPARE(host->calls, fetched);
    QCOMPARE(QByteArray(ppdFindMarkedChoice(host->ppd.get(), "KvTest")->choice), QByteArray("OFF"));
}

void BasePanelTest::runsTheHooksInOrder_data()
{
    QTest::addColumn<QString>("event");
    QTest::addColumn<Calls>("calls");

    const QString items = u"setPDEItems"_s;
    QTest::newRow("shown") << u"show"_s << Calls{u"initSetTitleTexts"_s, u"initUI"_s, items};
    QTest::newRow("restored") << u"restore"_s << Calls{u"setPDEItems2"_s, items};
    QTest::newRow("saved") << u"save"_s << Calls{u"setValuesToKey"_s};
    QTest::newRow("asked for its keys") << u"keys"_s << Calls{u"setValuesToKey"_s};
    QTest::newRow("refreshed") << u"refresh"_s << Calls{items};
}

void BasePanelTest::runsTheHooksInOrder()
{
    QFETCH(QString, event);
    QFETCH(Calls, calls);
    const auto panel = makePanel();
    QString error = u"untouched"_s;
    const QHash<QString, std::function<bool()>> events = {
        {u"show"_s,
         [&] {
             return panel->willShow(), true;
         }},
        {u"restore"_s,
         [&] {
             return panel->restoreValuesAndReturnError(&error);
         }},
        {u"save"_s,
         [&] {
             return panel->saveValuesAndReturnError(&error);
         }},
        {u"keys"_s,
         [&] {
             return panel->supportedPPDOptionKeys() == std::nullopt;
         }},
        {u"refresh"_s,
         [&] {
             return panel->updateUI(), true;
         }},
    };
    QCOMPARE(events[event](), true);
    QCOMPARE(panel->calls, calls);
    QCOMPARE(events[event](), true);
    QCOMPARE(panel->calls, calls + calls);
    QCOMPARE(error, u"untouched"_s);
}

void BasePanelTest::nameIsFetchedOnce()
{
    const auto bundle = testBundle();
    RecordingPanel panel(std::make_shared<RecordingHost>(), bundle);
    QCOMPARE(panel.panelName(), u"Cut Options"_s);
    bundle->setLanguages({});
    QCOMPARE(panel.panelName(), u"Cut Options"_s);
}

void BasePanelTest::nameOfABundleWithoutTextsIsItsKey()
{
    const auto bundle = testBundle();
    bundle->setLanguages({});
    RecordingPanel panel(std::make_shared<RecordingHost>(), bundle);
    QCOMPARE(panel.panelName(), u"OP_PANEL_NAME"_s);
}

void BasePanelTest::readsTheFileVersion()
{
    QCOMPARE(makePanel()->fileVerString(), u"1.0"_s);
}

void BasePanelTest::tellsTheLabelPrinters_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<bool>("isRV");

    QTest::newRow("RV") << QByteArray("RV") << true;
    QTest::newRow("small letters") << QByteArray("rv") << false;
    QTest::newRow("more") << QByteArray("RV2") << false;
    QTest::newRow("a space before") << QByteArray(" RV") << false;
    QTest::newRow("another") << QByteArray("TZ") << false;
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("not in the system encoding") << QByteArray("RV\xff") << false;
    QTest::newRow("absent") << QByteArray() << false;
}

void BasePanelTest::tellsTheLabelPrinters()
{
    QFETCH(QByteArray, type);
    PPDText text;
    if (!type.isNull()) {
        text.attribute("KvTapeType", type);
    }
    QTEST(makePanel(text)->isRVPrinter(), "isRV");
}

void BasePanelTest::panelWithoutPPD()
{
    const auto host = std::make_shared<TestHost>(nullptr);
    RecordingPanel panel(host, testBundle());
    QVERIFY(panel.fileVerString().isNull());
    QCOMPARE(panel.isRVPrinter(), false);
    QVERIFY(!panel.ppd);
    QVERIFY(panel.panelView());
}

KV_TEST(BasePanelTest)
#include "tst_basepanel.moc"
