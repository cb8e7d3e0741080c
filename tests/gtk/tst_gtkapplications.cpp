// SPDX-License-Identifier: Apache-2.0
#include "DesktopSession.h"
#include "applications/JobTicket.h"
#include "applications/Waiting.h"

#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <vector>

namespace {
/// A desktop's portal, whose print dialog applications may ask for.
struct Portal
{
    /// The package is xdg-desktop-portal-NAME.
    const char *name;
    /// As XDG_CURRENT_DESKTOP names the desktop.
    const char *desktop;
};

/// Something that a user does in a dialog.
struct Step
{
    std::function<bool(DesktopSession &, const QString &)> act;
    const char *what;
};

using Steps = std::vector<Step>;

/// How a toolkit's print dialog is worked.
struct DialogKind
{
    /// Shows the tabs.
    Steps unfold = {};
    /// Asks for three copies of the second page and the third.
    Steps chooseCopies;
    /// Chooses the second one of the panel's presets.
    Steps choosePreset;
    /// Chooses a flag label as the paper, and turns to the panel.
    Steps chooseFlag = {};
    /// Chooses the printer "plain", and "tape" again.
    Steps choosePlain;
    Steps chooseTape;
    /// Whether the application keeps the panel's choices with its settings.
    bool isKept = true;
};

constexpr auto press = &DesktopSession::press;
constexpr auto type = &DesktopSession::type;
constexpr auto click = &DesktopSession::click;
constexpr auto focus = &DesktopSession::focus;
constexpr auto openMenu = &DesktopSession::openMenu;
constexpr auto replaceText = &DesktopSession::replaceText;

const char printDialog[] = "^Print( |$)";

const Steps gtkCopies = {
    {click, "General"}, {press, "alt+s"}, {type, "3"}, {press, "alt+e"}, {type, "2-3"}};
const Steps gtkPreset = {{openMenu, "Ready-made combination, Auto cut"},
                         {press, "Home Down space"}};
const Steps gtkPlain = {{click, "General"}, {click, "plain"}};
const Steps gtkTape = {{click, "General"}, {click, "tape"}};

const DialogKind gtk3Dialog = {
    .chooseCopies = gtkCopies,
    .choosePreset = gtkPreset,
    .chooseFlag = {{click, "Flag 21 mm x 45 mm"}, {click, "Cut Options"}},
    .choosePlain = gtkPlain,
    .chooseTape = gtkTape,
};

const DialogKind gtk4Dialog = {
    .chooseCopies = gtkCopies,
    .choosePreset = gtkPreset,
    .chooseFlag = {{click, "Page Setup"},
                   {openMenu, "Paper size:"},
                   {press, "Home Down Down Down Down Down Return"},
                   {click, "Cut Options"}},
    .choosePlain = gtkPlain,
    .chooseTape = gtkTape,
};

const DialogKind qtDialog = {
    .unfold = {{click, "Options >>"}},
    .chooseCopies = {{click, "Copies"},
                     {replaceText, "Copies:=3"},
                     {click, "Pages"},
                     {replaceText, "Print range=2-3"}},
    .choosePreset = {{focus, "Ready-made combination"}, {press, "Home Down"}},
    .choosePlain = {{press, "alt+n Home Down Down Down Down"}},
    .chooseTape = {{press, "alt+n Home Down Down Down Down Down"}},
    .isKept = false,
};

/// An application whose print dialog is GTK's or a portal's.
struct GtkApplication
{
    /// A row of the table of applications.
    const char *name;
    const char *program;
    /// The name of the document that it is started with, which says what is in it.
    const char *document;
    const DialogKind &dialog;
    /// The keys that open the dialog, one after another.
    const char *printKeys = "ctrl+p";
    /// The portal that it asks for the dialog; none if it has the dialog itself.
    Portal portal = {};
    /// Whether the paper is chosen in the print dialog.
    bool hasPaper = true;
    /// How many pages the document has that is printed; 3 if the scheduler selects the pages.
    int pages = 2;
};

const GtkApplication gtkApplications[] = {
    {.name = "evince", .program = "evince", .document = "label.pdf", .dialog = gtk3Dialog},
    {.name = "l3afpad",
     .program = "l3afpad",
     .document = "label.txt",
     .dialog = gtk3Dialog,
     .hasPaper = false},
    {.name = "gtk4-print-editor",
     .program = "gtk4-print-editor",
     .document = "label.txt",
     .dialog = gtk4Dialog,
     .printKeys = "alt+f Up Up Return",
     .hasPaper = false},
    {.name = "evince, portal of GTK",
     .program = "evince",
     .document = "label.pdf",
     .dialog = gtk3Dialog,
     .portal = {"gtk", "XFCE"}},
    {.name = "evince, portal of GNOME",
     .program = "evince",
     .document = "label.pdf",
     .dialog = gtk4Dialog,
     .portal = {"gnome", "GNOME"}},
    {.name = "evince, portal of KDE",
     .program = "evince",
     .document = "label.pdf",
     .dialog = qtDialog,
     .portal = {"kde", "KDE"},
     // Qt's dialogs of applications are tested with papers.
     .hasPaper = false,
     .pages = 3},
};

/// What is chosen in the first dialog of each application.
const QStringList chosen = {u"KvAutoTapeCut=OFF"_s,    u"KvChainPrint=ON"_s,
                            u"KvHalfCut=ON"_s,         u"KvMirror=ON"_s,
                            u"KvRemoveBlkSpace=OFF"_s, u"KvSpecialTape=OFF"_s};
} // namespace

/// The panel in applications of Debian's that print with GTK's dialog or a portal's, worked by a
/// user with mouse, keyboard and assistive technology.
class tst_gtkapplications : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void dialogsAreWorked_data();
    void dialogsAreWorked();

private: // NOLINT(readability-redundant-access-specifiers)
    // What is done with the dialogs of an application, one after another.
    void jobIsWhatIsChosen(const GtkApplication &application);
    void paperAndPrinterAreFollowed(const GtkApplication &application);
    void savedSettingsAreKept(const GtkApplication &application);

    /// What has applications ask this portal; null when it is not installed.
    std::optional<QStringList> variablesOf(const Portal &portal) const;
    /// Writes a document of three pages or more; its path.
    QString write(const QString &name) const;
    /// Opens the application's print dialog and turns to the panel.
    bool openDialog(const GtkApplication &application);
    /// Does these steps, again and again until the state has come about.
    template <typename State>
    bool workUntil(const Steps &steps, State isReached);
    bool work(const Steps &steps);
    /// What is to be seen of the panel.
    bool isTicked(const QString &box) const;
    bool hasTab() const { return mSession.user().placeOf(u"Cut Options"_s).has_value(); }
    /// Prints; the new jobs.
    QList<int> print() const;
    /// The number of pages of a job's document.
    int pagesOf(int job) const;

    QTemporaryDir mPortals;
    DesktopSession mSession;
};

void tst_gtkapplications::initTestCase()
{
    QCOMPARE(mSession.open(), QString());
}

std::optional<QStringList> tst_gtkapplications::variablesOf(const Portal &portal) const
{
    const QString file = QLatin1String(portal.name) + u".portal"_s;
    const QDir installed(u"/usr/share/xdg-desktop-portal/portals"_s);
    // A folder of its own has no other portal, and says with newer versions which one is wanted.
    const QDir own(mPortals.filePath(QLatin1String(portal.name)));
    own.mkpath(u"."_s);
    QFile choice(own.filePath(u"portals.conf"_s));
    if (!choice.open(QIODevice::WriteOnly) ||
        !QFile::copy(installed.filePath(file), own.filePath(file))) {
        return std::nullopt;
    }
    choice.write("[preferred]\ndefault=" + QByteArray(portal.name) + '\n');
    const QString libraries = QStringLiteral(KV_LIBRARIES);
    return QStringList{u"XDG_CURRENT_DESKTOP="_s + QLatin1String(portal.desktop),
                       u"XDG_DESKTOP_PORTAL_DIR="_s + own.path(),
                       u"GTK_USE_PORTAL=1"_s,
                       u"QT_QPA_PLATFORM=xcb"_s,
                       u"QT_QPA_GENERIC_PLUGINS=kvprintdialog"_s,
                       u"QT_PLUGIN_PATH=%1/qt6/plugins:%1/qt5/plugins"_s.arg(libraries)};
}

QString tst_gtkapplications::write(const QString &name) const
{
    constexpr int lines = 500;
    if (!name.endsWith(u".pdf"_s)) {
        return mSession.site().file(name, QByteArray("A line of text\n").repeated(lines));
    }
    const QString path = mSession.site().path(name);
    QPdfWriter writer(path);
    QPainter painter(&writer);
    for (const QString &text : {u"first"_s, u"second"_s, u"third"_s}) {
        if (text != u"first"_s) {
            writer.newPage();
        }
        painter.drawText(500, 500, text);
    }
    return path;
}

template <typename State>
bool tst_gtkapplications::workUntil(const Steps &steps, State isReached)
{
    constexpr int effectMs = 3'000;
    return waitFor([&] { return work(steps) && waitFor(isReached, effectMs); });
}

bool tst_gtkapplications::work(const Steps &steps)
{
    return std::all_of(steps.begin(), steps.end(), [this](const Step &step) {
        return step.act(mSession, QLatin1String(step.what));
    });
}

bool tst_gtkapplications::isTicked(const QString &box) const
{
    return mSession.user().sees(box, AccessibleObject::State::Checked);
}

bool tst_gtkapplications::openDialog(const GtkApplication &application)
{
    return mSession.workAt(u"label"_s) && mSession.press(QLatin1String(application.printKeys)) &&
           mSession.workAt(QLatin1String(printDialog)) && work(application.dialog.unfold) &&
           mSession.openTab(u"Cut Options"_s, u"Half Cut"_s);
}

QList<int> tst_gtkapplications::print() const
{
    constexpr int effectMs = 2'000;
    const PrivateScheduler &scheduler = mSession.site().scheduler();
    const qsizetype before = scheduler.jobIds().size();
    QList<int> jobs;
    const auto hasJob = [&] {
        return (jobs = scheduler.jobIds()).size() > before;
    };
    // The dialog's button cannot be used before GTK knows all of the printer.
    const bool isPrinted = waitFor([&] {
        mSession.press(u"alt+p"_s);
        return waitFor(hasJob, effectMs);
    });
    return isPrinted && mSession.isLeft(kPatienceMs) ? jobs.mid(before) : QList<int>();
}

int tst_gtkapplications::pagesOf(int job) const
{
    const QString folder = mSession.site().scheduler().folder();
    const QString document = u"d%1-001"_s.arg(job, 5, 10, QLatin1Char('0'));
    QProcess reader;
    reader.start(u"pdfinfo"_s, QStringList{folder + u"/spool/"_s + document});
    reader.waitForFinished();
    const QString text = QString::fromUtf8(reader.readAllStandardOutput());
    return QRegularExpression(u"Pages: +(\\d+)"_s).match(text).captured(1).toInt();
}

void tst_gtkapplications::dialogsAreWorked_data()
{
    const TestTable<int> table("row");
    for (size_t i = 0; i < std::size(gtkApplications); ++i) {
        table.add(gtkApplications[i].name, int(i));
    }
}

void tst_gtkapplications::dialogsAreWorked()
{
    QFETCH(const int, row);
    const GtkApplication &application = gtkApplications[row];
    const auto variables =
        application.portal.name ? variablesOf(application.portal) : QStringList();
    if (!variables) {
        QSKIP(qPrintable(u"xdg-desktop-portal-%1 is not installed"_s.arg(
            QLatin1String(application.portal.name))));
    }
    const QString program = QStandardPaths::findExecutable(QLatin1String(application.program));
    if (program.isEmpty()) {
        QSKIP(qPrintable(u"%1 is not installed"_s.arg(QLatin1String(application.program))));
    }
    QVERIFY(mSession.site().saveUserOptions("Default tape KvMirror=ON\n"));
    QCOMPARE(mSession.begin(*variables), QString());
    if (application.portal.name &&
        !mSession.hasPrintDialog(QLatin1String(application.portal.name))) {
        // As from version 47 on GNOME's, away from GNOME's own display.
        QSKIP("the portal has no print dialog at this display");
    }
    OwnedProcess process;
    mSession.start(process, program, {write(QLatin1String(application.document))});
    for (const auto part :
         {&tst_gtkapplications::jobIsWhatIsChosen, &tst_gtkapplications::paperAndPrinterAreFollowed,
          &tst_gtkapplications::savedSettingsAreKept}) {
        (this->*part)(application);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void tst_gtkapplications::jobIsWhatIsChosen(const GtkApplication &application)
{
    QVERIFY(openDialog(application));
    // What the user has saved.
    QVERIFY(waitFor([this] { return isTicked(u"Auto Cut"_s) && isTicked(u"Mirror Printing"_s); }));
    QVERIFY(workUntil(application.dialog.choosePreset, [this] {
        return isTicked(u"Chain Printing"_s) && !isTicked(u"Auto Cut"_s);
    }));
    QVERIFY(mSession.tick(u"Half Cut"_s));
    // Presets untick it.
    QVERIFY(mSession.tick(u"Mirror Printing"_s));
    QVERIFY(work(application.dialog.chooseCopies));
    const QList<int> jobs = print();
    QCOMPARE(jobs.size(), 1);
    const int job = jobs.first();
    QCOMPARE(JobTicket::attributes(job, u"Kv"_s), chosen);
    QCOMPARE(JobTicket::attributes(job, u"copies"_s), QStringList{u"copies=3"_s});
    const int pages = pagesOf(job);
    // Applications that ask a portal may print each page as often as there are copies.
    QVERIFY(pages == application.pages ||
            (application.portal.name && pages == 3 * application.pages));
    QCOMPARE(JobTicket::attributes(job, u"page-ranges"_s),
             application.pages == 3 ? QStringList{u"page-ranges=2-3"_s} : QStringList());
}

void tst_gtkapplications::paperAndPrinterAreFollowed(const GtkApplication &application)
{
    QVERIFY(openDialog(application));
    QVERIFY(waitFor([this] { return !mSession.user().seesGrey(u"Half Cut"_s); }));
    if (application.hasPaper) {
        QVERIFY(workUntil(application.dialog.chooseFlag,
                          [this] { return mSession.user().seesGrey(u"Half Cut"_s); }));
    }
    QVERIFY(workUntil(application.dialog.choosePlain, [this] { return !hasTab(); }));
    QVERIFY(workUntil(application.dialog.chooseTape, [this] { return hasTab(); }));
    const qsizetype jobs = mSession.site().scheduler().jobIds().size();
    QVERIFY(mSession.press(u"Escape"_s));
    QVERIFY(mSession.isLeft(kPatienceMs));
    QCOMPARE(mSession.site().scheduler().jobIds().size(), jobs);
}

void tst_gtkapplications::savedSettingsAreKept(const GtkApplication &application)
{
    QVERIFY(openDialog(application));
    const QList<int> jobs = print();
    QCOMPARE(jobs.size(), 1);
    if (application.dialog.isKept) {
        QCOMPARE(JobTicket::attributes(jobs.first(), u"Kv"_s), chosen);
    }
}

KV_TEST(tst_gtkapplications)
#include "tst_gtkapplications.moc"
