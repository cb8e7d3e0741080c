#include "BundleFolder.h"
#include "PrintingSite.h"
#include "ScriptTalk.h"
#include "ppd/TapeInfo.h"
#include "printcore/PrintSettings.h"

#include <QTest>

/// What "open" opens, member by member.
class tst_scriptopen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void kindsOfPrinters_data();
    void kindsOfPrinters();
    void defaultPaper();
    void paper_data();
    void paper();
    void settings();
    void settingsNameThePaper();
    void settingsThatCannotBeUsed_data();
    void settingsThatCannotBeUsed();
    void deviceURI_data();
    void deviceURI();
    void defaultsAreNotMarked();
    void locale_data();
    void locale();
    void bundle();
    void bundleThatCannotBeUsed_data();
    void bundleThatCannotBeUsed();
    void bundlesWithoutAPanel();
    void folderOfSeveralBundles();
    void brokenBundleBesidesAGoodOne();
    void panelWithoutAView();
    void printer();
    void printerWithSavedOptions();
    void printerThatCannotBeOpened();
    void noScheduler();
    void ppdThatCannotBeOpened();
    void neitherOrBoth();
    void defaultPrinting();

private: // NOLINT(readability-redundant-access-specifiers)
    /// Writes print settings with a private ticket; the file's path.
    QString settingsWith(const QVariantMap &ticket) const;

    PrintingSite mSite;
};

namespace {
} // namespace

void tst_scriptopen::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
}

void tst_scriptopen::init()
{
    QVERIFY(mSite.saveUserOptions(""));
}

QString tst_scriptopen::settingsWith(const QVariantMap &ticket) const
{
    const QByteArray data = PropertyList::write(ticket);
    const PrintSettings settings({{kPrivateTicketKey, data}});
    return mSite.file(u"settings.plist"_qs, settings.dataRepresentation(nullptr));
}

void tst_scriptopen::kindsOfPrinters_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<bool>("isRV");
    for (const QString &printer : PrintingSite::printers()) {
        QTest::newRow(qPrintable(printer)) << printer << (printer == u"label");
    }
}

void tst_scriptopen::kindsOfPrinters()
{
    QFETCH(const QString, printer);
    QFETCH(const bool, isRV);
    ScriptTalk talk;
    const QJsonObject answer = talk.open(printer);
    QVERIFY(isOK(answer));
    QCOMPARE(eventsOf(answer), QStringList());
    const QJsonObject expected{{u"panels"_qs, 1},
                               {u"name"_qs, u"Cut Options"_qs},
                               {u"kind"_qs, u"jp.co.vendor.printer.cups.pde.OptionPDEKind"_qs},
                               {u"isRV"_qs, isRV},
                               {u"usb"_qs, false}};
    QCOMPARE(membersOf(answer), expected);
}

void tst_scriptopen::defaultPaper()
{
    ScriptTalk talk;
    talk.show(u"tape"_qs);
    QCOMPARE(talk.state("flags.mTapeState").toInt(), 0);
    QCOMPARE(talk.state("popup.disabled").toArray().size(), 0);
}

void tst_scriptopen::paper_data()
{
    QTest::addColumn<QJsonObject>("members");
    QTest::addColumn<int>("tapeState");
    QTest::addColumn<bool>("isFlag");
    const QString paper = u"paper"_qs;
    const QString height = u"paperHeight"_qs;
    QTest::newRow("flag") << QJsonObject{{paper, u"FL21x45"_qs}} << 1 << true;
    QTest::newRow("flag of another height")
        << QJsonObject{{paper, u"FL21x45"_qs}, {height, 12.5}} << 1 << true;
    QTest::newRow("flag of no height")
        << QJsonObject{{paper, u"FL21x45"_qs}, {height, 0}} << 0 << true;
    QTest::newRow("custom size, whose height is not known")
        << QJsonObject{{paper, u"Custom"_qs}} << 0 << false;
    QTest::newRow("custom size") << QJsonObject{{paper, u"Custom"_qs}, {height, 200}} << 2 << false;
    QTest::newRow("no name") << QJsonObject{{paper, QJsonValue()}} << 0 << false;
    QTest::newRow("no name, but a height")
        << QJsonObject{{paper, QJsonValue()}, {height, 200}} << 2 << false;
    QTest::newRow("empty name with a height")
        << QJsonObject{{paper, u""_qs}, {height, 200}} << 2 << false;
    QTest::newRow("unknown flag") << QJsonObject{{paper, u"FL99x99"_qs}} << 0 << true;
    QTest::newRow("unknown flag with a height")
        << QJsonObject{{paper, u"FL99x99"_qs}, {height, 200}} << 0 << true;
    QTest::newRow("default paper of another height") << QJsonObject{{height, 100}} << 0 << false;
}

void tst_scriptopen::paper()
{
    QFETCH(const QJsonObject, members);
    QFETCH(const int, tapeState);
    QFETCH(const bool, isFlag);
    ScriptTalk talk;
    QVERIFY(isOK(talk.show(u"tape"_qs, members)));
    QCOMPARE(talk.state("flags.mTapeState").toInt(), tapeState);
    QCOMPARE(talk.state("controls.mHalfCutChkBx.enabled"), QJsonValue(!isFlag));
    QCOMPARE(talk.state("popup.disabled").toArray().isEmpty(), !isFlag);
}

void tst_scriptopen::settings()
{
    const QString file = settingsWith({{u"MqPaperName2"_qs, u"HS12x100"_qs}});
    ScriptTalk talk;
    // A paper with a name of its own needs none from the ticket.
    talk.show(u"follow"_qs, {{u"settings"_qs, file}});
    talk.click("mCutEveryChkBx");
    QCOMPARE(eventsOf(talk.click("mCutEveryChkBx")).size(), 1);
}

void tst_scriptopen::settingsNameThePaper()
{
    const QString file = settingsWith({{u"MqPaperName2"_qs, u"HS12x100"_qs}});
    const QJsonObject unnamed{{u"paper"_qs, QJsonValue()}};
    const QJsonObject named{{u"paper"_qs, QJsonValue()}, {u"settings"_qs, file}};
    const auto alerts = [](const QJsonObject &members) {
        ScriptTalk talk;
        talk.show(u"follow"_qs, members);
        talk.click("mCutEveryChkBx");
        return eventsOf(talk.click("mCutEveryChkBx")).filter(u"alert "_qs).size();
    };
    QCOMPARE(alerts(unnamed), 0);
    QCOMPARE(alerts(named), 1);
    // An empty name is a name.
    QCOMPARE(alerts({{u"paper"_qs, u""_qs}, {u"settings"_qs, file}}), 0);
}

void tst_scriptopen::settingsThatCannotBeUsed_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("fault");
    const QString missing = mSite.path(u"missing.plist"_qs);
    QTest::newRow("missing") << missing << missing + u": No such file or directory"_qs;
    const QString text = mSite.file(u"text.plist"_qs, "no property list");
    QTest::newRow("a text") << text << text + u": "_qs;
    const QString empty = mSite.file(u"empty.plist"_qs, "");
    QTest::newRow("empty") << empty << empty + u": "_qs;
    const QString array = mSite.file(u"array.plist"_qs, PropertyList::write(QVariantList{1}));
    QTest::newRow("an array") << array << array + u": the top level is no dictionary"_qs;
    QTest::newRow("no name") << QString() << u": "_qs;
}

void tst_scriptopen::settingsThatCannotBeUsed()
{
    QFETCH(const QString, file);
    QFETCH(const QString, fault);
    ScriptTalk talk;
    const QString error = errorOf(talk.open(u"tape"_qs, {{u"settings"_qs, QJsonValue(file)}}));
    QVERIFY2(error.startsWith(fault) && error.size() > fault.size() - 1, qPrintable(error));
    QVERIFY(isOK(talk.open(u"tape"_qs)));
}

void tst_scriptopen::deviceURI_data()
{
    QTest::addColumn<QString>("uri");
    QTest::addColumn<bool>("usb");
    QTest::newRow("USB") << u"usb://Korvane/Tape?serial=1"_qs << true;
    QTest::newRow("the maker's USB") << u"KVMQUSB://Korvane/Tape"_qs << true;
    QTest::newRow("network") << u"ipp://printer.local/ipp/print"_qs << false;
    QTest::newRow("a name that begins like it") << u"usbip://Korvane/Tape"_qs << false;
    QTest::newRow("no URI") << u"printer"_qs << false;
    QTest::newRow("empty") << u""_qs << false;
}

void tst_scriptopen::deviceURI()
{
    QFETCH(const QString, uri);
    QFETCH(const bool, usb);
    ScriptTalk talk;
    const QJsonObject answer = talk.open(u"tape"_qs, {{u"deviceURI"_qs, uri}});
    QCOMPARE(answer.value(u"usb"), QJsonValue(usb));
    QCOMPARE(talk.state("flags.usb_dec").toInt(), int(usb));
    talk.ask("close");
    const QJsonObject queue =
        talk.ask("open", {{u"printer"_qs, u"tape"_qs}, {u"deviceURI"_qs, uri}});
    QCOMPARE(queue.value(u"usb"), QJsonValue(usb));
}

void tst_scriptopen::defaultsAreNotMarked()
{
    const QByteArray none(R"({"KvAutoTapeCut":null,"KvChainPrint":null,"KvCutMark":null,)"
                          R"("KvMirror":null})");
    ScriptTalk talk;
    talk.open(u"mark"_qs, {{u"markDefaults"_qs, false}});
    QCOMPARE(compact(talk.state("marks")), none);
    talk.ask("close");
    talk.open(u"mark"_qs, {{u"markDefaults"_qs, true}});
    QCOMPARE(compact(talk.state("marks")), QByteArray(none).replace("null", R"("OFF")"));
    talk.ask("close");
    // The panel itself settles on the defaults as soon as it is seen.
    talk.show(u"mark"_qs, {{u"markDefaults"_qs, false}});
    QCOMPARE(compact(talk.state("marks")), QByteArray(none).replace("null", R"("OFF")"));
}

void tst_scriptopen::locale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("name");
    QTest::newRow("the user's") << QString() << u"Cut Options"_qs;
    QTest::newRow("English") << u"en"_qs << u"Cut Options"_qs;
    QTest::newRow("English of a country") << u"en_GB"_qs << u"Cut Options"_qs;
    QTest::newRow("none") << u"none"_qs << u"OP_PANEL_NAME"_qs;
    QTest::newRow("German of a country") << u"de_AT"_qs << u"Schnittoptionen"_qs;
    // English where there is no table for the language.
    QTest::newRow("Norwegian") << u"nb"_qs << u"Cut Options"_qs;
    QTest::newRow("no language") << u"xx"_qs << u"Cut Options"_qs;
    QTest::newRow("empty") << u""_qs << u"Cut Options"_qs;
}

void tst_scriptopen::locale()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, name);
    QJsonObject members{{u"ppd"_qs, PrintingSite::ppdPath(u"tape"_qs)}};
    if (!locale.isNull()) {
        members.insert(u"locale"_qs, locale);
    }
    ScriptTalk talk;
    QCOMPARE(talk.ask("open", members).value(u"name").toString(), name);
}

void tst_scriptopen::bundle()
{
    const BundleFolder bundles;
    QVERIFY(bundles.addOdd(u"Odd.pde"_qs, u"Friendly"_qs));
    ScriptTalk talk;
    const QJsonObject answer =
        talk.open(u"tape"_qs, {{u"bundle"_qs, QString(bundles.path() + u"/Odd.pde"_qs)}});
    QVERIFY(isOK(answer));
    const QJsonObject expected{{u"panels"_qs, 1},
                               {u"name"_qs, u"Friendly"_qs},
                               {u"kind"_qs, u"com.korvane.test.odd"_qs},
                               {u"isRV"_qs, QJsonValue()},
                               {u"usb"_qs, QJsonValue()}};
    QCOMPARE(membersOf(answer), expected);
    QCOMPARE(compact(membersOf(talk.ask("summary"))),
             QByteArray(R"({"lines":{"Kind":"Friendly"},"order":["Kind"]})"));
    // The panel tells nothing of itself, but it has a view.
    QVERIFY(!errorOf(talk.ask("state")).isEmpty());
    const QJsonObject view = membersOf(talk.ask("view"));
    QVERIFY(view.value(u"width").toInt() > 0 && view.value(u"height").toInt() > 0);
    QCOMPARE(talk.click("mHalfCutChkBx").value(u"delivered"), QJsonValue(false));
    talk.ask("close");
    QCOMPARE(talk.open(u"tape"_qs).value(u"name").toString(), u"Cut Options"_qs);
}

void tst_scriptopen::bundleThatCannotBeUsed_data()
{
    QTest::addColumn<QString>("spoilt");
    QTest::addColumn<QString>("fault");
    QTest::newRow("no description") << u"Contents/Info.json"_qs << u"Info.json: "_qs;
    QTest::newRow("no library") << u"Contents/Linux/libKVMQRVOptions-qt6.so"_qs << u"is missing"_qs;
    QTest::newRow("no bundle") << QString() << u"Nowhere.pde is missing"_qs;
}

void tst_scriptopen::bundleThatCannotBeUsed()
{
    QFETCH(const QString, spoilt);
    QFETCH(const QString, fault);
    const BundleFolder bundles;
    QVERIFY(bundles.add());
    QVERIFY(spoilt.isNull() || bundles.remove(spoilt));
    const QString path =
        bundles.path() + (spoilt.isNull() ? u"/Nowhere.pde"_qs : u"/Spoilt.pde"_qs);
    ScriptTalk talk;
    const QString error = errorOf(talk.open(u"tape"_qs, {{u"bundle"_qs, path}}));
    QVERIFY2(error.contains(fault), qPrintable(error));
    QVERIFY(!errorOf(talk.ask("view")).isEmpty());
    QVERIFY(isOK(talk.open(u"tape"_qs)));
}

void tst_scriptopen::bundlesWithoutAPanel()
{
    const BundleFolder panelless;
    QVERIFY(panelless.addOdd(u"Odd.pde"_qs, u"Panelless"_qs));
    ScriptTalk talk(panelless.path());
    const QJsonObject answer = talk.open(u"tape"_qs);
    QVERIFY(isOK(answer));
    QCOMPARE(answer.value(u"panels").toInt(-1), 0);
    QCOMPARE(answer.value(u"name"), QJsonValue());
    // There is nothing to talk with.
    QVERIFY(!errorOf(talk.ask("view")).isEmpty());

    const BundleFolder empty;
    ScriptTalk lonely(empty.path());
    QVERIFY(errorOf(lonely.open(u"tape"_qs)).contains(u"there is no panel bundle"));
}

void tst_scriptopen::folderOfSeveralBundles()
{
    const BundleFolder bundles;
    QVERIFY(bundles.addOdd(u"B.pde"_qs, u"Second"_qs));
    QVERIFY(bundles.addOdd(u"A.pde"_qs, u"First"_qs));
    ScriptTalk talk(bundles.path());
    const QJsonObject answer = talk.open(u"tape"_qs);
    QCOMPARE(answer.value(u"panels").toInt(), 2);
    QCOMPARE(answer.value(u"name").toString(), u"First"_qs);
    QCOMPARE(compact(talk.ask("keys").value(u"keys")), QByteArray(R"(["KvMirror"])"));
}

void tst_scriptopen::brokenBundleBesidesAGoodOne()
{
    const BundleFolder bundles;
    QVERIFY(bundles.add());
    QVERIFY(bundles.remove(u"Contents/Info.json"_qs));
    QVERIFY(bundles.add(u"Good.pde"_qs));
    ScriptTalk talk(bundles.path());
    const QJsonObject answer = talk.open(u"tape"_qs);
    QVERIFY(isOK(answer));
    QCOMPARE(answer.value(u"panels").toInt(), 1);
}

void tst_scriptopen::panelWithoutAView()
{
    const BundleFolder bundles;
    QVERIFY(bundles.add());
    QVERIFY(bundles.remove(u"Contents/Resources/OptionPDE.ui"_qs));
    ScriptTalk talk(bundles.path());
    QVERIFY(isOK(talk.open(u"tape"_qs)));
    const QByteArray before = compact(talk.state());
    QCOMPARE(errorOf(talk.ask("view")), u"the panel could not make its view"_qs);
    QVERIFY(!errorOf(talk.click("mHalfCutChkBx")).isEmpty());
    QCOMPARE(compact(talk.state()), before);
    QVERIFY(isOK(talk.ask("close")));
}

void tst_scriptopen::printer()
{
    ScriptTalk talk;
    const QJsonObject answer = talk.ask("open", {{u"printer"_qs, u"label"_qs}});
    QVERIFY(isOK(answer));
    QCOMPARE(answer.value(u"isRV"), QJsonValue(true));
    QCOMPARE(answer.value(u"usb"), QJsonValue(false));
    QCOMPARE(compact(talk.state("marks")),
             QByteArray(R"({"KvCutAtEnd":"OFF","KvCutLabel":"1","KvMirror":"OFF"})"));
}

void tst_scriptopen::printerWithSavedOptions()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=ON PageSize=FL21x45\n"));
    const QString tape = u"tape"_qs;
    ScriptTalk talk;
    talk.ask("open", {{u"printer"_qs, tape}});
    QCOMPARE(talk.state("marks.KvHalfCut"), QJsonValue(u"ON"_qs));
    QCOMPARE(talk.state("marks.KvAutoTapeCut"), QJsonValue(u"ON"_qs));
    talk.ask("view");
    QCOMPARE(talk.state("popup.disabled").toArray().size(), 7);
    talk.ask("close");
    // The paper of the request replaces the saved one.
    talk.ask("open", {{u"printer"_qs, tape}, {u"paper"_qs, u"T24x100"_qs}});
    talk.ask("view");
    QCOMPARE(talk.state("popup.disabled").toArray().size(), 0);
    talk.ask("close");
    talk.ask("open", {{u"printer"_qs, tape}, {u"markDefaults"_qs, false}});
    QCOMPARE(talk.state("marks.KvHalfCut"), QJsonValue(u"ON"_qs));
    QCOMPARE(talk.state("marks.KvAutoTapeCut"), QJsonValue());
}

void tst_scriptopen::printerThatCannotBeOpened()
{
    QString error;
    QVERIFY2(mSite.scheduler().addPrinter(u"raw"_qs, {}, &error), qPrintable(error));
    ScriptTalk talk;
    QCOMPARE(errorOf(talk.ask("open", {{u"printer"_qs, u"raw"_qs}})),
             u"the printer raw has no PPD"_qs);
    const QString unknown = errorOf(talk.ask("open", {{u"printer"_qs, u"nowhere"_qs}}));
    QVERIFY2(unknown.startsWith(u"there is no printer nowhere; the printers are: all, follow, "),
             qPrintable(unknown));
    QVERIFY(!errorOf(talk.ask("open", {{u"printer"_qs, u""_qs}})).isEmpty());
    QVERIFY(isOK(talk.ask("open", {{u"printer"_qs, u"tape"_qs}})));
}

void tst_scriptopen::noScheduler()
{
    ScriptTalk talk;
    cupsSetServer("127.0.0.1:9");
    const QString error = errorOf(talk.ask("open", {{u"printer"_qs, u"tape"_qs}}));
    const bool opensPPD = isOK(talk.open(u"tape"_qs));
    cupsSetServer(mSite.scheduler().address().constData());
    QVERIFY2(error.startsWith(u"no print scheduler answers at "), qPrintable(error));
    QVERIFY(opensPPD);
}

void tst_scriptopen::ppdThatCannotBeOpened()
{
    ScriptTalk talk;
    const QString missing = mSite.path(u"missing.ppd"_qs);
    QCOMPARE(errorOf(talk.ask("open", {{u"ppd"_qs, missing}})),
             missing + u": No such file or directory"_qs);
    const QString broken = mSite.file(u"broken.ppd"_qs, "no PPD\n");
    QCOMPARE(errorOf(talk.ask("open", {{u"ppd"_qs, broken}})),
             broken + u": line 1: Missing asterisk in column 1"_qs);
    QVERIFY(!errorOf(talk.ask("open", {{u"ppd"_qs, u""_qs}})).isEmpty());
    QVERIFY(!errorOf(talk.ask("view")).isEmpty());
    QVERIFY(isOK(talk.open(u"tape"_qs)));
}

void tst_scriptopen::neitherOrBoth()
{
    ScriptTalk talk;
    const QString fault = u"\"open\" needs either \"ppd\" or \"printer\""_qs;
    QCOMPARE(errorOf(talk.ask("open")), fault);
    QCOMPARE(errorOf(talk.open(u"tape"_qs, {{u"printer"_qs, u"tape"_qs}})), fault);
}

void tst_scriptopen::defaultPrinting()
{
    const QString bundles = QStringLiteral(KV_BUNDLE_FOLDER);
    ScriptTalk onPPD({bundles, PrintingSite::ppdPath(u"label"_qs), {}});
    QCOMPARE(onPPD.ask("open").value(u"isRV"), QJsonValue(true));
    onPPD.ask("close");
    QCOMPARE(onPPD.open(u"tape"_qs).value(u"isRV"), QJsonValue(false));

    QVERIFY(mSite.saveUserOptions("Dest tape KvChainPrint=ON\n"));
    ScriptTalk onQueue({bundles, {}, u"tape"_qs});
    QVERIFY(isOK(onQueue.ask("open")));
    QCOMPARE(onQueue.state("marks.KvChainPrint"), QJsonValue(u"ON"_qs));
    onQueue.ask("close");
    QCOMPARE(onQueue.open(u"label"_qs).value(u"isRV"), QJsonValue(true));
}

QTEST_MAIN(tst_scriptopen)
#include "tst_scriptopen.moc"
