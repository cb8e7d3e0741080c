// SPDX-License-Identifier: Apache-2.0
#include "CutterPrinter.h"
#include "EveryGtk.h"
#include "GtkDialog.h"
#include "NonsenseService.h"
#include "PrintingSite.h"
#include "SessionBus.h"
#include "applications/DisplayServer.h"
#include "applications/Waiting.h"
#include "support/MemoryFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <optional>

namespace {
const QString panelTab = u"tab:Cut Options"_s;
const QString advancedTab = u"tab:Advanced"_s;
const QString failure = u"label:The printer's options cannot be shown. The job is printed with the "
                        "present settings."_s;

/// Puts a panel service into a folder whose panels never let a job be printed; its path, null when
/// that fails.
std::optional<QString> refusingService(const QDir &folder)
{
    const auto place = [&folder](const QString &file) {
        const QString path =
            folder.filePath(QDir(QStringLiteral(KV_BUILD_FOLDER)).relativeFilePath(file));
        folder.mkpath(QFileInfo(path).path());
        return path;
    };
    const QString libraries = QStringLiteral(KV_LIBRARIES);
    const QString service = QStringLiteral(KV_PANEL_SERVICE);
    const QString program = QStringLiteral(KV_PRINT_PROGRAM);
    QFile script(place(program));
    const QString text =
        u"#!/bin/sh\n%1 \"$@\" | sed -u 's/\"answer\":true/\"answer\":false/'\n"_s.arg(program);
    const bool isMade = QFile::link(libraries, place(libraries)) &&
                        QFile::copy(service, place(service)) && script.open(QIODevice::WriteOnly) &&
                        script.write(text.toUtf8()) > 0 &&
                        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    return isMade ? std::optional(place(service)) : std::nullopt;
}
} // namespace

/// The panel in the print dialogs of GTK 3 and GTK 4.
class tst_gtkdialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void jobGetsWhatIsChosen_data() { everyGtk(); }
    void jobGetsWhatIsChosen();
    void presetIsChosen_data() { everyGtk(); }
    void presetIsChosen();
    void startsFromTheDialogsOptions_data() { everyGtk(); }
    void startsFromTheDialogsOptions();
    void printerWithOtherWords_data() { everyGtk(); }
    void printerWithOtherWords();
    void paperAndPrinterAreFollowed_data() { everyGtk(); }
    void paperAndPrinterAreFollowed();
    void paperChangedBeforeThePanelIsThere_data() { everyGtk(); }
    void paperChangedBeforeThePanelIsThere();
    void stepperHeldDown_data() { everyGtk(); }
    void stepperHeldDown();
    void clickOnWhatBecomesGrey_data() { everyGtk(); }
    void clickOnWhatBecomesGrey();
    void heatShrinkTubeWarns_data() { everyGtk(); }
    void heatShrinkTubeWarns();
    void panelThatRefusesToPrint_data() { everyGtk(); }
    void panelThatRefusesToPrint();
    void dialogShownAgain_data() { everyGtk(); }
    void dialogShownAgain();
    void printedBeforeItIsSeen_data() { everyGtk(); }
    void printedBeforeItIsSeen();
    void twoDialogs_data() { everyGtk(); }
    void twoDialogs();
    void printersListedBefore_data() { everyGtk(); }
    void printersListedBefore();
    void listOfModulesIsMissing_data();
    void listOfModulesIsMissing();
    void dialogGone_data() { everyGtk(); }
    void dialogGone();
    void serviceThatFails_data();
    void serviceThatFails();
    void serviceThatEnds_data();
    void serviceThatEnds();
    void switchedOff_data();
    void switchedOff();

private: // NOLINT(readability-redundant-access-specifiers)
    GtkDialog dialog(const QStringList &variables = {});
    /// Opens a session bus that starts this service.
    bool openBus(const QString &service = QStringLiteral(KV_PANEL_SERVICE));

    DisplayServer mDisplay;
    PrintingSite mSite;
    QTemporaryDir mSettings;
    std::unique_ptr<SessionBus> mBus;
};

void tst_gtkdialog::initTestCase()
{
    QCOMPARE(mDisplay.open(), QString());
    QCOMPARE(mSite.open(), QString());
}

void tst_gtkdialog::init()
{
    QVERIFY(openBus());
    QVERIFY(mSite.saveUserOptions({}));
}

void tst_gtkdialog::cleanup()
{
    mBus.reset();
}

bool tst_gtkdialog::openBus(const QString &service)
{
    mBus = std::make_unique<SessionBus>();
    const QString error = mBus->open(service);
    if (!error.isEmpty()) {
        qWarning("%s", qPrintable(error));
    }
    return error.isEmpty();
}

GtkDialog tst_gtkdialog::dialog(const QStringList &variables)
{
    QFETCH(const QString, gtk);
    return GtkDialog(gtk, mDisplay.environment(),
                     gtkVariables(mSettings.path()) + variables +
                         QStringList{mBus->variable(), u"HOME="_s + QDir::homePath(),
                                     // Leaked objects are found.
                                     u"G_SLICE=always-malloc"_s});
}

void tst_gtkdialog::jobGetsWhatIsChosen()
{
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open all"_s));
    QVERIFY(dialog.shows({panelTab, u"box:Half Cut off"_s, u"cups-KvHalfCut=OFF"_s, u"count:1"_s}));
    // GTK's own list of the same options.
    QVERIFY(!dialog.state().contains(advancedTab));
    QVERIFY(dialog.tell(u"click Half Cut"_s));
    QVERIFY(dialog.shows({u"box:Half Cut on"_s, u"cups-KvHalfCut=ON"_s}));
    QVERIFY(dialog.tell(u"click Cut Every"_s));
    QVERIFY(dialog.shows({u"box:Cut Every off"_s, u"count:1 grey"_s}));
    QVERIFY(dialog.tell(u"click Cut Every"_s));
    QVERIFY(dialog.shows({u"box:Cut Every on"_s, u"cups-KvAutoTapeCut=ON"_s}));
    QVERIFY(dialog.tell(u"count 45"_s));
    QVERIFY(dialog.shows({u"count:45"_s, u"cups-KvCutLabel=45"_s}));
    QVERIFY(dialog.tell(u"click Special Tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut on grey"_s, u"cups-KvSpecialTape=ON"_s}));
    // What special tape rules out, the panel leaves out of the job only when that is printed.
    QVERIFY(dialog.tell(u"respond -5"_s));
    QVERIFY(
        dialog.shows({u"responses=-5 "_s, u"cups-KvSpecialTape=ON"_s, u"cups-KvHalfCut=OFF"_s}));
    QCOMPARE(dialog.end(), 0);
    QCOMPARE(dialog.ownErrors(), QStringList());
}

void tst_gtkdialog::presetIsChosen()
{
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"preset:Auto cut"_s}));
    QVERIFY(dialog.tell(u"preset Half cut and chain printing"_s));
    QVERIFY(dialog.shows({u"preset:Half cut and chain printing"_s, u"box:Half Cut on"_s,
                          u"box:Chain Printing on"_s}));
    QVERIFY(dialog.tell(u"respond -5"_s));
    QVERIFY(dialog.shows({u"responses=-5 "_s, u"cups-KvHalfCut=ON"_s, u"cups-KvChainPrint=ON"_s,
                          u"cups-KvAutoTapeCut=OFF"_s}));
}

void tst_gtkdialog::startsFromTheDialogsOptions()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvMirror=ON KvChainPrint=ON\n"));
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"box:Mirror Printing on"_s, u"box:Chain Printing on"_s,
                          u"box:Auto Cut on"_s, u"cups-KvMirror=ON"_s, u"cups-KvChainPrint=ON"_s}));
}

void tst_gtkdialog::printerWithOtherWords()
{
    QString error;
    QVERIFY2(mSite.scheduler().addPrinter(
                 u"cutter"_s, mSite.file(u"cutter.ppd"_s, CutterPrinter::ppd("None")), &error),
             qPrintable(error));
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open cutter"_s));
    QVERIFY(dialog.shows({panelTab, u"box:Cut at End off"_s, u"cups-CutMedia=None"_s}));
    QVERIFY(dialog.tell(u"click Cut at End"_s));
    QVERIFY(dialog.shows({u"box:Cut at End on"_s, u"cups-CutMedia=EndOfJob"_s}));
}

void tst_gtkdialog::paperAndPrinterAreFollowed()
{
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off"_s}));
    QVERIFY(dialog.tell(u"paper FL21x45 59.5 127.6"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off grey"_s}));
    QVERIFY(dialog.tell(u"paper T24x100 68.0 283.5"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off"_s}));
    QVERIFY(dialog.tell(u"printer label"_s));
    QVERIFY(dialog.shows({u"box:Cut at End off"_s, u"box:Cut Every on"_s}));
    QVERIFY(dialog.lacks({u"box:Half Cut off"_s}));
    // A printer without the panel has no tab.
    QVERIFY(dialog.tell(u"printer plain"_s));
    QVERIFY(dialog.lacks({panelTab}));
    QVERIFY(dialog.tell(u"printer tape"_s));
    QVERIFY(dialog.shows({panelTab, u"box:Half Cut off"_s}));
    QCOMPARE(dialog.end(), 0);
    QCOMPARE(dialog.ownErrors(), QStringList());
}

void tst_gtkdialog::paperChangedBeforeThePanelIsThere()
{
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off"_s}));
    QVERIFY(dialog.tell(u"printer all"_s));
    QVERIFY(dialog.tell(u"paper FL21x45 59.5 127.6"_s));
    QVERIFY(dialog.shows({u"box:Cut at End off"_s, u"box:Half Cut off grey"_s}));
}

void tst_gtkdialog::stepperHeldDown()
{
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open label"_s));
    QVERIFY(dialog.shows({u"box:Cut Every on"_s}));
    QVERIFY(dialog.tell(u"count 60"_s));
    QVERIFY(dialog.tell(u"respond -5"_s));
    QVERIFY(dialog.shows({u"responses=-5 "_s, u"cups-KvCutLabel=60"_s}));
    QCOMPARE(dialog.ownErrors(), QStringList());
}

void tst_gtkdialog::clickOnWhatBecomesGrey()
{
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off"_s}));
    // The user is faster than the panel.
    QVERIFY(dialog.tell(u"click Special Tape; click Half Cut; click Mirror Printing"_s));
    QVERIFY(dialog.shows({u"box:Special Tape on"_s, u"box:Half Cut off grey"_s,
                          u"box:Mirror Printing on"_s, u"cups-KvMirror=ON"_s}));
    QCOMPARE(dialog.ownErrors(), QStringList());
}

void tst_gtkdialog::heatShrinkTubeWarns()
{
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open follow"_s));
    QVERIFY(dialog.shows({panelTab, u"box:Cut Every off"_s}));
    QVERIFY(dialog.tell(u"paper HS12x100 34 283.5"_s));
    QVERIFY(dialog.tell(u"click Cut Every"_s));
    QVERIFY(waitFor([&dialog] { return !dialog.state().filter(u"alert:"_s).isEmpty(); }));
}

void tst_gtkdialog::panelThatRefusesToPrint()
{
    const QTemporaryDir folder;
    const auto service = refusingService(QDir(folder.path()));
    QVERIFY(service && openBus(*service));
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off"_s}));
    QVERIFY(dialog.tell(u"respond -5"_s));
    QVERIFY(dialog.tell(u"click Half Cut"_s));
    QVERIFY(dialog.shows({u"responses="_s, u"box:Half Cut on"_s, panelTab}));
    // Cancel needs no permission.
    QVERIFY(dialog.tell(u"respond -6"_s));
    QVERIFY(dialog.shows({u"responses=-6 "_s}));
    QCOMPARE(dialog.end(), 0);
    QCOMPARE(dialog.ownErrors(), QStringList());
}

void tst_gtkdialog::dialogShownAgain()
{
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off"_s}));
    QVERIFY(dialog.tell(u"click Half Cut"_s));
    QVERIFY(dialog.shows({u"cups-KvHalfCut=ON"_s}));
    QVERIFY(dialog.tell(u"respond -6"_s));
    QVERIFY(dialog.tell(u"hide"_s));
    QVERIFY(dialog.tell(u"again"_s));
    QVERIFY(dialog.shows({panelTab, u"box:Half Cut on"_s, u"cups-KvHalfCut=ON"_s}));
    QVERIFY(dialog.tell(u"click Mirror Printing"_s));
    QVERIFY(dialog.shows({u"cups-KvMirror=ON"_s}));
    QVERIFY(dialog.tell(u"respond -5"_s));
    QVERIFY(dialog.shows({u"responses=-6 -5 "_s}));
    QCOMPARE(dialog.end(), 0);
}

void tst_gtkdialog::printedBeforeItIsSeen()
{
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off"_s}));
    QVERIFY(dialog.tell(u"click Half Cut; click Special Tape"_s));
    QVERIFY(dialog.shows({u"cups-KvHalfCut=ON"_s, u"cups-KvSpecialTape=ON"_s}));
    QVERIFY(dialog.tell(u"hide"_s));
    QVERIFY(dialog.tell(u"again; respond -5"_s));
    // The panel has decided.
    QVERIFY(
        dialog.shows({u"responses=-5 "_s, u"cups-KvSpecialTape=ON"_s, u"cups-KvHalfCut=OFF"_s}));
    QCOMPARE(dialog.end(), 0);
    QCOMPARE(dialog.ownErrors(), QStringList());
}

void tst_gtkdialog::twoDialogs()
{
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off"_s}));
    QVERIFY(dialog.tell(u"open all"_s));
    QVERIFY(dialog.shows({u"box:Cut Every on"_s}));
    QVERIFY(dialog.tell(u"click Mirror Printing"_s));
    QVERIFY(dialog.shows({u"cups-KvMirror=ON"_s}));
    QVERIFY(dialog.tell(u"destroy"_s));
    QVERIFY(dialog.tell(u"click Half Cut"_s));
    QVERIFY(dialog.shows({u"cups-KvHalfCut=ON"_s, u"cups-KvMirror=ON"_s}));
    QCOMPARE(dialog.end(), 0);
    QCOMPARE(dialog.ownErrors(), QStringList());
}

void tst_gtkdialog::printersListedBefore()
{
    // GTK loads its modules for that.
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"list"_s));
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({panelTab, u"box:Half Cut off"_s}));
    QCOMPARE(dialog.end(), 0);
    QCOMPARE(dialog.ownErrors(), QStringList());
}

void tst_gtkdialog::listOfModulesIsMissing_data()
{
    QTest::addColumn<QString>("gtk");
    if (QStringLiteral(KV_GTK_VERSIONS).contains(u'4')) {
        QTest::newRow("GTK 4") << u"4"_s;
    }
}

void tst_gtkdialog::listOfModulesIsMissing()
{
    // Without their list GTK 4 loads all modules when a program starts.
    const QTemporaryDir libraries;
    QVERIFY(copyFolder(QStringLiteral(KV_LIBRARIES "/gtk-4.0"), libraries.filePath(u"gtk-4.0"_s)));
    QDirIterator lists(libraries.path(), {u"giomodule.cache"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    QVERIFY(QFile::remove(lists.next()));
    GtkDialog dialog = this->dialog({u"GTK_PATH="_s + libraries.filePath(u"gtk-4.0"_s)});
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({panelTab, u"box:Half Cut off"_s}));
    QCOMPARE(dialog.end(), 0);
    QCOMPARE(dialog.ownErrors(), QStringList());
}

void tst_gtkdialog::dialogGone()
{
    GtkDialog dialog = this->dialog();
    // Before the service has answered, and with a response that waits.
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.tell(u"destroy"_s));
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off"_s}));
    QVERIFY(dialog.tell(u"click Half Cut"_s));
    QVERIFY(dialog.tell(u"destroy"_s));
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off"_s}));
    QVERIFY(dialog.tell(u"respond -5"_s));
    QVERIFY(dialog.tell(u"destroy"_s));
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off"_s}));
    QCOMPARE(dialog.end(), 0);
    QCOMPARE(dialog.ownErrors(), QStringList());
}

void tst_gtkdialog::serviceThatFails_data()
{
    everyGtkWith<QString>("service", {{"missing", u"/nonexistent/service"_s},
                                      {"ending at once", u"/bin/false"_s},
                                      {"answering nonsense", QString()}});
}

void tst_gtkdialog::serviceThatFails()
{
    QFETCH(const QString, service);
    QVERIFY(openBus(service.isNull() ? u"/bin/false"_s : service));
    NonsenseService nonsense;
    QVERIFY(!service.isNull() || nonsense.offer(*mBus));
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open tape"_s));
    // GTK's own list of the options is left to the user.
    QVERIFY(dialog.shows({panelTab, advancedTab, failure}));
    QVERIFY(dialog.tell(u"respond -5"_s));
    QVERIFY(dialog.shows({u"responses=-5 "_s, u"cups-KvHalfCut=OFF"_s}));
    QCOMPARE(dialog.end(), 0);
    QCOMPARE(dialog.ownErrors().size(), 1);
}

void tst_gtkdialog::serviceThatEnds_data()
{
    everyGtkWith<int>("signal", {{"killed", SIGKILL}, {"stopped", SIGSTOP}});
}

void tst_gtkdialog::serviceThatEnds()
{
    QFETCH(const int, signal);
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off"_s}));
    QVERIFY(dialog.tell(u"click Half Cut"_s));
    QVERIFY(dialog.shows({u"cups-KvHalfCut=ON"_s}));
    const auto service = pid_t(mBus->servicePid());
    QVERIFY(service > 0);
    QCOMPARE(kill(service, signal), 0);
    QVERIFY(dialog.tell(u"respond -5"_s));
    const bool isPrinted = dialog.shows({u"responses=-5 "_s, u"cups-KvHalfCut=ON"_s, failure});
    kill(service, SIGKILL);
    QVERIFY(isPrinted);
    // Another printer is another try.
    QVERIFY(dialog.tell(u"printer all"_s));
    QVERIFY(dialog.shows({u"box:Cut Every on"_s}));
    QCOMPARE(dialog.end(), 0);
}

void tst_gtkdialog::switchedOff_data()
{
    everyGtkWith<QString>("variable", {{"in the environment", u"KVPRINT_DIALOG=off"_s},
                                       {"in the settings", u"KVPRINT_DIALOG=on"_s}});
}

void tst_gtkdialog::switchedOff()
{
    QFETCH(const QString, gtk);
    QFETCH(const QString, variable);
    const QDir settings(QDir::home().filePath(u".config/kvprint"_s));
    QVERIFY(settings.mkpath(u"."_s));
    QFile file(settings.filePath(u"dialog.conf"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    if (variable.endsWith(u"=on"_s)) {
        file.write(u"[Applications]\nprintdialog-gtk%1=off\n"_s.arg(gtk).toUtf8());
    }
    file.close();
    GtkDialog dialog = this->dialog({variable});
    QVERIFY(dialog.tell(u"open tape"_s));
    QVERIFY(dialog.shows({advancedTab, u"cups-KvHalfCut=OFF"_s}));
    // It waits for an answer that is on its way.
    QVERIFY(dialog.tell(u"respond -5"_s));
    QVERIFY(dialog.shows({u"responses=-5 "_s, advancedTab}));
    QVERIFY(!dialog.state().contains(panelTab));
    QVERIFY(file.remove());
    QCOMPARE(dialog.end(), 0);
    QCOMPARE(dialog.ownErrors(), QStringList());
}

KV_CORE_TEST(tst_gtkdialog)
#include "tst_gtkdialog.moc"
