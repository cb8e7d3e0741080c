// SPDX-License-Identifier: Apache-2.0
#include "BundleFolder.h"
#include "CutterPrinter.h"
#include "cups/PPDFile.h"
#include "host/PanelBundles.h"
#include "host/ProblemReporter.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <chrono>
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

const QString libraryFile = u"Contents/Linux/libKVMQRVOptions-qt%1.so"_s.arg(QT_VERSION_MAJOR);
const QString infoFile = u"Contents/Info.json"_s;
const QString cutterMapFolder = u"Contents/Resources/printers"_s;
const QString cutterMap = cutterMapFolder + u"/cutter.json"_s;

/// What is told of a file at fault, in the words of what uses it: LIBRARY is told by its name
/// alone.
QString expected(const BundleFolder &folder, QString told)
{
    told.replace(u"LIBRARY"_s, QFileInfo(libraryFile).fileName());
    told.replace(u"BUNDLE"_s, folder.path(QString()));
    return told.replace(u"FOLDER"_s, folder.path());
}

bool hasMapped(const QString &folder)
{
    QFile maps(u"/proc/self/maps"_s);
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
                // Still several turns while a bundle is loaded.
                std::this_thread::sleep_for(std::chrono::microseconds(20));
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
    void mapOpenToOthersIsNotUsed_data();
    void mapOpenToOthersIsNotUsed();
    void linkFlippedMeanwhileLeadsToNoForeignCode();
    void pipeFlippedInMeanwhileKeepsNobodyWaiting();
};

void tst_filetrust::soundBundleIsLoaded()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    QCOMPARE(PanelBundles::load(folder.path(), reporter).size(), std::size_t(1));
    QCOMPARE(problems, QStringList());
}

void tst_filetrust::bundleOpenToOthersIsLeftAlone_data()
{
    const TestTable<BundleChange, QString> table("open", "told");
    const auto row = [&table](const char *name, const QString &file, unsigned mode,
                              const char *told) {
        table.add(
            name, changing(&BundleFolder::setMode, file, mode),
            u"%1 can be written by others (mode %2)"_s.arg(QLatin1String(told)).arg(mode, 0, 8));
    };
    row("library, all", libraryFile, 0646, "Spoilt.pde: LIBRARY");
    row("library, group", libraryFile, 0664, "Spoilt.pde: LIBRARY");
    row("its folder", u"Contents/Linux"_s, 0757,
        "Spoilt.pde: LIBRARY is in BUNDLE/Contents/Linux, which");
    row("info file, all", infoFile, 0666, "BUNDLE/Contents/Info.json:");
    row("info file, group", infoFile, 0664, "BUNDLE/Contents/Info.json:");
    row("contents", u"Contents"_s, 0775, "BUNDLE/Contents/Info.json: is in BUNDLE/Contents, which");
    row("bundle", u""_s, 01777, "BUNDLE");
    row("folder of bundles", u".."_s, 0777, "FOLDER");
    const auto link = [&table](const char *name, const QString &file, const char *told) {
        const QString target = QStringLiteral(KV_BUNDLE_FOLDER "/KVMQRVOptions.pde/") + file;
        table.add(name, changing(&BundleFolder::replaceByLink, file, target),
                  QLatin1String(told) + u" but in "_s + QFileInfo(target).path());
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
    QVERIFY(PanelBundles::load(folder.path(), reporter).empty());
    QCOMPARE(problems, QStringList(expected(folder, told)));
}

void tst_filetrust::bundleOfAnotherUserIsLeftAlone_data()
{
    const TestTable<QString, QString> table("file", "told");
    table.add("library", libraryFile, u"Spoilt.pde: LIBRARY"_s);
    table.add("its folder", u"Contents/Linux"_s,
              u"Spoilt.pde: LIBRARY is in BUNDLE/Contents/Linux, which"_s);
    table.add("info file", infoFile, u"BUNDLE/Contents/Info.json:"_s);
    table.add("bundle", u"."_s, u"BUNDLE"_s);
    table.add("folder of bundles", u".."_s, u"FOLDER"_s);
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
    QVERIFY(PanelBundles::load(folder.path(), reporter).empty());
    QCOMPARE(problems, QStringList(expected(
                           folder, told + u" belongs to another user (%1)"_s.arg(anotherUser))));
}

void tst_filetrust::restOfTheFolderIsLoaded()
{
    const BundleFolder folder;
    QVERIFY(folder.add() && folder.add(u"Sound.pde"_s));
    QVERIFY(setMode(folder.path(libraryFile), 0666));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    const PanelBundles bundles = PanelBundles::load(folder.path(), reporter);
    QCOMPARE(bundles.size(), std::size_t(1));
    QCOMPARE(bundles.front()->name(), u"Sound.pde"_s);
    QCOMPARE(problems.size(), 1);
}

void tst_filetrust::folderMayBeALink()
{
    const BundleFolder folder;
    const QTemporaryDir elsewhere;
    const QString link = elsewhere.filePath(u"bundles"_s);
    QVERIFY(folder.add() && QFile::link(folder.path(), link));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    QCOMPARE(PanelBundles::load(link, reporter).size(), std::size_t(1));
    QCOMPARE(problems, QStringList());
}

void tst_filetrust::resourceOpenToOthersIsNotUsed_data()
{
    const TestTable<QString> table("file");
    table.add("form", u"OptionPDE.ui"_s);
    table.add("picture", u"AHCMOnOffOffOff.png"_s);
    table.add("texts", u"en.qm"_s);
}

void tst_filetrust::resourceOpenToOthersIsNotUsed()
{
    QFETCH(const QString, file);
    const BundleFolder folder;
    QVERIFY(folder.add() && folder.setMode(u"Contents/Resources/"_s + file, 0646));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    const PanelBundles bundles = PanelBundles::load(folder.path(), reporter);
    QCOMPARE(bundles.size(), std::size_t(1));
    const QString told = u"Spoilt.pde: %1 can be written by others (mode 646)"_s;
    QCOMPARE(problems, QStringList(told.arg(file)));
    QCOMPARE(bundles.front()->hasFormFault(reporter), file.endsWith(u".ui"_s));
    QCOMPARE(problems.size(), 1);
}

void tst_filetrust::mapOpenToOthersIsNotUsed_data()
{
    const TestTable<BundleChange, QString> table("open", "told");
    table.add("nothing", changing(&BundleFolder::setMode, cutterMap, 0644U), QString());
    table.add("all", changing(&BundleFolder::setMode, cutterMap, 0646U),
              u"MAP can be written by others (mode 646)"_s);
    table.add("group", changing(&BundleFolder::setMode, cutterMap, 0664U),
              u"MAP can be written by others (mode 664)"_s);
    table.add(
        "its folder", changing(&BundleFolder::setMode, cutterMapFolder, 0777U),
        u"MAP is in BUNDLE/%1, which can be written by others (mode 777)"_s.arg(cutterMapFolder));
    table.add(
        "link elsewhere",
        changing(&BundleFolder::replaceByLink, cutterMap, QStringLiteral(KV_MAPS "/standard.json")),
        QStringLiteral("MAP is not in BUNDLE/%1 but in " KV_MAPS).arg(cutterMapFolder));
}

void tst_filetrust::mapOpenToOthersIsNotUsed()
{
    QFETCH(const BundleChange, open);
    QFETCH(QString, told);
    const BundleFolder folder;
    QFile standard(QStringLiteral(KV_MAPS "/standard.json"));
    QVERIFY(standard.open(QIODevice::ReadOnly) && folder.create(cutterMap, standard.readAll()));
    QVERIFY(open(folder));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    PrinterMaps maps;
    maps.addFolder(folder.path(cutterMapFolder), reporter);
    told.replace(u"MAP"_s, folder.path(cutterMap));
    QCOMPARE(problems.join(u'\n'), expected(folder, told));
    QString error;
    const auto ppd = PPDFile::read(CutterPrinter::ppd("None"), u"cutter"_s, &error);
    QVERIFY2(ppd, qPrintable(error));
    QCOMPARE(bool(maps.mapFor(*ppd)), told.isEmpty());
}

void tst_filetrust::linkFlippedMeanwhileLeadsToNoForeignCode()
{
    const BundleFolder sound;
    const BundleFolder foreign;
    const QTemporaryDir shared;
    QVERIFY(sound.addOdd(u"Odd.pde"_s, u"Plain"_s));
    QVERIFY(foreign.addOdd(u"Odd.pde"_s, u"Plain"_s));
    QVERIFY(setMode(foreign.path(), 0777) && setMode(shared.path(), 0777));
    const QString link = shared.filePath(u"bundles"_s);
    const Flipping flipping(link, sound.path(), foreign.path());
    ProblemReporter reporter([](const QString &) {});
    int loaded = 0;
    for (int i = 0; i < 4000; ++i) {
        loaded += PanelBundle::load(link, u"Odd.pde"_s, reporter) ? 1 : 0;
    }
    QVERIFY(!hasMapped(foreign.path()));
    QVERIFY(loaded > 0);
    QVERIFY(hasMapped(sound.path()));
}

void tst_filetrust::pipeFlippedInMeanwhileKeepsNobodyWaiting()
{
    const BundleFolder folder;
    const QString table = u"Contents/Resources/en.qm"_s;
    QVERIFY(folder.add() && folder.replaceByFolder(u"Contents/Linux"_s));
    const QString aside = u"Contents/Resources/aside.qm"_s;
    QVERIFY(QFile::copy(folder.path(table), folder.path(aside)));
    const QString pipe = folder.path(u"Contents/Resources/pipe.qm"_s);
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0644), 0);
    const Flipping flipping(folder.path(table), folder.path(aside), pipe);
    ProblemReporter reporter([](const QString &) {});
    for (int i = 0; i < 2000; ++i) {
        QVERIFY(!PanelBundle::load(folder.path(), u"Spoilt.pde"_s, reporter));
    }
}

KV_TEST(tst_filetrust)
#include "tst_filetrust.moc"
