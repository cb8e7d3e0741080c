// SPDX-License-Identifier: Apache-2.0
#include "DesktopSession.h"
#include "applications/JobTicket.h"
#include "applications/Waiting.h"

#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QStandardPaths>
#include <QTest>

#include <iterator>
#include <optional>

namespace {
/// A desktop's portal, whose print dialog applications may ask for.
struct Portal
{
    /// The package is xdg-desktop-portal-NAME.
    const char *name;
    /// As XDG_CURRENT_DESKTOP names the desktop.
    const char *desktop;
};

/// An application whose print dialog is GTK's or a portal's.
struct GtkApplication
{
    /// A row of the table of applications.
    const char *name;
    const char *program;
    /// The name of the document that it is started with, which says what is in it.
    const char *document;
    /// The keys that open the dialog, one after another.
    const char *printKeys = "ctrl+p";
    /// The portal that it asks for the dialog; none if it has the dialog itself.
    Portal portal = {};
    /// The button that shows the tabs of Qt's dialog; empty for GTK's.
    const char *unfold = "";
};

const GtkApplication gtkApplications[] = {
    {.name = "evince", .program = "evince", .document = "label.pdf"},
    {.name = "l3afpad", .program = "l3afpad", .document = "label.txt"},
    {.name = "gtk4-print-editor",
     .program = "gtk4-print-editor",
     .document = "label.txt",
     .printKeys = "alt+f Up Up Return"},
    {.name = "evince, portal of GTK",
     .program = "evince",
     .document = "label.pdf",
     .portal = {"gtk", "XFCE"}},
    {.name = "evince, portal of GNOME",
     .program = "evince",
     .document = "label.pdf",
     .portal = {"gnome", "GNOME"}},
    {.name = "evince, portal of KDE",
     .program = "evince",
     .document = "label.pdf",
     .portal = {"kde", "KDE"},
     .unfold = "Options >>"},
};
} // namespace

/// The panel in applications of Debian's that print with GTK's dialog or a portal's, worked by a
/// user with mouse, keyboard and assistive technology.
class tst_gtkapplications : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void jobIsWhatIsChosen_data();
    void jobIsWhatIsChosen();

private: // NOLINT(readability-redundant-access-specifiers)
    /// What has applications ask this portal; null when it is not installed.
    std::optional<QStringList> variablesOf(const Portal &portal) const;
    /// Writes a document of one label; its path.
    QString write(const QString &name) const;
    /// Opens the application's print dialog.
    bool openDialog(const GtkApplication &application);
    /// Turns to the panel in the dialog.
    bool openPanel(const GtkApplication &application) const;
    /// Prints, until there are so many jobs.
    bool print(qsizetype jobs) const;

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
    const QString path = mSession.site().path(name);
    if (!name.endsWith(u".pdf"_s)) {
        return mSession.site().document(name);
    }
    QPdfWriter writer(path);
    QPainter painter(&writer);
    painter.drawText(500, 500, u"label"_s);
    return path;
}

bool tst_gtkapplications::openDialog(const GtkApplication &application)
{
    return mSession.workAt(u"label"_s) && mSession.press(QLatin1String(application.printKeys)) &&
           mSession.workAt(u"^Print( |$)"_s);
}

bool tst_gtkapplications::openPanel(const GtkApplication &application) const
{
    return (!*application.unfold || mSession.click(QLatin1String(application.unfold))) &&
           mSession.openTab(u"Cut Options"_s, u"Half Cut"_s);
}

bool tst_gtkapplications::print(qsizetype jobs) const
{
    constexpr int effectMs = 2'000;
    const auto isPrinted = [&] {
        return mSession.site().scheduler().jobIds().size() == jobs;
    };
    // The dialog's button cannot be used before GTK knows all of the printer.
    return waitFor([&] { return mSession.press(u"alt+p"_s) && waitFor(isPrinted, effectMs); });
}

void tst_gtkapplications::jobIsWhatIsChosen_data()
{
    const TestTable<int> table("row");
    for (size_t i = 0; i < std::size(gtkApplications); ++i) {
        table.add(gtkApplications[i].name, int(i));
    }
}

void tst_gtkapplications::jobIsWhatIsChosen()
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
    const qsizetype before = mSession.site().scheduler().jobIds().size();
    OwnedProcess process;
    mSession.start(process, program, {write(QLatin1String(application.document))});
    QVERIFY(openDialog(application));
    const bool isGtks = !*application.unfold;
    // GTK's own field of copies, which is grey until the printer is known.
    QVERIFY(!isGtks || (mSession.awaits(u"Cut Options"_s) && mSession.press(u"alt+s"_s) &&
                        mSession.type(u"3"_s)));
    QVERIFY(openPanel(application));
    QVERIFY(mSession.tick(u"Half Cut"_s));
    QVERIFY(print(before + 1));
    const int job = mSession.site().scheduler().jobIds().last();
    QCOMPARE(JobTicket::attributes(job, u"copies"_s),
             QStringList{isGtks ? u"copies=3"_s : u"copies=1"_s});
    const QStringList choices = {u"KvAutoTapeCut=ON"_s,     u"KvChainPrint=OFF"_s,
                                 u"KvHalfCut=ON"_s,         u"KvMirror=ON"_s,
                                 u"KvRemoveBlkSpace=OFF"_s, u"KvSpecialTape=OFF"_s};
    QCOMPARE(JobTicket::attributes(job, u"Kv"_s), choices);
    if (!isGtks) {
        return;
    }
    // The dialog starts from what the application has kept of the job.
    QVERIFY(openDialog(application));
    QVERIFY(openPanel(application));
    QVERIFY(print(before + 2));
    QCOMPARE(JobTicket::attributes(mSession.site().scheduler().jobIds().last(), u"Kv"_s), choices);
}

KV_TEST(tst_gtkapplications)
#include "tst_gtkapplications.moc"
