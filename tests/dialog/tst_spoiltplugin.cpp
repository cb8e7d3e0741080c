// SPDX-License-Identifier: Apache-2.0
#include "DialogOpener.h"
#include "applications/PlugInTree.h"
#include "host/PrintingTest.h"
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
    return removePath(path) && QFile::link(u"/none"_s, path);
}

/// A file that anybody can change, beside the tree.
QString othersFile(const QString &path)
{
    return QFileInfo(path).path() + u"/../others/others.so"_s;
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
    return writeOthersFile(folder + u"/libcups.so.2"_s);
}

const QString processorFolder = u"/glibc-hwcaps/x86-64-v2"_s;

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
class tst_spoiltplugin : public PrintingTest
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
    /// The current folder of applications, with what they must not load.
    QTemporaryDir mDecoys{memoryFolderPattern(u"decoys"_s)};
};

void tst_spoiltplugin::initTestCase()
{
    PrintingTest::initTestCase();
    QVERIFY(PlugInTree::addDecoys(mDecoys.path()));
}

void tst_spoiltplugin::libraryIsNotLoaded_data()
{
    const TestTable<QString, FileChange, QString> table("spoilt", "change", "fault");
    const QString library = u"/libkvprintdialog-qt%1.so"_s;
    const QString core = u"/libkvprintcore-qt%1.so.0.1.0"_s;
    const QString folder = u"/kvprint"_s;
    const auto row = [&table](const char *name, const QString &spoilt, const FileChange &change,
                              const char *fault) {
        table.add(name, spoilt, change, QString::fromLatin1(fault));
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
    const QString neededCore = u"/libkvprintcore-qt%1.so.0"_s;
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

    DialogOpener opener(qt, mDecoys.path(), mDecoys.path(), tree.libraries());
    for (int dialog = 0; dialog < 2; ++dialog) {
        QVERIFY(!opener.tabs(tape).contains(kPanelTab));
    }
    QVERIFY(!opener.hasLoaded(u"libkvprintdialog-qt%1.so"_s.arg(qt)));
    const QString library = u"%1/kvprint/libkvprintdialog-qt%2.so"_s.arg(tree.libraries(), qt);
    QString told = fault.contains(u'%') ? fault.arg(paths.first()) : fault;
    told.replace(u"KVPRINT"_s, tree.libraries() + u"/kvprint"_s);
    told.replace(u"OTHERS"_s, tree.libraries() + u"/others"_s);
    QCOMPARE(opener.finish(), u"kvprint: %1 %2\n"_s.arg(library, told));
}

void tst_spoiltplugin::nothingIsLoadedFromTheCurrentFolder()
{
    QFETCH_GLOBAL(const QString, qt);
    DialogOpener opener(qt, mDecoys.path(), mDecoys.path());
    QVERIFY(opener.tabs(tape).contains(kPanelTab));
    QVERIFY(opener.hasLoaded(u"libKVMQRVOptions-qt%1.so"_s.arg(qt)));
    QVERIFY(!opener.hasLoadedFrom(mDecoys.path()));
    QCOMPARE(opener.finish(), u""_s);
}

void tst_spoiltplugin::nothingPlantedIsLoaded()
{
    QFETCH_GLOBAL(const QString, qt);
    const PlugInTree tree;
    QVERIFY(tree.isCopied());
    const QString own = u"libkvprintdialog-qt%1.so"_s.arg(qt);
    const QString core = u"libkvprintcore-qt%1.so.0"_s.arg(qt);
    const QString bundle = u"/kvprint/pde/KVMQRVOptions.pde"_s;
    for (const QString &place :
         {u""_s, u"/qt%1/plugins/generic"_s.arg(qt), u"/qt%1/plugins"_s.arg(qt), u"/kvprint/pde"_s,
          bundle, bundle + u"/Contents"_s, bundle + u"/Contents/Linux"_s}) {
        for (const QString &name : {own, core, u"libcups.so.2"_s, u"libQt6UiTools.so.6"_s}) {
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
    QCOMPARE(opener.finish(), u""_s);
}

void tst_spoiltplugin::namesThatForgeLinesAreEscaped()
{
    QFETCH_GLOBAL(const QString, qt);
    const PlugInTree tree;
    QVERIFY(tree.isCopied());
    QFile info(tree.libraries() + u"/kvprint/pde/KVMQRVOptions.pde/Contents/Info.json"_s);
    QVERIFY(info.open(QIODevice::ReadOnly));
    QByteArray entries = info.readAll();
    info.close();
    const QByteArray forging = "A\\nkvprint: all is well \\u001b[2J";
    entries.replace("KVMQRVOptionsPlugIn13_v400_", forging);
    QVERIFY(info.open(QIODevice::WriteOnly) && info.write(entries) == entries.size());
    info.close();
    QVERIFY(QDir().mkdir(tree.libraries() + u"/kvprint/pde/B\nkvprint: b.pde"_s));
    const QTemporaryDir folder;
    QVERIFY(qputenv("KVPRINT_DIALOG", "off\nkvprint: c"));
    DialogOpener opener(qt, folder.path(), folder.path(), tree.libraries());
    qunsetenv("KVPRINT_DIALOG");
    QVERIFY(!opener.tabs(tape).contains(kPanelTab));
    const QString told =
        u"kvprint: KVPRINT_DIALOG: \"off\\nkvprint: c\" is neither \"on\" nor \"off\"\n"
        "kvprint: %1/kvprint/pde/B\\nkvprint: b.pde/Contents/Info.json: is missing\n"
        "kvprint: KVMQRVOptions.pde: the library has no class A\\nkvprint: all is well \\x1b[2J "
        "that "
        "works on this system\n"_s;
    QCOMPARE(opener.finish(), told.arg(tree.libraries()));
}

void tst_spoiltplugin::removedBeforeTheFirstDialog()
{
    QFETCH_GLOBAL(const QString, qt);
    const PlugInTree tree;
    QVERIFY(tree.isCopied());
    const QString plugIn =
        u"%1/qt%2/plugins/generic/libkvprintdialog.so"_s.arg(tree.libraries(), qt);
    DialogOpener opener(qt, mDecoys.path(), mDecoys.path(), tree.libraries());
    QVERIFY(QTest::qWaitFor([&] { return opener.hasLoaded(u"libkvprintdialog.so"_s); }));
    QVERIFY(removePath(tree.libraries()));
    for (int dialog = 0; dialog < 2; ++dialog) {
        QVERIFY(!opener.tabs(tape).contains(kPanelTab));
    }
    QCOMPARE(opener.finish(), u"kvprint: %1 has been removed\n"_s.arg(plugIn));
}

void tst_spoiltplugin::removedWhileDialogsAreOff()
{
    QFETCH_GLOBAL(const QString, qt);
    const PlugInTree tree;
    QVERIFY(tree.isCopied());
    QFile settings(mDecoys.filePath(u"kvprint/dialog.conf"_s));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    QVERIFY(settings.write("[Applications]\n*=off\n") > 0);
    settings.close();
    DialogOpener opener(qt, mDecoys.path(), mDecoys.path(), tree.libraries());
    QVERIFY(!opener.tabs(tape).contains(kPanelTab));
    QVERIFY(removePath(tree.libraries()));
    QVERIFY(settings.remove());
    for (int dialog = 0; dialog < 2; ++dialog) {
        QVERIFY(!opener.tabs(tape).contains(kPanelTab));
    }
    const QString library = u"%1/kvprint/libkvprintdialog-qt%2.so"_s.arg(tree.libraries(), qt);
    QCOMPARE(opener.finish(), u"kvprint: %1 has been removed\n"_s.arg(library));
}

KV_CORE_TEST(tst_spoiltplugin)
#include "tst_spoiltplugin.moc"
