// SPDX-License-Identifier: Apache-2.0
#include "DialogOpener.h"
#include "PrintingTest.h"
#include "support/DialogNames.h"

#include <QDir>
#include <QTest>

#include <functional>

#include <sys/stat.h>

namespace {
const QString extender = u"libkvprintdialog-qt%1.so"_s;
const QString bundleLibrary = u"libKVMQRVOptions-qt%1.so"_s;

/// Makes something that is no file of that name.

QString settingsFile(const QString &folder)
{
    return folder + u"/kvprint/dialog.conf"_s;
}

/// Puts the settings where the dialogs look for them; nothing when they are null.
bool writeSettings(const QString &folder, const QByteArray &lines)
{
    QFile file(settingsFile(folder));
    return lines.isNull() || (QDir(folder).mkpath(u"kvprint"_s) &&
                              file.open(QIODevice::WriteOnly) && file.write(lines) == lines.size());
}
} // namespace

/// What the files kvprint/dialog.conf do to the print dialogs of an application.
class tst_dialogsettings : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addQtVersionRows(); }
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
};

void tst_dialogsettings::applications_data()
{
    const TestTable<QByteArray, QByteArray, bool> table("user", "system", "isExtended");
    const QByteArray none;
    const QByteArray on = "[Applications]\ndialogopener=on\n";
    const QByteArray off = "[Applications]\ndialogopener=off\n";
    const QByteArray allOff = "[Applications]\n*=off\n";
    const QByteArray othersOff = "[Applications]\ndialog=off\ndialogopener2=off\n";
    const QByteArray elsewhere = "dialogopener=off\n[Programs]\ndialogopener=off\n";
    table.add("no files", none, none, true);
    table.add("off for the user", off, none, false);
    table.add("off for all users", none, off, false);
    table.add("the user's own way: on", on, off, true);
    table.add("the user's own way: off", off, on, false);
    table.add("other applications", othersOff, none, true);
    table.add("other sections", elsewhere, none, true);
    table.add("all applications", allOff, none, false);
    table.add("all applications of all users", none, allOff, false);
    table.add("all but this", QByteArray(allOff + "dialogopener=on\n"), none, true);
    table.add("the user's all but the system's this", allOff, on, true);
    table.add("blanks and quotes", "[Applications]\n  dialogopener = \"off\"  \n", none, false);
    table.add("comments",
              "; a\n# b\n\n[Applications]\n;dialogopener=on\n"
              "dialogopener=off ; c\n#dialogopener=on\n",
              none, false);
    table.add("the last line of two", "[Applications]\ndialogopener=on\ndialogopener=off\n", none,
              false);
    table.add("lines of another system", "\xef\xbb\xbf[Applications]\r\ndialogopener=off\r\n", none,
              false);
    table.add("as large as may be", QByteArray(off + QByteArray(64 * 1024 - off.size(), '\n')),
              none, false);
}

void tst_dialogsettings::applications()
{
    QFETCH(const QByteArray, user);
    QFETCH(const QByteArray, system);
    const QTemporaryDir userFolder;
    const QTemporaryDir systemFolder;
    QVERIFY(writeSettings(userFolder.path(), user));
    QVERIFY(writeSettings(systemFolder.path(), system));
    QFETCH_GLOBAL(const QString, qt);
    DialogOpener opener(qt, userFolder.path(), systemFolder.path());
    const QStringList tabs = opener.tabs(u"tape"_s);
    QVERIFY(!tabs.isEmpty());
    QTEST(tabs.contains(kPanelTab), "isExtended");
    QCOMPARE(opener.finish(), u""_s);
}

void tst_dialogsettings::panelIsNotLoadedWhenOff()
{
    const QTemporaryDir folder;
    QVERIFY(writeSettings(folder.path(), "[Applications]\ndialogopener=off\n"));
    QFETCH_GLOBAL(const QString, qt);
    DialogOpener opener(qt, folder.path(), folder.path());
    QVERIFY(!opener.tabs(u"tape"_s).isEmpty());
    QVERIFY(opener.hasLoaded(extender.arg(qt)));
    QVERIFY(!opener.hasLoaded(bundleLibrary.arg(qt)));
}

void tst_dialogsettings::changeHoldsForTheNextDialog()
{
    const QTemporaryDir folder;
    QFETCH_GLOBAL(const QString, qt);
    DialogOpener opener(qt, folder.path(), folder.path());
    QVERIFY(opener.tabs(u"tape"_s).contains(kPanelTab));
    QVERIFY(opener.hasLoaded(bundleLibrary.arg(qt)));
    QVERIFY(writeSettings(folder.path(), "[Applications]\ndialogopener=off\n"));
    QVERIFY(!opener.tabs(u"tape"_s).contains(kPanelTab));
    QVERIFY(writeSettings(folder.path(), "[Applications]\n"));
    QVERIFY(opener.tabs(u"tape"_s).contains(kPanelTab));
    QCOMPARE(opener.finish(), u""_s);
}

void tst_dialogsettings::faultIsToldOnce_data()
{
    const TestTable<QByteArray, QString> table("settings", "told");
    table.add("neither on nor off", "[Applications]\ndialogopener=maybe\n",
              u"\"dialogopener\" is neither \"on\" nor \"off\""_s);
    table.add("no settings", "\n[Applications\ndialogopener\n",
              u"line 2 is neither a section, nor a key and a value"_s);
    table.add("no text", "[Applications]\n\xe4=off\n*=off\ndialogopener=on\n",
              u"it is no text in UTF-8"_s);
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
            QVERIFY(opener.tabs(u"tape"_s).contains(kPanelTab));
        }
        const QString file = settingsFile(folder->path());
        QCOMPARE(opener.finish(), u"kvprint: %1: %2\n"_s.arg(file, told));
        QVERIFY(QFile::remove(file));
    }
}

void tst_dialogsettings::fileThatIsNoneIsTold_data()
{
    const TestTable<FileChange, QString> table("make", "told");
    const FileChange makeFolder = [](const QString &path) {
        return QDir().mkdir(path);
    };
    const FileChange makePipe = [](const QString &path) {
        return mkfifo(QFile::encodeName(path).constData(), 0644) == 0;
    };
    const FileChange makeLink = [](const QString &path) {
        return QFile::link(u"/none.conf"_s, path);
    };
    table.add("folder", makeFolder, u"is a folder"_s);
    table.add("pipe", makePipe, u"is a pipe"_s);
    const auto makeSparse = [](qint64 size) -> FileChange {
        return [size](const QString &path) {
            QFile file(path);
            return file.open(QIODevice::WriteOnly) && file.resize(size);
        };
    };
    const FileChange makeDevice = [](const QString &path) {
        return QFile::link(u"/dev/zero"_s, path);
    };
    const qint64 gigabyte = 1024 * 1024 * 1024;
    const QString tooLarge = u"has more than 65536 bytes"_s;
    table.add("link", makeLink, u"is a link to /none.conf, which is missing"_s);
    table.add("device", makeDevice, u"is a device"_s);
    table.add("one byte too large", makeSparse(64 * 1024 + 1), tooLarge);
    table.add("1 GB", makeSparse(gigabyte), tooLarge);
    table.add("3 GB", makeSparse(3 * gigabyte), tooLarge);
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
        QVERIFY(QDir(folder->path()).mkdir(u"kvprint"_s));
        QVERIFY(make(settingsFile(folder->path())));
        expected += u"kvprint: %1 %2\n"_s.arg(settingsFile(folder->path()), told);
    }
    DialogOpener opener(qt, user.path(), system.path());
    for (int dialog = 0; dialog < 2; ++dialog) {
        QVERIFY(opener.tabs(u"tape"_s).contains(kPanelTab));
    }
    QCOMPARE(opener.finish(), expected);
}

void tst_dialogsettings::switchThatMeansNothingIsTold_data()
{
    const TestTable<QByteArray, bool> table("value", "isTold");
    table.add("empty", "", false);
    table.add("on", "on", false);
    for (const char *value : {"OFF", "0", "no"}) {
        table.add(value, QByteArray(value), true);
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
        QVERIFY(opener.tabs(u"tape"_s).contains(kPanelTab));
    }
    const QString told = u"kvprint: KVPRINT_DIALOG: \"%1\" is neither \"on\" nor \"off\"\n"_s.arg(
        QString::fromLatin1(value));
    QCOMPARE(opener.finish(), isTold ? told : u""_s);
    QCOMPARE(silent.finish(), u""_s);
}

void tst_dialogsettings::leavesNoFiles()
{
    const QTemporaryDir folder;
    QFETCH_GLOBAL(const QString, qt);
    DialogOpener opener(qt, folder.path(), folder.path());
    QVERIFY(opener.tabs(u"tape"_s).contains(kPanelTab));
    QCOMPARE(opener.finish(), u""_s);
    QVERIFY(!QDir(folder.filePath(u"kvprint"_s)).exists());
}

KV_CORE_TEST(tst_dialogsettings)
#include "tst_dialogsettings.moc"
