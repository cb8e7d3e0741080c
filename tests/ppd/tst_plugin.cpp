// SPDX-License-Identifier: Apache-2.0
#include "plugin/PDEPlugIn.h"
#include "support/BundleCopy.h"
#include "support/TestHost.h"

#include <QPluginLoader>
#include <QPointer>
#include <QProcess>
#include <QTest>
#include <QWidget>

/// The plug-in as the print dialog loads it.
class PlugInTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void bundleNamesThePlugIn();
    void agreesToBeUsed();
    void offersOnePanelToThePrinterModule();
    void panelIsTheCutOptionPanelOfTheBundle();
    void handsTheCallbackToThePanel();
    void offersNoPanelToOtherDialogs_data();
    void offersNoPanelToOtherDialogs();
    void panelThatCannotBeBuiltGivesNoList();
    void bundleThatIsGoneGivesNoList();
    void buildsNewPanelsForEachDialog();
    void keepsTheLastPanelsUntilItGoes();
    void dialogMayKeepThePanelsLonger();
    void dialogMayUnloadTheLibrary();

    void runsOnSystemsFrom105_data();
    void runsOnSystemsFrom105();

private:
    /// A principal class that has agreed to use the bundle.
    std::unique_ptr<PDEPlugIn> plugIn() const;
    PDEPlugInFactory &factory() const;

    mutable QPluginLoader mLoader;
    std::shared_ptr<Bundle> mBundle = testBundle();
};

namespace {
std::shared_ptr<TestHost> makeHost(const PPDText &text = PPDText().allNine())
{
    return std::make_shared<TestHost>(text.open());
}
} // namespace

void PlugInTest::initTestCase()
{
    QVERIFY(mBundle);
    mLoader.setFileName(mBundle->libraryPath());
    QVERIFY2(mLoader.load(), qPrintable(mLoader.errorString()));
    QVERIFY(qobject_cast<PDEPlugInFactory *>(mLoader.instance()));
}

PDEPlugInFactory &PlugInTest::factory() const
{
    return *qobject_cast<PDEPlugInFactory *>(mLoader.instance());
}

std::unique_ptr<PDEPlugIn> PlugInTest::plugIn() const
{
    auto principal = factory().makePlugIn(mBundle->principalClass());
    return principal && principal->initWithBundle(mBundle) ? std::move(principal) : nullptr;
}

void PlugInTest::bundleNamesThePlugIn()
{
    QCOMPARE(mBundle->principalClass(), u"KVMQRVOptionsPlugIn13_v400_"_s);
    QVERIFY(factory().makePlugIn(mBundle->principalClass()));
    QVERIFY(!factory().makePlugIn(u"kvmqrvoptionsplugin13_v400_"_s));
    QVERIFY(!factory().makePlugIn(QString()));
}

void PlugInTest::agreesToBeUsed()
{
    const auto principal = factory().makePlugIn(mBundle->principalClass());
    QCOMPARE(principal->initWithBundle(mBundle), true);
}

void PlugInTest::offersOnePanelToThePrinterModule()
{
    const auto host = makeHost();
    const auto panels = plugIn()->PDEPanelsForType(u"BDB091F4-E57F-11D3-B5CC-0050E4603277"_s, host);
    QVERIFY(panels);
    QCOMPARE(panels->size(), std::size_t(1));
    QVERIFY(panels->front());
}

void PlugInTest::panelIsTheCutOptionPanelOfTheBundle()
{
    const auto panels = plugIn()->PDEPanelsForType(kPrinterModuleDialogType, makeHost());
    QVERIFY(panels && panels->size() == 1);
    PDEPanel &panel = *panels->front();
    QCOMPARE(panel.panelName(), u"Cut Options"_s);
    QCOMPARE(panel.panelKind(), u"jp.co.vendor.printer.cups.pde.OptionPDEKind"_s);
    QVERIFY(panel.panelView());
    QCOMPARE(panel.panelView()->objectName(), u"kPDEView"_s);
}

void PlugInTest::handsTheCallbackToThePanel()
{
    const auto host = makeHost(PPDText().onOff("KvMirror", "ON"));
    const auto panels = plugIn()->PDEPanelsForType(kPrinterModuleDialogType, host);
    QVERIFY(panels && panels->size() == 1);
    const auto keys = panels->front()->supportedPPDOptionKeys();
    QVERIFY(keys);
    QCOMPARE(*keys, QStringList{u"KvMirror"_s});
    QCOMPARE(host->takeTold(), (QList<Pair>{{u"KvMirror"_s, u"ON"_s}}));
}

void PlugInTest::offersNoPanelToOtherDialogs_data()
{
    QTest::addColumn<QString>("type");

    QTest::newRow("none") << QString();
    QTest::newRow("empty") << u""_s;
    QTest::newRow("another dialog") << u"B9A0DA98-E57F-11D3-9E83-0050E4603277"_s;
    QTest::newRow("small letters") << u"bdb091f4-e57f-11d3-b5cc-0050e4603277"_s;
    QTest::newRow("start alone") << u"BDB091F4-E57F-11D3-B5CC-0050E460327"_s;
    QTest::newRow("and more") << u"BDB091F4-E57F-11D3-B5CC-0050E46032777"_s;
    QTest::newRow("and a space") << u"BDB091F4-E57F-11D3-B5CC-0050E4603277 "_s;
    QTest::newRow("in braces") << u"{BDB091F4-E57F-11D3-B5CC-0050E4603277}"_s;
}

void PlugInTest::offersNoPanelToOtherDialogs()
{
    QFETCH(QString, type);
    const auto host = makeHost();
    const auto panels = plugIn()->PDEPanelsForType(type, host);
    QVERIFY(panels);
    QCOMPARE(panels->size(), std::size_t(0));
    QCOMPARE(host.use_count(), 1L);
    QVERIFY(plugIn()->PDEPanelsForType(type, nullptr));
}

void PlugInTest::panelThatCannotBeBuiltGivesNoList()
{
    QVERIFY(!plugIn()->PDEPanelsForType(kPrinterModuleDialogType, nullptr));
    QVERIFY(plugIn()->PDEPanelsForType(u"another"_s, nullptr));
}

void PlugInTest::bundleThatIsGoneGivesNoList()
{
    const auto principal = factory().makePlugIn(mBundle->principalClass());
    auto bundle = testBundle();
    QVERIFY(principal->initWithBundle(bundle));
    bundle.reset();
    QVERIFY(!principal->PDEPanelsForType(kPrinterModuleDialogType, makeHost()));
    QVERIFY(plugIn()->PDEPanelsForType(kPrinterModuleDialogType, makeHost()));
}

void PlugInTest::buildsNewPanelsForEachDialog()
{
    const auto host = makeHost();
    const auto principal = plugIn();
    const auto first = principal->PDEPanelsForType(kPrinterModuleDialogType, host);
    const auto second = principal->PDEPanelsForType(kPrinterModuleDialogType, host);
    QVERIFY(first && second);
    QVERIFY(first != second);
    QCOMPARE(first->size(), std::size_t(1));
    QCOMPARE(second->size(), std::size_t(1));
    QVERIFY(first->front() != second->front());
}

void PlugInTest::keepsTheLastPanelsUntilItGoes()
{
    const auto host = makeHost();
    auto principal = plugIn();
    const std::weak_ptr<PDEPanelList> kept =
        principal->PDEPanelsForType(kPrinterModuleDialogType, host);
    QVERIFY(!kept.expired());
    const QPointer<QWidget> view = kept.lock()->front()->panelView();
    QVERIFY(view);
    principal.reset();
    QVERIFY(kept.expired());
    QVERIFY(!view);
    QCOMPARE(host.use_count(), 1L);
}

void PlugInTest::dialogMayKeepThePanelsLonger()
{
    const auto host = makeHost();
    auto principal = plugIn();
    auto panels = principal->PDEPanelsForType(kPrinterModuleDialogType, host);
    QVERIFY(panels && panels->size() == 1);
    const QPointer<QWidget> view = panels->front()->panelView();
    principal.reset();
    QVERIFY(view);
    QCOMPARE(panels->front()->panelName(), u"Cut Options"_s);
    panels.reset();
    QVERIFY(!view);
    QCOMPARE(host.use_count(), 1L);
}

void PlugInTest::dialogMayUnloadTheLibrary()
{
    const BundleCopy copy;
    const auto bundle = copy.open();
    QVERIFY(bundle);
    QPluginLoader loader(bundle->libraryPath());
    for (int i = 0; i < 2; ++i) {
        const QPointer<QObject> loaded = loader.instance();
        QVERIFY2(loaded, qPrintable(loader.errorString()));
        auto principal =
            qobject_cast<PDEPlugInFactory *>(loaded)->makePlugIn(bundle->principalClass());
        QVERIFY(principal->initWithBundle(bundle));
        QVERIFY(principal->PDEPanelsForType(kPrinterModuleDialogType, makeHost()));
        principal.reset();
        QVERIFY(loader.unload());
        QVERIFY(!loaded);
    }
    QVERIFY(plugIn());
}

void PlugInTest::runsOnSystemsFrom105_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("later");
    QTest::addColumn<QByteArray>("answers");

    const QByteArray runs = "yes yes loads\n";
    const QByteArray declines = "no no declines\n";
    const QString newer = u"13.0.0"_s;
    const QString older = u"10.4.0"_s;
    QTest::newRow("10.4.0") << u"10.4.0"_s << newer << declines;
    QTest::newRow("10.4.11") << u"10.4.11"_s << newer << declines;
    QTest::newRow("10.5.0") << u"10.5.0"_s << older << runs;
    QTest::newRow("10.10.0") << u"10.10.0"_s << older << runs;
    QTest::newRow("11.0.0") << u"11.0.0"_s << older << runs;
    QTest::newRow("11.4.9") << u"11.4.9"_s << u"?.?.?"_s << runs;
    QTest::newRow("13.0.0") << u"13.0.0"_s << older << runs;
    QTest::newRow("9.9.0") << u"9.9.0"_s << newer << declines;
    QTest::newRow("9.11.9") << u"9.11.9"_s << newer << declines;
    // What cannot be had counts as 10.4.0.
    QTest::newRow("query that fails") << u"?.?.?"_s << newer << declines;
    QTest::newRow("no major number, 5") << u"?.5.0"_s << older << runs;
    QTest::newRow("no major number, 4") << u"?.4.0"_s << newer << declines;
    QTest::newRow("no minor number, 10") << u"10.?.0"_s << newer << declines;
    QTest::newRow("no minor number, 11") << u"11.?.0"_s << older << runs;
    QTest::newRow("no bug-fix number") << u"10.5.?"_s << older << runs;
}

void PlugInTest::runsOnSystemsFrom105()
{
    QFETCH(QString, version);
    QFETCH(QString, later);
    QProcess probe;
    probe.start(QStringLiteral(KV_LEOPARD_PROBE), {version, later});
    QVERIFY2(probe.waitForFinished(), qPrintable(probe.errorString()));
    QCOMPARE(probe.exitStatus(), QProcess::NormalExit);
    QCOMPARE(probe.exitCode(), 0);
    QTEST(probe.readAllStandardOutput(), "answers");
}

KV_TEST(PlugInTest)
#include "tst_plugin.moc"
