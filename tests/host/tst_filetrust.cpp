#include "BundleFolder.h"
#include "host/FileTrust.h"
#include "host/PanelBundle.h"
#include "host/ProblemReporter.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <QTemporaryDir>

#include <functional>

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
    void missingFileIsNoMatterOfTrust();
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
    QTest::addColumn<QString>("reason");
    const auto opened = [](const QString &file, mode_t mode) -> BundleChange {
        return [file, mode](const BundleFolder &folder) {
            return setMode(file.isNull() ? folder.path() : folder.path(file), mode);
        };
    };
    const auto reason = [](const QString &file, const char *mode) {
        return QStringLiteral("%1 can be written by others (mode %2)")
            .arg(file, QLatin1String(mode));
    };
    const QString linux = QStringLiteral("Contents/Linux");
    QTest::newRow("libraryFile, all") << opened(libraryFile, 0646) << reason(libraryFile, "646");
    QTest::newRow("libraryFile, group") << opened(libraryFile, 0664) << reason(libraryFile, "664");
    QTest::newRow("its folder") << opened(linux, 0757) << reason(linux, "757");
    QTest::newRow("contents") << opened(QStringLiteral("Contents"), 0775)
                              << reason(QStringLiteral("Contents"), "775");
    QTest::newRow("bundle") << opened(QStringLiteral(""), 01777)
                            << reason(QStringLiteral(""), "1777");
    QTest::newRow("folder of bundles") << opened(QString(), 0777) << reason(QString(), "777");
    const BundleChange link = [](const BundleFolder &folder) {
        return folder.remove(libraryFile) &&
               QFile::link(QStringLiteral(KV_BUNDLE_FOLDER "/KVMQRVOptions.pde/") + libraryFile,
                           folder.path(libraryFile));
    };
    QTest::newRow("link elsewhere") << link << libraryFile + QStringLiteral(" is not in ");
}

void tst_filetrust::bundleOpenToOthersIsLeftAlone()
{
    QFETCH(const BundleChange, open);
    QFETCH(const QString, reason);
    const BundleFolder folder;
    QVERIFY(folder.add() && open(folder));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    QVERIFY(PanelBundle::loadAll(folder.path(), reporter).empty());
    QCOMPARE(problems.size(), 1);
    const QString place =
        reason.startsWith(u' ') ? folder.path() : folder.path() + QStringLiteral("/Spoilt.pde");
    QVERIFY2(problems.first().startsWith(QStringLiteral("Spoilt.pde is not loaded: ") + place),
             qPrintable(problems.first()));
    QVERIFY2(problems.first().contains(reason), qPrintable(problems.first()));
}

void tst_filetrust::bundleOfAnotherUserIsLeftAlone_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("libraryFile") << libraryFile;
    QTest::newRow("its folder") << QStringLiteral("Contents/Linux");
    QTest::newRow("bundle") << QStringLiteral(".");
    QTest::newRow("folder of bundles") << QStringLiteral("..");
}

void tst_filetrust::bundleOfAnotherUserIsLeftAlone()
{
    QFETCH(const QString, file);
    if (geteuid() != 0) {
        QSKIP("Only root can give files away.");
    }
    const BundleFolder folder;
    const QString given = QDir::cleanPath(folder.path(file));
    QVERIFY(folder.add() && giveTo(given, anotherUser));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    QVERIFY(PanelBundle::loadAll(folder.path(), reporter).empty());
    QCOMPARE(problems,
             QStringList(QStringLiteral("Spoilt.pde is not loaded: %1 belongs to another user (%2)")
                             .arg(given)
                             .arg(anotherUser)));
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

void tst_filetrust::missingFileIsNoMatterOfTrust()
{
    const QTemporaryDir folder;
    QCOMPARE(distrust(folder.path(), folder.filePath(QStringLiteral("none.so"))), QString());
    QCOMPARE(distrust(folder.filePath(QStringLiteral("none"))), QString());
}

KV_TEST(tst_filetrust)
#include "tst_filetrust.moc"
