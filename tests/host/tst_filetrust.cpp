// SPDX-License-Identifier: Apache-2.0
#include "BundleFolder.h"
#include "host/PanelBundle.h"
#include "host/ProblemReporter.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <cstdio>
#include <functional>
#include <thread>

#include <sys/stat.h>
#include <unistd.h>

namespace {
/// A user who is neither root nor the one who runs the test.
constexpr uid_t anotherUser = 65534;

bool setMode(const QString &path, mode_t mode)
{
    return chmod(QFile::encodeName(path).constData(), mode) == 0;
}

bool giveTo(const QString &path, uid_t user)
{
    return chown(QFile::encodeName(path).constData(), user, static_cast<gid_t>(-1)) == 0;
}

const QString libraryFile =
    QStringLiteral("Contents/Linux/libKVMQRVOptions-qt%1.so").arg(QT_VERSION_MAJOR);
const QString infoFile = QStringLiteral("Contents/Info.json");

/// What is told of a file at fault, in the words of what uses it: LIBRARY is told by its name
/// alone.
QString expected(const BundleFolder &folder, QString told)
{
    told.replace(QStringLiteral("LIBRARY"), QFileInfo(libraryFile).fileName());
    told.replace(QStringLiteral("BUNDLE"), folder.path(QString()));
    return told.replace(QStringLiteral("FOLDER"), folder.path());
}

bool hasMapped(const QString &folder)
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) &&
           maps.readAll().contains(' ' + QFile::encodeName(folder) + '/');
}

/// While it lives, a thread has a path lead to two targets by turns, as somebody would who can
/// write to the folder that it is in.
class Flipping
{
public:
    Flipping(const QString &path, const QString &one, const QString &other)
        : mThread([=, this] {
            const QByteArray place = QFile::encodeName(path);
            const QByteArray next = place + ".next";
            const QByteArray targets[] = {QFile::encodeName(one), QFile::encodeName(other)};
            for (int turn = 0; !mIsOver; turn = 1 - turn) {
                if (symlink(targets[turn].constData(), next.constData()) == 0) {
                    std::rename(next.constData(), place.constData());
                }
            }
        })
    {
    }
    ~Flipping()
    {
        mIsOver = true;
        mThread.join();
    }
    Flipping(const Flipping &) = delete;
    Flipping &operator=(const Flipping &) = delete;

private:
    std::atomic_bool mIsOver = false;
    std::thread mThread;
};
} // namespace

/// Whose bundles are loaded into an application.
class tst_filetrust : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void soundBundleIsLoaded();
    void bundleOpenToOthersIsLeftAlone_data();
    void bundleOpenToOthersIsLeftAlone();
    void bundleOfAnotherUserIsLeftAlone_data();
    void bundleOfAnotherUserIsLeftAlone();
    void restOfTheFolderIsLoaded();
    void folderMayBeALink();
    void resourceOpenToOthersIsNotUsed_data();
    void resourceOpenToOthersIsNotUsed();
    void linkFlippedMeanwhileLeadsToNoForeignCode();
    void pipeFlippedInMeanwhileKeepsNobodyWaiting();
};

void tst_filetrust::soundBundleIsLoaded()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    QCOMPARE(PanelBundle::loadAll(folder.path(), reporter).size(), std::size_t(1));
    QCOMPARE(problems, QStringList());
}

void tst_filetrust::bundleOpenToOthersIsLeftAlone_data()
{
    QTest::addColumn<BundleChange>("open");
    QTest::addColumn<QString>("told");
    const auto row = [](const char *name, const QString &file, unsigned mode, const char *told) {
        const BundleChange open = [file, mode](const BundleFolder &folder) {
            return folder.setMode(file, mode);
        };
        QTest::newRow(name) << open
                            << QStringLiteral("%1 can be written by others (mode %2)")
                                   .arg(QLatin1String(told))
                                   .arg(mode, 0, 8);
    };
    row("library, all", libraryFile, 0646, "Spoilt.pde: LIBRARY");
    row("library, group", libraryFile, 0664, "Spoilt.pde: LIBRARY");
    row("its folder", QStringLiteral("Contents/Linux"), 0757,
        "Spoilt.pde: LIBRARY is in BUNDLE/Contents/Linux, which");
    row("info file, all", infoFile, 0666, "BUNDLE/Contents/Info.json:");
    row("info file, group", infoFile, 0664, "BUNDLE/Contents/Info.json:");
    row("contents", QStringLiteral("Contents"), 0775,
        "BUNDLE/Contents/Info.json: is in BUNDLE/Contents, which");
    row("bundle", QStringLiteral(""), 01777, "BUNDLE");
    row("folder of bundles", QStringLiteral(".."), 0777, "FOLDER");
    const auto link = [](const char *name, const QString &file, const char *told) {
        const QString target = QStringLiteral(KV_BUNDLE_FOLDER "/KVMQRVOptions.pde/") + file;
        const BundleChange change = [file, target](const BundleFolder &folder) {
            return folder.replaceByLink(file, target);
        };
        QTest::newRow(name) << change
                            << QLatin1String(told) + QStringLiteral(" but in ") +
                                   QFileInfo(target).path();
    };
    link("library is a link elsewhere", libraryFile,
         "Spoilt.pde: LIBRARY is not in BUNDLE/Contents/Linux");
    link("info file is a link elsewhere", infoFile, "BUNDLE/Contents/Info.json: is not in BUNDLE");
}

void tst_filetrust::bundleOpenToOthersIsLeftAlone()
{
    QFETCH(const BundleChange, open);
    QFETCH(const QString, told);
    const BundleFolder folder;
    QVERIFY(folder.add() && open(folder));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    QVERIFY(PanelBundle::loadAll(folder.path(), reporter).empty());
    QCOMPARE(problems, QStringList(expected(folder, told)));
}

void tst_filetrust::bundleOfAnotherUserIsLeftAlone_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("told");
    QTest::newRow("library") << libraryFile << QStringLiteral("Spoilt.pde: LIBRARY");
    QTest::newRow("its folder") << QStringLiteral("Contents/Linux")
                                << QStringLiteral(
                                       "Spoilt.pde: LIBRARY is in BUNDLE/Contents/Linux, which");
    QTest::newRow("info file") << infoFile << QStringLiteral("BUNDLE/Contents/Info.json:");
    QTest::newRow("bundle") << QStringLiteral(".") << QStringLiteral("BUNDLE");
    QTest::newRow("folder of bundles") << QStringLiteral("..") << QStringLiteral("FOLDER");
}

void tst_filetrust::bundleOfAnotherUserIsLeftAlone()
{
    QFETCH(const QString, file);
    QFETCH(const QString, told);
    if (geteuid() != 0) {
        QSKIP("Only root can give files away.");
    }
    const BundleFolder folder;
    QVERIFY(folder.add() && giveTo(QDir::cleanPath(folder.path(file)), anotherUser));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    QVERIFY(PanelBundle::loadAll(folder.path(), reporter).empty());
    QCOMPARE(problems,
             QStringList(expected(
                 folder, told + QStringLiteral(" belongs to another user (%1)").arg(anotherUser))));
}

void tst_filetrust::restOfTheFolderIsLoaded()
{
    const BundleFolder folder;
    QVERIFY(folder.add() && folder.add(QStringLiteral("Sound.pde")));
    QVERIFY(setMode(folder.path(libraryFile), 0666));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    const PanelBundles bundles = PanelBundle::loadAll(folder.path(), reporter);
    QCOMPARE(bundles.size(), std::size_t(1));
    QCOMPARE(bundles.front()->name(), QStringLiteral("Sound.pde"));
    QCOMPARE(problems.size(), 1);
}

void tst_filetrust::folderMayBeALink()
{
    const BundleFolder folder;
    const QTemporaryDir elsewhere;
    const QString link = elsewhere.filePath(QStringLiteral("bundles"));
    QVERIFY(folder.add() && QFile::link(folder.path(), link));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    QCOMPARE(PanelBundle::loadAll(link, reporter).size(), std::size_t(1));
    QCOMPARE(problems, QStringList());
}

void tst_filetrust::resourceOpenToOthersIsNotUsed_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("form") << QStringLiteral("OptionPDE.ui");
    QTest::newRow("picture") << QStringLiteral("AHCMOnOffOffOff.png");
    QTest::newRow("texts") << QStringLiteral("en.qm");
}

void tst_filetrust::resourceOpenToOthersIsNotUsed()
{
    QFETCH(const QString, file);
    const BundleFolder folder;
    QVERIFY(folder.add() && folder.setMode(QStringLiteral("Contents/Resources/") + file, 0646));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    const PanelBundles bundles = PanelBundle::loadAll(folder.path(), reporter);
    QCOMPARE(bundles.size(), std::size_t(1));
    const QString told = QStringLiteral("Spoilt.pde: %1 can be written by others (mode 646)");
    QCOMPARE(problems, QStringList(told.arg(file)));
    QCOMPARE(bundles.front()->hasFormFault(reporter), file.endsWith(QStringLiteral(".ui")));
    QCOMPARE(problems.size(), 1);
}

void tst_filetrust::linkFlippedMeanwhileLeadsToNoForeignCode()
{
    const BundleFolder sound;
    const BundleFolder foreign;
    const QTemporaryDir shared;
    QVERIFY(sound.addOdd(QStringLiteral("Odd.pde"), QStringLiteral("Plain")));
    QVERIFY(foreign.addOdd(QStringLiteral("Odd.pde"), QStringLiteral("Plain")));
    QVERIFY(setMode(foreign.path(), 0777) && setMode(shared.path(), 0777));
    const QString link = shared.filePath(QStringLiteral("bundles"));
    const Flipping flipping(link, sound.path(), foreign.path());
    ProblemReporter reporter([](const QString &) {});
    int loaded = 0;
    for (int i = 0; i < 4000; ++i) {
        loaded += PanelBundle::load(link, QStringLiteral("Odd.pde"), reporter) ? 1 : 0;
    }
    QVERIFY(!hasMapped(foreign.path()));
    QVERIFY(loaded > 0);
    QVERIFY(hasMapped(sound.path()));
}

void tst_filetrust::pipeFlippedInMeanwhileKeepsNobodyWaiting()
{
    const BundleFolder folder;
    const QString table = QStringLiteral("Contents/Resources/en.qm");
    QVERIFY(folder.add() && folder.replaceByFolder(QStringLiteral("Contents/Linux")));
    const QString aside = QStringLiteral("Contents/Resources/aside.qm");
    QVERIFY(QFile::copy(folder.path(table), folder.path(aside)));
    const QString pipe = folder.path(QStringLiteral("Contents/Resources/pipe.qm"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0644), 0);
    const Flipping flipping(folder.path(table), folder.path(aside), pipe);
    ProblemReporter reporter([](const QString &) {});
    for (int i = 0; i < 2000; ++i) {
        QVERIFY(!PanelBundle::load(folder.path(), QStringLiteral("Spoilt.pde"), reporter));
    }
}

KV_TEST(tst_filetrust)
#include "tst_filetrust.moc"
