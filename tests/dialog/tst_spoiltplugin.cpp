// SPDX-License-Identifier: Apache-2.0
#include "DialogOpener.h"
#include "applications/PlugInTree.h"
#include "host/PrintingSite.h"
#include "support/DialogNames.h"

#include <QDir>
#include <QTest>

#include <functional>

#include <sys/stat.h>

namespace {
/// Makes something of a file or folder.

bool removePath(const QString &path)
{
    return QFileInfo(path).isDir() ? QDir(path).removeRecursively() : QFile::remove(path);
}

bool makeFolder(const QString &path)
{
    return removePath(path) && QDir().mkdir(path);
}

bool makePipe(const QString &path)
{
    return removePath(path) && mkfifo(QFile::encodeName(path).constData(), 0644) == 0;
}

bool makeLink(const QString &path)
{
    return removePath(path) && QFile::link(QStringLiteral("/none"), path);
}

/// A file that anybody can change, beside the tree.
QString othersFile(const QString &path)
{
    return QFileInfo(path).path() + QStringLiteral("/../others/others.so");
}

bool writeOthersFile(const QString &path)
{
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write("others'") > 0 && chmod(QFile::encodeName(path).constData(), 0666) == 0;
}

bool makeLinkToOthers(const QString &path)
{
    return removePath(path) && writeOthersFile(othersFile(path)) &&
           QFile::link(othersFile(path), path);
}

bool addOthersLibrary(const QString &folder)
{
    return writeOthersFile(folder + QStringLiteral("/libcups.so.2"));
}

const QString processorFolder = QStringLiteral("/glibc-hwcaps/x86-64-v2");

bool addOthersProcessorLibrary(const QString &folder)
{
    return addOthersLibrary(folder + processorFolder);
}

bool addOpenProcessorFolder(const QString &folder)
{
    const QString path = folder + processorFolder;
    return QDir().mkpath(path) && chmod(QFile::encodeName(path).constData(), 0777) == 0;
}

FileChange setMode(mode_t mode)
{
    return [mode](const QString &path) {
        return chmod(QFile::encodeName(path).constData(), mode) == 0;
    };
}
} // namespace

/// What the user of an application is told when the plug-in does not find what belongs to it.
class tst_spoiltplugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addQtVersionRows(); }
    void initTestCase();
    void libraryIsNotLoaded_data();
    void libraryIsNotLoaded();
    void nothingIsLoadedFromTheCurrentFolder();
    void nothingPlantedIsLoaded();
    void namesThatForgeLinesAreEscaped();
    void removedBeforeTheFirstDialog();
    void removedWhileDialogsAreOff();

private: // NOLINT(readability-redundant-access-specifiers)
    PrintingSite mSite;
};

void tst_spoiltplugin::initTestCase()
{
    const QString error = mSite.open();
    QVERIFY2(error.isNull(), qPrintable(error));
}

void tst_spoiltplugin::libraryIsNotLoaded_data()
{
    QTest::addColumn<QString>("spoilt");
    QTest::addColumn<FileChange>("change");
    QTest::addColumn<QString>("fault");
    const QString library = QStringLiteral("/libkvprintdialog-qt%1.so");
    const QString core = QStringLiteral("/libkvprintcore-qt%1.so.0.1.0");
    const QString folder = QStringLiteral("/kvprint");
    const auto row = [](const char *name, const QString &spoilt, const FileChange &change,
                        const char *fault) {
        QTest::newRow(name) << spoilt << change << QString::fromLatin1(fault);
    };
    row("missing", library, removePath, "is missing");
    row("folder", library, makeFolder, "is a folder");
    row("pipe", library, makePipe, "is a pipe");
    row("link to nothing", library, makeLink, "is a link to /none, which is missing");
    row("no folder", folder, removePath, "is missing");
    row("a file for the folder", folder, makePipe, "cannot be reached: Not a directory");
    row("open to others", library, setMode(0646), "can be written by others (mode 646)");
    row("folder open to others", folder, setMode(0777),
        "is in %1, which can be written by others (mode 777)");
    row("core open to others", core, setMode(0664),
        "is not loaded: %1 can be written by others (mode 664)");
    const QString neededCore = QStringLiteral("/libkvprintcore-qt%1.so.0");
    row("core missing", neededCore, removePath, "is not loaded: %1 is missing");
    row("core is a pipe", neededCore, makePipe, "is not loaded: %1 is a pipe");
    row("core is a link to others' file", neededCore, makeLinkToOthers,
        "is not loaded: %1 is not in KVPRINT but in OTHERS");
    row("something else to be found there", folder, addOthersLibrary,
        "is not loaded: KVPRINT/libcups.so.2 can be written by others (mode 666)");
    row("something else for a processor", folder, addOthersProcessorLibrary,
        "is not loaded: KVPRINT/glibc-hwcaps/x86-64-v2/libcups.so.2 can be written by others "
        "(mode 666)");
    row("processor's folder open to others", folder, addOpenProcessorFolder,
        "is not loaded: KVPRINT/glibc-hwcaps/x86-64-v2 can be written by others (mode 777)");
}

void tst_spoiltplugin::libraryIsNotLoaded()
{
    QFETCH_GLOBAL(const QString, qt);
    QFETCH(const QString, spoilt);
    QFETCH(const FileChange, change);
    QFETCH(const QString, fault);
    const PlugInTree tree;
    QVERIFY(tree.isCopied());
    const QStringList paths = tree.matching(spoilt.contains(u'%') ? spoilt.arg(qt) : spoilt);
    QCOMPARE(paths.size(), 1);
    QVERIFY(change(paths.first()));
    const QTemporaryDir folder(memoryFolderPattern(QStringLiteral("decoys")));
    QVERIFY(PlugInTree::addDecoys(folder.path()));

    DialogOpener opener(qt, folder.path(), folder.path(), tree.libraries());
    for (int dialog = 0; dialog < 2; ++dialog) {
        QVERIFY(!opener.tabs(tape).contains(kPanelTab));
    }
    QVERIFY(!opener.hasLoaded(QStringLiteral("libkvprintdialog-qt%1.so").arg(qt)));
    const QString library =
        QStringLiteral("%1/kvprint/libkvprintdialog-qt%2.so").arg(tree.libraries(), qt);
    QString told = fault.contains(u'%') ? fault.arg(paths.first()) : fault;
    told.replace(QStringLiteral("KVPRINT"), tree.libraries() + QStringLiteral("/kvprint"));
    told.replace(QStringLiteral("OTHERS"), tree.libraries() + QStringLiteral("/others"));
    QCOMPARE(opener.finish(), QStringLiteral("kvprint: %1 %2\n").arg(library, told));
}

void tst_spoiltplugin::nothingIsLoadedFromTheCurrentFolder()
{
    QFETCH_GLOBAL(const QString, qt);
    const QTemporaryDir folder(memoryFolderPattern(QStringLiteral("decoys")));
    QVERIFY(PlugInTree::addDecoys(folder.path()));
    DialogOpener opener(qt, folder.path(), folder.path());
    QVERIFY(opener.tabs(tape).contains(kPanelTab));
    QVERIFY(opener.hasLoaded(QStringLiteral("libKVMQRVOptions-qt%1.so").arg(qt)));
    QVERIFY(!opener.hasLoadedFrom(folder.path()));
    QCOMPARE(opener.finish(), QStringLiteral(""));
}

void tst_spoiltplugin::nothingPlantedIsLoaded()
{
    QFETCH_GLOBAL(const QString, qt);
    const PlugInTree tree;
    QVERIFY(tree.isCopied());
    const QString own = QStringLiteral("libkvprintdialog-qt%1.so").arg(qt);
    const QString core = QStringLiteral("libkvprintcore-qt%1.so.0").arg(qt);
    const QString bundle = QStringLiteral("/kvprint/pde/KVMQRVOptions.pde");
    for (const QString &place :
         {QStringLiteral(""), QStringLiteral("/qt%1/plugins/generic").arg(qt),
          QStringLiteral("/qt%1/plugins").arg(qt), QStringLiteral("/kvprint/pde"), bundle,
          bundle + QStringLiteral("/Contents"), bundle + QStringLiteral("/Contents/Linux")}) {
        for (const QString &name :
             {own, core, QStringLiteral("libcups.so.2"), QStringLiteral("libQt6UiTools.so.6")}) {
            // Whoever loads it fails.
            QVERIFY(writeOthersFile(tree.libraries() + place + u'/' + name));
            QCOMPARE(chmod(QFile::encodeName(tree.libraries() + place).constData(), 0755), 0);
        }
    }
    const QTemporaryDir folder;
    DialogOpener opener(qt, folder.path(), folder.path(), tree.libraries());
    QVERIFY(opener.tabs(tape).contains(kPanelTab));
    QVERIFY(opener.hasLoadedFrom(tree.libraries()));
    QVERIFY(!opener.hasLoadedFrom(QStringLiteral(KV_LIBRARIES)));
    QCOMPARE(opener.finish(), QStringLiteral(""));
}

void tst_spoiltplugin::namesThatForgeLinesAreEscaped()
{
    QFETCH_GLOBAL(const QString, qt);
    const PlugInTree tree;
    QVERIFY(tree.isCopied());
    QFile info(tree.libraries() +
               QStringLiteral("/kvprint/pde/KVMQRVOptions.pde/Contents/Info.json"));
    QVERIFY(info.open(QIODevice::ReadOnly));
    QByteArray entries = info.readAll();
    info.close();
    const QByteArray forging = "A\\nkvprint: all is well \\u001b[2J";
    entries.replace("KVMQRVOptionsPlugIn13_v400_", forging);
    QVERIFY(info.open(QIODevice::WriteOnly) && info.write(entries) == entries.size());
    info.close();
    QVERIFY(QDir().mkdir(tree.libraries() + QStringLiteral("/kvprint/pde/B\nkvprint: b.pde")));
    const QTemporaryDir folder;
    QVERIFY(qputenv("KVPRINT_DIALOG", "off\nkvprint: c"));
    DialogOpener opener(qt, folder.path(), folder.path(), tree.libraries());
    qunsetenv("KVPRINT_DIALOG");
    QVERIFY(!opener.tabs(tape).contains(kPanelTab));
    const QString told = QStringLiteral(
        "kvprint: KVPRINT_DIALOG: \"off\\nkvprint: c\" is neither \"on\" nor \"off\"\n"
        "kvprint: %1/kvprint/pde/B\\nkvprint: b.pde/Contents/Info.json: is missing\n"
        "kvprint: KVMQRVOptions.pde: the library has no class A\\nkvprint: all is well \\x1b[2J "
        "that "
        "works on this system\n");
    QCOMPARE(opener.finish(), told.arg(tree.libraries()));
}

void tst_spoiltplugin::removedBeforeTheFirstDialog()
{
    QFETCH_GLOBAL(const QString, qt);
    const PlugInTree tree;
    QVERIFY(tree.isCopied());
    const QString plugIn =
        QStringLiteral("%1/qt%2/plugins/generic/libkvprintdialog.so").arg(tree.libraries(), qt);
    const QTemporaryDir folder(memoryFolderPattern(QStringLiteral("decoys")));
    QVERIFY(PlugInTree::addDecoys(folder.path()));
    DialogOpener opener(qt, folder.path(), folder.path(), tree.libraries());
    QVERIFY(
        QTest::qWaitFor([&] { return opener.hasLoaded(QStringLiteral("libkvprintdialog.so")); }));
    QVERIFY(removePath(tree.libraries()));
    for (int dialog = 0; dialog < 2; ++dialog) {
        QVERIFY(!opener.tabs(tape).contains(kPanelTab));
    }
    QCOMPARE(opener.finish(), QStringLiteral("kvprint: %1 has been removed\n").arg(plugIn));
}

void tst_spoiltplugin::removedWhileDialogsAreOff()
{
    QFETCH_GLOBAL(const QString, qt);
    const PlugInTree tree;
    QVERIFY(tree.isCopied());
    const QTemporaryDir folder;
    QFile settings(folder.filePath(QStringLiteral("kvprint/dialog.conf")));
    QVERIFY(PlugInTree::addDecoys(folder.path()));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    QVERIFY(settings.write("[Applications]\n*=off\n") > 0);
    settings.close();
    DialogOpener opener(qt, folder.path(), folder.path(), tree.libraries());
    QVERIFY(!opener.tabs(tape).contains(kPanelTab));
    QVERIFY(removePath(tree.libraries()));
    QVERIFY(settings.remove());
    for (int dialog = 0; dialog < 2; ++dialog) {
        QVERIFY(!opener.tabs(tape).contains(kPanelTab));
    }
    const QString library =
        QStringLiteral("%1/kvprint/libkvprintdialog-qt%2.so").arg(tree.libraries(), qt);
    QCOMPARE(opener.finish(), QStringLiteral("kvprint: %1 has been removed\n").arg(library));
}

KV_CORE_TEST(tst_spoiltplugin)
#include "tst_spoiltplugin.moc"
