// SPDX-License-Identifier: Apache-2.0
#include "BundleFolder.h"
#include "CutterPrinter.h"
#include "PrintingTest.h"
#include "ScriptTalk.h"
#include "ppd/TapeInfo.h"
#include "printcore/PrintSettings.h"

#include <QTest>

/// What "open" opens, member by member.
class tst_scriptopen : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
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
    void localeOfThisPanelAlone();
    void bundle();
    void bundleIsReadOnce();
    void bundleThatCannotBeUsed_data();
    void bundleThatCannotBeUsed();
    void bundlesWithoutAPanel();
    void folderOfSeveralBundles();
    void brokenBundleBesidesAGoodOne();
    void panelWithoutAView();
    void printer();
    void printerWithSavedOptions();
    void printerWithOtherWords_data();
    void printerWithOtherWords();
    void printerThatCannotBeOpened();
    void noScheduler();
    void ppdThatCannotBeOpened();
    void neitherOrBoth();
    void defaultPrinting();

private: // NOLINT(readability-redundant-access-specifiers)
    /// Writes print settings with a private ticket; the file's path.
    QString settingsWith(const QVariantMap &ticket) const;
};

QString tst_scriptopen::settingsWith(const QVariantMap &ticket) const
{
    const QByteArray data = PropertyList::write(ticket);
    const PrintSettings settings({{kPrivateTicketKey, data}});
    return mSite.file(u"settings.plist"_s, settings.dataRepresentation(nullptr));
}

void tst_scriptopen::kindsOfPrinters_data()
{
    const TestTable<QString, bool> table("printer", "isRV");
    for (const QString &printer : PrintingSite::printers()) {
        table.add(qPrintable(printer), printer, (printer == u"label"));
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
    const QJsonObject expected{{u"panels"_s, 1},
                               {u"name"_s, u"Cut Options"_s},
                               {u"kind"_s, u"jp.co.vendor.printer.cups.pde.OptionPDEKind"_s},
                               {u"isRV"_s, isRV},
                               {u"usb"_s, false}};
    QCOMPARE(membersOf(answer), expected);
}

void tst_scriptopen::defaultPaper()
{
    ShownPanel talk(u"tape"_s);
    QCOMPARE(talk.state("flags.mTapeState").toInt(), 0);
    QCOMPARE(talk.state("popup.disabled").toArray().size(), 0);
}

void tst_scriptopen::paper_data()
{
    const TestTable<QJsonObject, int, bool> table("members", "tapeState", "isFlag");
    const QString paper = u"paper"_s;
    const QString height = u"paperHeight"_s;
    table.add("flag", {{paper, u"FL21x45"_s}}, 1, true);
    table.add("flag of another height", {{paper, u"FL21x45"_s}, {height, 12.5}}, 1, true);
    table.add("flag of no height", {{paper, u"FL21x45"_s}, {height, 0}}, 0, true);
    table.add("custom size, whose height is not known", {{paper, u"Custom"_s}}, 0, false);
    table.add("custom size", {{paper, u"Custom"_s}, {height, 200}}, 2, false);
    table.add("no name", {{paper, QJsonValue()}}, 0, false);
    table.add("no name, but a height", {{paper, QJsonValue()}, {height, 200}}, 2, false);
    table.add("empty name with a height", {{paper, u""_s}, {height, 200}}, 2, false);
    table.add("unknown flag", {{paper, u"FL99x99"_s}}, 0, true);
    table.add("unknown flag with a height", {{paper, u"FL99x99"_s}, {height, 200}}, 0, true);
    table.add("default paper of another height", {{height, 100}}, 0, false);
}

void tst_scriptopen::paper()
{
    QFETCH(const QJsonObject, members);
    QFETCH(const bool, isFlag);
    ScriptTalk talk;
    QVERIFY(isOK(talk.show(u"tape"_s, members)));
    QTEST(talk.state("flags.mTapeState").toInt(), "tapeState");
    QCOMPARE(talk.state("controls.mHalfCutChkBx.enabled"), QJsonValue(!isFlag));
    QCOMPARE(talk.state("popup.disabled").toArray().isEmpty(), !isFlag);
}

void tst_scriptopen::settings()
{
    const QString file = settingsWith({{u"MqPaperName2"_s, u"HS12x100"_s}});
    ScriptTalk talk;
    // A paper with a name of its own needs none from the ticket.
    talk.show(u"follow"_s, {{u"settings"_s, file}});
    talk.click("mCutEveryChkBx");
    QCOMPARE(eventsOf(talk.click("mCutEveryChkBx")).size(), 1);
}

void tst_scriptopen::settingsNameThePaper()
{
    const QString file = settingsWith({{u"MqPaperName2"_s, u"HS12x100"_s}});
    const QJsonObject unnamed{{u"paper"_s, QJsonValue()}};
    const QJsonObject named{{u"paper"_s, QJsonValue()}, {u"settings"_s, file}};
    const auto alerts = [](const QJsonObject &members) {
        ShownPanel talk(u"follow"_s, members);
        talk.click("mCutEveryChkBx");
        return eventsOf(talk.click("mCutEveryChkBx")).filter(u"alert "_s).size();
    };
    QCOMPARE(alerts(unnamed), 0);
    QCOMPARE(alerts(named), 1);
    // An empty name is a name.
    QCOMPARE(alerts({{u"paper"_s, u""_s}, {u"settings"_s, file}}), 0);
}

void tst_scriptopen::settingsThatCannotBeUsed_data()
{
    const TestTable<QString, QString> table("file", "fault");
    const QString missing = mSite.path(u"missing.plist"_s);
    table.add("missing", missing, missing + u": is missing"_s);
    table.add("a device", u"/dev/null"_s, u"/dev/null: is a device"_s);
    const QString text = mSite.file(u"text.plist"_s, "no property list");
    table.add("a text", text, text + u": "_s);
    const QString empty = mSite.file(u"empty.plist"_s, "");
    table.add("empty", empty, empty + u": "_s);
    const QString array = mSite.file(u"array.plist"_s, PropertyList::write(QVariantList{1}));
    table.add("an array", array, array + u": the top level is no dictionary"_s);
    table.add("no name", QString(), u": "_s);
}

void tst_scriptopen::settingsThatCannotBeUsed()
{
    QFETCH(const QString, file);
    QFETCH(const QString, fault);
    ScriptTalk talk;
    const QString error = errorOf(talk.open(u"tape"_s, {{u"settings"_s, QJsonValue(file)}}));
    QVERIFY2(error.startsWith(fault) && error.size() > fault.size() - 1, qPrintable(error));
    QVERIFY(isOK(talk.open(u"tape"_s)));
}

void tst_scriptopen::deviceURI_data()
{
    const TestTable<QString, bool> table("uri", "usb");
    QTest::newRow("USB") << u"usb://Korvane/Tape?serial=1"_s << true;
    QTest::newRow("the maker's USB") << u"KVMQUSB://Korvane/Tape"_s << true;
    QTest::newRow("network") << u"ipp://printer.local/ipp/print"_s << false;
    QTest::newRow("a name that begins like it") << u"usbip://Korvane/Tape"_s << false;
    table.add("no URI", u"printer"_s, false);
    table.add("empty", u""_s, false);
}

void tst_scriptopen::deviceURI()
{
    QFETCH(const QString, uri);
    QFETCH(const bool, usb);
    ScriptTalk talk;
    const QJsonObject answer = talk.open(u"tape"_s, {{u"deviceURI"_s, uri}});
    QCOMPARE(answer.value(u"usb"), QJsonValue(usb));
    QCOMPARE(talk.state("flags.usb_dec").toInt(), int(usb));
    talk.ask("close");
    const QJsonObject queue = talk.ask("open", {{u"printer"_s, u"tape"_s}, {u"deviceURI"_s, uri}});
    QCOMPARE(queue.value(u"usb"), QJsonValue(usb));
}

void tst_scriptopen::defaultsAreNotMarked()
{
    const QByteArray none(R"({"KvAutoTapeCut":null,"KvChainPrint":null,"KvCutMark":null,)"
                          R"("KvMirror":null})");
    ScriptTalk talk;
    talk.open(u"mark"_s, {{u"markDefaults"_s, false}});
    QCOMPARE(compact(talk.state("marks")), none);
    talk.ask("close");
    talk.open(u"mark"_s, {{u"markDefaults"_s, true}});
    QCOMPARE(compact(talk.state("marks")), QByteArray(none).replace("null", R"("OFF")"));
    talk.ask("close");
    // The panel itself settles on the defaults as soon as it is seen.
    talk.show(u"mark"_s, {{u"markDefaults"_s, false}});
    QCOMPARE(compact(talk.state("marks")), QByteArray(none).replace("null", R"("OFF")"));
}

void tst_scriptopen::locale_data()
{
    const TestTable<QString, QString> table("locale", "name");
    table.add("the user's", QString(), u"Cut Options"_s);
    table.add("English", u"en"_s, u"Cut Options"_s);
    table.add("English of a country", u"en_GB"_s, u"Cut Options"_s);
    table.add("none", u"none"_s, u"OP_PANEL_NAME"_s);
    table.add("German of a country", u"de_AT"_s, u"Schnittoptionen"_s);
    // English where there is no table for the language.
    table.add("Norwegian", u"nb"_s, u"Cut Options"_s);
    table.add("no language", u"xx"_s, u"Cut Options"_s);
    table.add("empty", u""_s, u"Cut Options"_s);
}

void tst_scriptopen::locale()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, name);
    QJsonObject members{{u"ppd"_s, PrintingSite::ppdPath(u"tape"_s)}};
    if (!locale.isNull()) {
        members.insert(u"locale"_s, locale);
    }
    ScriptTalk talk;
    QCOMPARE(talk.ask("open", members).value(u"name").toString(), name);
}

void tst_scriptopen::localeOfThisPanelAlone()
{
    ScriptTalk talk;
    const auto nameIn = [&talk](const QString &locale) {
        return talk.open(u"tape"_s, {{u"locale"_s, locale}}).value(u"name").toString();
    };
    QCOMPARE(nameIn(u"de"_s), u"Schnittoptionen"_s);
    talk.ask("close");
    QCOMPARE(nameIn(u"none"_s), u"OP_PANEL_NAME"_s);
    talk.ask("close");
    const QJsonObject answer = talk.ask("open", {{u"ppd"_s, PrintingSite::ppdPath(u"tape"_s)}});
    QCOMPARE(answer.value(u"name").toString(), u"Cut Options"_s);
}

void tst_scriptopen::bundle()
{
    const BundleFolder bundles;
    QVERIFY(bundles.addOdd(u"Odd.pde"_s, u"Friendly"_s));
    ScriptTalk talk;
    const QJsonObject answer =
        talk.open(u"tape"_s, {{u"bundle"_s, QString(bundles.path() + u"/Odd.pde"_s)}});
    QVERIFY(isOK(answer));
    const QJsonObject expected{{u"panels"_s, 1},
                               {u"name"_s, u"Friendly"_s},
                               {u"kind"_s, u"com.korvane.test.odd"_s},
                               {u"isRV"_s, QJsonValue()},
                               {u"usb"_s, QJsonValue()}};
    QCOMPARE(membersOf(answer), expected);
    QCOMPARE(compact(membersOf(talk.ask("summary"))),
             QByteArray(R"({"lines":{"Kind":"Friendly"},"order":["Kind"]})"));
    // The panel tells nothing of itself, but it has a view.
    QVERIFY(!errorOf(talk.ask("state")).isEmpty());
    const QJsonObject view = membersOf(talk.ask("view"));
    QVERIFY(view.value(u"width").toInt() > 0 && view.value(u"height").toInt() > 0);
    QCOMPARE(talk.click("mHalfCutChkBx").value(u"delivered"), QJsonValue(false));
    talk.ask("close");
    QCOMPARE(talk.open(u"tape"_s).value(u"name").toString(), u"Cut Options"_s);
}

void tst_scriptopen::bundleIsReadOnce()
{
    const BundleFolder bundles;
    QVERIFY(bundles.add());
    ScriptTalk talk(bundles.path());
    QVERIFY(isOK(talk.open(u"tape"_s)));
    talk.ask("close");
    QVERIFY(bundles.remove(u"Contents/Info.json"_s));
    QVERIFY(isOK(talk.open(u"tape"_s)));
    talk.ask("close");
    // Another locale has to be read from its files, and a failure must not stand for the bundle.
    for (int i = 0; i < 2; ++i) {
        const QString error = errorOf(talk.open(u"tape"_s, {{u"locale"_s, u"de"_s}}));
        QVERIFY2(error.contains(u"Info.json"), qPrintable(error));
    }
}

void tst_scriptopen::bundleThatCannotBeUsed_data()
{
    const TestTable<QString, QString> table("spoilt", "fault");
    table.add("no description", u"Contents/Info.json"_s, u"Info.json: "_s);
    table.add("no library", u"Contents/Linux/libKVMQRVOptions-qt6.so"_s, u"is missing"_s);
    table.add("no bundle", QString(), u"Nowhere.pde is missing"_s);
}

void tst_scriptopen::bundleThatCannotBeUsed()
{
    QFETCH(const QString, spoilt);
    QFETCH(const QString, fault);
    const BundleFolder bundles;
    QVERIFY(bundles.add());
    QVERIFY(spoilt.isNull() || bundles.remove(spoilt));
    const QString path = bundles.path() + (spoilt.isNull() ? u"/Nowhere.pde"_s : u"/Spoilt.pde"_s);
    ScriptTalk talk;
    const QString error = errorOf(talk.open(u"tape"_s, {{u"bundle"_s, path}}));
    QVERIFY2(error.contains(fault), qPrintable(error));
    QVERIFY(!errorOf(talk.ask("view")).isEmpty());
    QVERIFY(isOK(talk.open(u"tape"_s)));
}

void tst_scriptopen::bundlesWithoutAPanel()
{
    const BundleFolder panelless;
    QVERIFY(panelless.addOdd(u"Odd.pde"_s, u"Panelless"_s));
    ScriptTalk talk(panelless.path());
    const QJsonObject answer = talk.open(u"tape"_s);
    QVERIFY(isOK(answer));
    QCOMPARE(answer.value(u"panels").toInt(-1), 0);
    QCOMPARE(answer.value(u"name"), QJsonValue());
    // There is nothing to talk with.
    QVERIFY(!errorOf(talk.ask("view")).isEmpty());

    const BundleFolder empty;
    ScriptTalk lonely(empty.path());
    QVERIFY(errorOf(lonely.open(u"tape"_s)).contains(u"there is no panel bundle"));
}

void tst_scriptopen::folderOfSeveralBundles()
{
    const BundleFolder bundles;
    QVERIFY(bundles.addOdd(u"B.pde"_s, u"Second"_s));
    QVERIFY(bundles.addOdd(u"A.pde"_s, u"First"_s));
    ScriptTalk talk(bundles.path());
    const QJsonObject answer = talk.open(u"tape"_s);
    QCOMPARE(answer.value(u"panels").toInt(), 2);
    QCOMPARE(answer.value(u"name").toString(), u"First"_s);
    QCOMPARE(compact(talk.ask("keys").value(u"keys")), QByteArray(R"(["KvMirror"])"));
}

void tst_scriptopen::brokenBundleBesidesAGoodOne()
{
    const BundleFolder bundles;
    QVERIFY(bundles.add());
    QVERIFY(bundles.remove(u"Contents/Info.json"_s));
    QVERIFY(bundles.add(u"Good.pde"_s));
    ScriptTalk talk(bundles.path());
    const QJsonObject answer = talk.open(u"tape"_s);
    QVERIFY(isOK(answer));
    QCOMPARE(answer.value(u"panels").toInt(), 1);
}

void tst_scriptopen::panelWithoutAView()
{
    const BundleFolder bundles;
    QVERIFY(bundles.add());
    QVERIFY(bundles.remove(u"Contents/Resources/OptionPDE.ui"_s));
    ScriptTalk talk(bundles.path());
    QVERIFY(isOK(talk.open(u"tape"_s)));
    const QByteArray before = compact(talk.state());
    QCOMPARE(errorOf(talk.ask("view")), u"the panel could not make its view"_s);
    QVERIFY(!errorOf(talk.click("mHalfCutChkBx")).isEmpty());
    QCOMPARE(compact(talk.state()), before);
    QVERIFY(isOK(talk.ask("close")));
}

void tst_scriptopen::printer()
{
    ScriptTalk talk;
    const QJsonObject answer = talk.ask("open", {{u"printer"_s, u"label"_s}});
    QVERIFY(isOK(answer));
    QCOMPARE(answer.value(u"isRV"), QJsonValue(true));
    QCOMPARE(answer.value(u"usb"), QJsonValue(false));
    QCOMPARE(compact(talk.state("marks")),
             QByteArray(R"({"KvAutoTapeCut":"ON","KvCutAtEnd":"OFF","KvCutLabel":"1",)"
                        R"("KvMirror":"OFF"})"));
}

void tst_scriptopen::printerWithSavedOptions()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=ON PageSize=FL21x45\n"));
    const QString tape = u"tape"_s;
    ScriptTalk talk;
    talk.ask("open", {{u"printer"_s, tape}});
    QCOMPARE(talk.state("marks.KvHalfCut"), QJsonValue(u"ON"_s));
    QCOMPARE(talk.state("marks.KvAutoTapeCut"), QJsonValue(u"ON"_s));
    talk.ask("view");
    QCOMPARE(talk.state("popup.disabled").toArray().size(), 7);
    talk.ask("close");
    // The paper of the request replaces the saved one.
    talk.ask("open", {{u"printer"_s, tape}, {u"paper"_s, u"T24x100"_s}});
    talk.ask("view");
    QCOMPARE(talk.state("popup.disabled").toArray().size(), 0);
    talk.ask("close");
    talk.ask("open", {{u"printer"_s, tape}, {u"markDefaults"_s, false}});
    QCOMPARE(talk.state("marks.KvHalfCut"), QJsonValue(u"ON"_s));
    QCOMPARE(talk.state("marks.KvAutoTapeCut"), QJsonValue());
}

void tst_scriptopen::printerWithOtherWords_data()
{
    const TestTable<QByteArray, QString, QString, QJsonObject> table("saved", "key", "choice",
                                                                     "options");
    const auto cut = [](const QString &media) {
        return QJsonObject{{u"CutMedia"_s, media}, {u"MirrorPrint"_s, u"False"_s}};
    };
    table.add("panel's word", "", u"KvCutAtEnd"_s, u"ON"_s, cut(u"EndOfJob"_s));
    table.add("printer's word", "", u"CutMedia"_s, u"EndOfDoc"_s, cut(u"EndOfDoc"_s));
    table.add("printer's word without a row", "", u"CutMedia"_s, u"Twice"_s, cut(u"Twice"_s));
    table.add("saved", "CutMedia=EndOfPage", u"KvMirror"_s, u"OFF"_s, cut(u"EndOfPage"_s));
    table.add("saved, then the panel's word", "CutMedia=EndOfPage", u"KvAutoTapeCut"_s, u"OFF"_s,
              cut(u"EndOfJob"_s));
}

void tst_scriptopen::printerWithOtherWords()
{
    QFETCH(const QByteArray, saved);
    QFETCH(const QString, key);
    QFETCH(const QString, choice);
    QVERIFY(addPrinter(u"cutter"_s, mSite.file(u"cutter.ppd"_s, CutterPrinter::ppd("None"))));
    QVERIFY(mSite.saveUserOptions("Dest cutter " + saved + '\n'));
    ScriptTalk talk;
    QVERIFY(isOK(talk.ask("open", {{u"printer"_s, u"cutter"_s}})));
    QVERIFY(isOK(talk.ask("choose", {{u"key"_s, key}, {u"choice"_s, choice}})));
    QTEST(talk.ask("options").value(u"options"_s).toObject(), "options");
}

void tst_scriptopen::printerThatCannotBeOpened()
{
    QVERIFY(addPrinter(u"raw"_s, {}));
    ScriptTalk talk;
    QCOMPARE(errorOf(talk.ask("open", {{u"printer"_s, u"raw"_s}})),
             u"the printer raw has no PPD"_s);
    const QString unknown = errorOf(talk.ask("open", {{u"printer"_s, u"nowhere"_s}}));
    QVERIFY2(unknown.startsWith(u"there is no printer nowhere; the printers are: all, "),
             qPrintable(unknown));
    QVERIFY(!errorOf(talk.ask("open", {{u"printer"_s, u""_s}})).isEmpty());
    QVERIFY(isOK(talk.ask("open", {{u"printer"_s, u"tape"_s}})));
}

void tst_scriptopen::noScheduler()
{
    ScriptTalk talk;
    cupsSetServer("127.0.0.1:9");
    const QString error = errorOf(talk.ask("open", {{u"printer"_s, u"tape"_s}}));
    const bool opensPPD = isOK(talk.open(u"tape"_s));
    cupsSetServer(mSite.scheduler().address().constData());
    QVERIFY2(error.startsWith(u"no print scheduler answers at "), qPrintable(error));
    QVERIFY(opensPPD);
}

void tst_scriptopen::ppdThatCannotBeOpened()
{
    ScriptTalk talk;
    const QString missing = mSite.path(u"missing.ppd"_s);
    QCOMPARE(errorOf(talk.ask("open", {{u"ppd"_s, missing}})),
             missing + u": No such file or directory"_s);
    const QString broken = mSite.file(u"broken.ppd"_s, "no PPD\n");
    QCOMPARE(errorOf(talk.ask("open", {{u"ppd"_s, broken}})),
             broken + u": line 1: Missing asterisk in column 1"_s);
    QVERIFY(!errorOf(talk.ask("open", {{u"ppd"_s, u""_s}})).isEmpty());
    QVERIFY(!errorOf(talk.ask("view")).isEmpty());
    QVERIFY(isOK(talk.open(u"tape"_s)));
}

void tst_scriptopen::neitherOrBoth()
{
    ScriptTalk talk;
    const QString fault = u"\"open\" needs either \"ppd\" or \"printer\""_s;
    QCOMPARE(errorOf(talk.ask("open")), fault);
    QCOMPARE(errorOf(talk.open(u"tape"_s, {{u"printer"_s, u"tape"_s}})), fault);
}

void tst_scriptopen::defaultPrinting()
{
    const QString bundles = QStringLiteral(KV_BUNDLE_FOLDER);
    ScriptTalk onPPD({bundles, PrintingSite::ppdPath(u"label"_s), {}});
    QCOMPARE(onPPD.ask("open").value(u"isRV"), QJsonValue(true));
    onPPD.ask("close");
    QCOMPARE(onPPD.open(u"tape"_s).value(u"isRV"), QJsonValue(false));

    QVERIFY(mSite.saveUserOptions("Dest tape KvChainPrint=ON\n"));
    ScriptTalk onQueue({bundles, {}, u"tape"_s});
    QVERIFY(isOK(onQueue.ask("open")));
    QCOMPARE(onQueue.state("marks.KvChainPrint"), QJsonValue(u"ON"_s));
    onQueue.ask("close");
    QCOMPARE(onQueue.open(u"label"_s).value(u"isRV"), QJsonValue(true));
}

KV_TEST(tst_scriptopen)
#include "tst_scriptopen.moc"
