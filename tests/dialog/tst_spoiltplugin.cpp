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
    void initTestCase_data();
    void initTestCase();
    void libraryIsNotLoaded_data();
    void libraryIsNotLoaded();
    void nothingIsLoadedFromTheCurrentFolder();
    void removedBeforeTheFirstDialog();
    void removedWhileDialogsAreOff();

private: // NOLINT(readability-redundant-access-specifiers)
    PrintingSite mSite;
};

void tst_spoiltplugin::initTestCase_data()
{
    QTest::addColumn<QString>("qt");
    for (const QString &qt : QStringLiteral(KV_QT_VERSIONS).split(u',')) {
        QTest::newRow(qPrintable(QStringLiteral("Qt ") + qt)) << qt;
    }
}

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
    row("open to others", library, setMode(0646),
        "is not loaded: %1 can be written by others (mode 646)");
    row("folder open to others", folder, setMode(0777),
        "is not loaded: %1 can be written by others (mode 777)");
    row("core open to others", core, setMode(0664),
        "is not loaded: %1 can be written by others (mode 664)");
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
    const QTemporaryDir folder;
    QVERIFY(PlugInTree::addDecoys(folder.path()));

    DialogOpener opener(qt, folder.path(), folder.path(), tree.libraries());
    for (int dialog = 0; dialog < 2; ++dialog) {
        QVERIFY(!opener.tabs(tape).contains(kPanelTab));
    }
    QVERIFY(!opener.hasLoaded(QStringLiteral("libkvprintdialog-qt%1.so").arg(qt)));
    const QString library =
        QStringLiteral("%1/kvprint/libkvprintdialog-qt%2.so").arg(tree.libraries(), qt);
    const QString told = fault.contains(u'%') ? fault.arg(paths.first()) : fault;
    QCOMPARE(opener.finish(), QStringLiteral("kvprint: %1 %2\n").arg(library, told));
}

void tst_spoiltplugin::nothingIsLoadedFromTheCurrentFolder()
{
    QFETCH_GLOBAL(const QString, qt);
    const QTemporaryDir folder;
    QVERIFY(PlugInTree::addDecoys(folder.path()));
    DialogOpener opener(qt, folder.path(), folder.path());
    QVERIFY(opener.tabs(tape).contains(kPanelTab));
    QVERIFY(opener.hasLoaded(QStringLiteral("libKVMQRVOptions-qt%1.so").arg(qt)));
    QVERIFY(!opener.hasLoadedFrom(folder.path()));
    QCOMPARE(opener.finish(), QStringLiteral(""));
}

void tst_spoiltplugin::removedBeforeTheFirstDialog()
{
    QFETCH_GLOBAL(const QString, qt);
    const PlugInTree tree;
    QVERIFY(tree.isCopied());
    const QString plugIn =
        QStringLiteral("%1/qt%2/plugins/generic/libkvprintdialog.so").arg(tree.libraries(), qt);
    const QTemporaryDir folder;
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
