// SPDX-License-Identifier: Apache-2.0
#include "DialogOpener.h"
#include "PrintingSite.h"
#include "support/DialogNames.h"

#include <QDir>
#include <QTest>

#include <functional>

#include <sys/stat.h>

namespace {
const QString extender = QStringLiteral("libkvprintdialog-qt%1.so");
const QString bundleLibrary = QStringLiteral("libKVMQRVOptions-qt%1.so");

/// Makes something that is no file of that name.

QString settingsFile(const QString &folder)
{
    return folder + QStringLiteral("/kvprint/dialog.conf");
}

/// Puts the settings where the dialogs look for them; nothing when they are null.
bool writeSettings(const QString &folder, const QByteArray &lines)
{
    QFile file(settingsFile(folder));
    return lines.isNull() || (QDir(folder).mkpath(QStringLiteral("kvprint")) &&
                              file.open(QIODevice::WriteOnly) && file.write(lines) == lines.size());
}
} // namespace

/// What the files kvprint/dialog.conf do to the print dialogs of an application.
class tst_dialogsettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addQtVersionRows(); }
    void initTestCase();
    void applications_data();
    void applications();
    void panelIsNotLoadedWhenOff();
    void changeHoldsForTheNextDialog();
    void faultIsToldOnce_data();
    void faultIsToldOnce();
    void fileThatIsNoneIsTold_data();
    void fileThatIsNoneIsTold();
    void switchThatMeansNothingIsTold_data();
    void switchThatMeansNothingIsTold();
    void leavesNoFiles();

private:
    PrintingSite mSite;
};

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
    QTest::newRow("blanks and quotes")
        << QByteArray("[Applications]\n  dialogopener = \"off\"  \n") << none << false;
    QTest::newRow("comments") << QByteArray("; a\n# b\n\n[Applications]\n;dialogopener=on\n"
                                            "dialogopener=off ; c\n#dialogopener=on\n")
                              << none << false;
    QTest::newRow("the last line of two")
        << QByteArray("[Applications]\ndialogopener=on\ndialogopener=off\n") << none << false;
    QTest::newRow("lines of another system")
        << QByteArray("\xef\xbb\xbf[Applications]\r\ndialogopener=off\r\n") << none << false;
    QTest::newRow("as large as may be")
        << QByteArray(off + QByteArray(64 * 1024 - off.size(), '\n')) << none << false;
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
    QCOMPARE(tabs.contains(kPanelTab), isExtended);
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
    QVERIFY(opener.tabs(QStringLiteral("tape")).contains(kPanelTab));
    QVERIFY(opener.hasLoaded(bundleLibrary.arg(qt)));
    QVERIFY(writeSettings(folder.path(), "[Applications]\ndialogopener=off\n"));
    QVERIFY(!opener.tabs(QStringLiteral("tape")).contains(kPanelTab));
    QVERIFY(writeSettings(folder.path(), "[Applications]\n"));
    QVERIFY(opener.tabs(QStringLiteral("tape")).contains(kPanelTab));
    QCOMPARE(opener.finish(), QStringLiteral(""));
}

void tst_dialogsettings::faultIsToldOnce_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("told");
    QTest::newRow("neither on nor off")
        << QByteArray("[Applications]\ndialogopener=maybe\n")
        << QStringLiteral("\"dialogopener\" is neither \"on\" nor \"off\"");
    QTest::newRow("no settings") << QByteArray("\n[Applications\ndialogopener\n")
                                 << QStringLiteral(
                                        "line 2 is neither a section, nor a key and a value");
    QTest::newRow("no text") << QByteArray("[Applications]\n\xe4=off\n*=off\ndialogopener=on\n")
                             << QStringLiteral("it is no text in UTF-8");
}

void tst_dialogsettings::faultIsToldOnce()
{
    QFETCH(const QByteArray, settings);
    QFETCH(const QString, told);
    QFETCH_GLOBAL(const QString, qt);
    const QTemporaryDir user;
    const QTemporaryDir system;
    for (const QTemporaryDir *folder : {&user, &system}) {
        QVERIFY(writeSettings(folder->path(), settings));
        DialogOpener opener(qt, user.path(), system.path());
        for (int dialog = 0; dialog < 2; ++dialog) {
            QVERIFY(opener.tabs(QStringLiteral("tape")).contains(kPanelTab));
        }
        const QString file = settingsFile(folder->path());
        QCOMPARE(opener.finish(), QStringLiteral("kvprint: %1: %2\n").arg(file, told));
        QVERIFY(QFile::remove(file));
    }
}

void tst_dialogsettings::fileThatIsNoneIsTold_data()
{
    QTest::addColumn<FileChange>("make");
    QTest::addColumn<QString>("told");
    const FileChange makeFolder = [](const QString &path) {
        return QDir().mkdir(path);
    };
    const FileChange makePipe = [](const QString &path) {
        return mkfifo(QFile::encodeName(path).constData(), 0644) == 0;
    };
    const FileChange makeLink = [](const QString &path) {
        return QFile::link(QStringLiteral("/none.conf"), path);
    };
    QTest::newRow("folder") << makeFolder << QStringLiteral("is a folder");
    QTest::newRow("pipe") << makePipe << QStringLiteral("is a pipe");
    const auto makeSparse = [](qint64 size) -> FileChange {
        return [size](const QString &path) {
            QFile file(path);
            return file.open(QIODevice::WriteOnly) && file.resize(size);
        };
    };
    const FileChange makeDevice = [](const QString &path) {
        return QFile::link(QStringLiteral("/dev/zero"), path);
    };
    const qint64 gigabyte = 1024 * 1024 * 1024;
    const QString tooLarge = QStringLiteral("has more than 65536 bytes");
    QTest::newRow("link") << makeLink
                          << QStringLiteral("is a link to /none.conf, which is missing");
    QTest::newRow("device") << makeDevice << QStringLiteral("is a device");
    QTest::newRow("one byte too large") << makeSparse(64 * 1024 + 1) << tooLarge;
    QTest::newRow("1 GB") << makeSparse(gigabyte) << tooLarge;
    QTest::newRow("3 GB") << makeSparse(3 * gigabyte) << tooLarge;
}

void tst_dialogsettings::fileThatIsNoneIsTold()
{
    QFETCH(const FileChange, make);
    QFETCH(const QString, told);
    QFETCH_GLOBAL(const QString, qt);
    const QTemporaryDir user;
    const QTemporaryDir system;
    QString expected;
    for (const QTemporaryDir *folder : {&user, &system}) {
        QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("kvprint")));
        QVERIFY(make(settingsFile(folder->path())));
        expected += QStringLiteral("kvprint: %1 %2\n").arg(settingsFile(folder->path()), told);
    }
    DialogOpener opener(qt, user.path(), system.path());
    for (int dialog = 0; dialog < 2; ++dialog) {
        QVERIFY(opener.tabs(QStringLiteral("tape")).contains(kPanelTab));
    }
    QCOMPARE(opener.finish(), expected);
}

void tst_dialogsettings::switchThatMeansNothingIsTold_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("empty") << QByteArray("") << false;
    QTest::newRow("on") << QByteArray("on") << false;
    for (const char *value : {"OFF", "0", "no"}) {
        QTest::newRow(value) << QByteArray(value) << true;
    }
}

void tst_dialogsettings::switchThatMeansNothingIsTold()
{
    QFETCH(const QByteArray, value);
    QFETCH(const bool, isTold);
    QFETCH_GLOBAL(const QString, qt);
    const QTemporaryDir folder;
    QVERIFY(qputenv("KVPRINT_DIALOG", value));
    DialogOpener silent(qt, folder.path(), folder.path());
    DialogOpener opener(qt, folder.path(), folder.path());
    qunsetenv("KVPRINT_DIALOG");
    for (int dialog = 0; dialog < 2; ++dialog) {
        QVERIFY(opener.tabs(QStringLiteral("tape")).contains(kPanelTab));
    }
    const QString told =
        QStringLiteral("kvprint: KVPRINT_DIALOG: \"%1\" is neither \"on\" nor \"off\"\n")
            .arg(QString::fromLatin1(value));
    QCOMPARE(opener.finish(), isTold ? told : QStringLiteral(""));
    QCOMPARE(silent.finish(), QStringLiteral(""));
}

void tst_dialogsettings::leavesNoFiles()
{
    const QTemporaryDir folder;
    QFETCH_GLOBAL(const QString, qt);
    DialogOpener opener(qt, folder.path(), folder.path());
    QVERIFY(opener.tabs(QStringLiteral("tape")).contains(kPanelTab));
    QCOMPARE(opener.finish(), QStringLiteral(""));
    QVERIFY(!QDir(folder.filePath(QStringLiteral("kvprint"))).exists());
}

KV_CORE_TEST(tst_dialogsettings)
#include "tst_dialogsettings.moc"
