#include "DialogOpener.h"
#include "PrintingSite.h"

#include <QDir>
#include <QTest>

namespace {
const QString panelTitle = QStringLiteral("Cut Options");
const QString extender = QStringLiteral("libkvprintdialog-qt%1.so");
const QString bundleLibrary = QStringLiteral("libKVMQRVOptions-qt%1.so");

/// Puts the settings where the dialogs look for them; nothing when they are null.
bool writeSettings(const QString &folder, const QByteArray &lines)
{
    QFile file(folder + QStringLiteral("/kvprint/dialog.conf"));
    return lines.isNull() || (QDir(folder).mkpath(QStringLiteral("kvprint")) &&
                              file.open(QIODevice::WriteOnly) && file.write(lines) == lines.size());
}
} // namespace

/// What the files kvprint/dialog.conf do to the print dialogs of an application.
class tst_dialogsettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase();
    void applications_data();
    void applications();
    void panelIsNotLoadedWhenOff();
    void changeHoldsForTheNextDialog();
    void faultIsToldOnce_data();
    void faultIsToldOnce();
    void leavesNoFiles();

private:
    PrintingSite mSite;
};

void tst_dialogsettings::initTestCase_data()
{
    QTest::addColumn<QString>("qt");
    for (const QString &qt : QStringLiteral(KV_QT_VERSIONS).split(u',')) {
        QTest::newRow(qPrintable(QStringLiteral("Qt ") + qt)) << qt;
    }
}

void tst_dialogsettings::initTestCase()
{
    const QString error = mSite.open();
    QVERIFY2(error.isNull(), qPrintable(error));
}

void tst_dialogsettings::applications_data()
{
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<QByteArray>("system");
    QTest::addColumn<bool>("isExtended");
    const QByteArray none;
    const QByteArray on = "[Applications]\ndialogopener=on\n";
    const QByteArray off = "[Applications]\ndialogopener=off\n";
    const QByteArray allOff = "[Applications]\n*=off\n";
    const QByteArray othersOff = "[Applications]\ndialog=off\ndialogopener2=off\n";
    const QByteArray elsewhere = "dialogopener=off\n[Programs]\ndialogopener=off\n";
    QTest::newRow("no files") << none << none << true;
    QTest::newRow("off for the user") << off << none << false;
    QTest::newRow("off for all users") << none << off << false;
    QTest::newRow("the user's own way: on") << on << off << true;
    QTest::newRow("the user's own way: off") << off << on << false;
    QTest::newRow("other applications") << othersOff << none << true;
    QTest::newRow("other sections") << elsewhere << none << true;
    QTest::newRow("all applications") << allOff << none << false;
    QTest::newRow("all applications of all users") << none << allOff << false;
    QTest::newRow("all but this") << QByteArray(allOff + "dialogopener=on\n") << none << true;
    QTest::newRow("the user's all but the system's this") << allOff << on << true;
}

void tst_dialogsettings::applications()
{
    QFETCH(const QByteArray, user);
    QFETCH(const QByteArray, system);
    QFETCH(const bool, isExtended);
    const QTemporaryDir userFolder;
    const QTemporaryDir systemFolder;
    QVERIFY(writeSettings(userFolder.path(), user));
    QVERIFY(writeSettings(systemFolder.path(), system));
    QFETCH_GLOBAL(const QString, qt);
    DialogOpener opener(qt, userFolder.path(), systemFolder.path());
    const QStringList tabs = opener.tabs(QStringLiteral("tape"));
    QVERIFY(!tabs.isEmpty());
    QCOMPARE(tabs.contains(panelTitle), isExtended);
    QCOMPARE(opener.finish(), QStringLiteral(""));
}

void tst_dialogsettings::panelIsNotLoadedWhenOff()
{
    const QTemporaryDir folder;
    QVERIFY(writeSettings(folder.path(), "[Applications]\ndialogopener=off\n"));
    QFETCH_GLOBAL(const QString, qt);
    DialogOpener opener(qt, folder.path(), folder.path());
    QVERIFY(!opener.tabs(QStringLiteral("tape")).isEmpty());
    QVERIFY(opener.hasLoaded(extender.arg(qt)));
    QVERIFY(!opener.hasLoaded(bundleLibrary.arg(qt)));
}

void tst_dialogsettings::changeHoldsForTheNextDialog()
{
    const QTemporaryDir folder;
    QFETCH_GLOBAL(const QString, qt);
    DialogOpener opener(qt, folder.path(), folder.path());
    QVERIFY(opener.tabs(QStringLiteral("tape")).contains(panelTitle));
    QVERIFY(opener.hasLoaded(bundleLibrary.arg(qt)));
    QVERIFY(writeSettings(folder.path(), "[Applications]\ndialogopener=off\n"));
    QVERIFY(!opener.tabs(QStringLiteral("tape")).contains(panelTitle));
    QVERIFY(writeSettings(folder.path(), "[Applications]\n"));
    QVERIFY(opener.tabs(QStringLiteral("tape")).contains(panelTitle));
    QCOMPARE(opener.finish(), QStringLiteral(""));
}

void tst_dialogsettings::faultIsToldOnce_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("told");
    QTest::newRow("neither on nor off")
        << QByteArray("[Applications]\ndialogopener=maybe\n")
        << QStringLiteral("kvprint: kvprint/dialog.conf: \"dialogopener\" is neither \"on\" nor "
                          "\"off\"\n");
    QTest::newRow("no settings")
        << QByteArray("[Applications\ndialogopener\n")
        << QStringLiteral("kvprint: kvprint/dialog.conf cannot be read, or not all of it\n");
}

void tst_dialogsettings::faultIsToldOnce()
{
    QFETCH(const QByteArray, settings);
    QFETCH(const QString, told);
    const QTemporaryDir user;
    const QTemporaryDir system;
    QVERIFY(writeSettings(user.path(), settings));
    QFETCH_GLOBAL(const QString, qt);
    DialogOpener opener(qt, user.path(), system.path());
    for (int dialog = 0; dialog < 2; ++dialog) {
        QVERIFY(opener.tabs(QStringLiteral("tape")).contains(panelTitle));
    }
    QCOMPARE(opener.finish(), told);
}

void tst_dialogsettings::leavesNoFiles()
{
    const QTemporaryDir folder;
    QFETCH_GLOBAL(const QString, qt);
    DialogOpener opener(qt, folder.path(), folder.path());
    QVERIFY(opener.tabs(QStringLiteral("tape")).contains(panelTitle));
    QCOMPARE(opener.finish(), QStringLiteral(""));
    QVERIFY(!QDir(folder.filePath(QStringLiteral("kvprint"))).exists());
}

QTEST_GUILESS_MAIN(tst_dialogsettings)
#include "tst_dialogsettings.moc"
