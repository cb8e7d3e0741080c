#include "printcore/FileAccess.h"
#include "tests/support/AnotherUser.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

/// What is told of files and folders that cannot be opened.
class tst_fileaccess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void fault_data();
    void fault();
    void nothingIsMissing();

private: // NOLINT(readability-redundant-access-specifiers)
    QString path(const char *name) const { return mFolder.filePath(QLatin1String(name)); }
    bool make(const char *name, mode_t mode) const;

    QTemporaryDir mFolder;
};

bool tst_fileaccess::make(const char *name, mode_t mode) const
{
    QFile file(path(name));
    return file.open(QIODevice::WriteOnly) &&
           chmod(QFile::encodeName(path(name)).constData(), mode) == 0;
}

void tst_fileaccess::initTestCase()
{
    const QDir folder(mFolder.path());
    QCOMPARE(chmod(QFile::encodeName(mFolder.path()).constData(), 0755), 0);
    QVERIFY(make("file", 0444) && make("closed file", 0));
    for (const char *name : {"folder", "closed folder", "unlisted folder"}) {
        QVERIFY(folder.mkpath(QLatin1String(name)));
    }
    QVERIFY(make("closed folder/file", 0444));
    QCOMPARE(chmod(QFile::encodeName(path("closed folder")).constData(), 0), 0);
    QCOMPARE(chmod(QFile::encodeName(path("unlisted folder")).constData(), 0111), 0);
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0644), 0);
    QVERIFY(QFile::link(path("file"), path("link")));
    QVERIFY(QFile::link(path("nothing"), path("link to nothing")));
    QVERIFY(QFile::link(path("loop"), path("loop")));
}

void tst_fileaccess::cleanupTestCase()
{
    // So that the folder can be removed by anybody.
    QCOMPARE(chmod(QFile::encodeName(path("closed folder")).constData(), 0755), 0);
    QCOMPARE(chmod(QFile::encodeName(path("unlisted folder")).constData(), 0755), 0);
}

void tst_fileaccess::fault_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("access");
    QTest::addColumn<QString>("fault");
    constexpr const char *link = "is a link to %1, which is missing";
    constexpr const char *unreached = "cannot be reached: Permission denied";
    constexpr const char *unread = "cannot be read: Permission denied";
    constexpr struct
    {
        const char *name;
        FileAccess access;
        const char *fault;
    } rows[] = {
        {"file", FileAccess::ReadFile, ""},
        {"link", FileAccess::ReadFile, ""},
        {"nothing", FileAccess::ReadFile, "is missing"},
        {"nowhere/nothing", FileAccess::ReadFile, "is missing"},
        {"file/nothing", FileAccess::ReadFile, "cannot be reached: Not a directory"},
        {"link to nothing", FileAccess::ReadFile, link},
        {"loop", FileAccess::ReadFile, "cannot be reached: Too many levels of symbolic links"},
        {"folder", FileAccess::ReadFile, "is a folder"},
        {"pipe", FileAccess::ReadFile, "is a pipe"},
        {"closed file", FileAccess::ReadFile, unread},
        {"closed folder/file", FileAccess::ReadFile, unreached},
        {"folder", FileAccess::EnterFolder, ""},
        {"folder", FileAccess::ListFolder, ""},
        {"unlisted folder", FileAccess::EnterFolder, ""},
        {"unlisted folder", FileAccess::ListFolder, unread},
        {"closed folder", FileAccess::EnterFolder, unread},
        {"nothing", FileAccess::EnterFolder, "is missing"},
        {"link to nothing", FileAccess::ListFolder, link},
        {"file", FileAccess::EnterFolder, "is a file"},
        {"pipe", FileAccess::ListFolder, "is a pipe"},
    };
    for (const auto &row : rows) {
        QString fault = QString::fromLatin1(row.fault);
        fault.replace(QStringLiteral("%1"), path("nothing"));
        QTest::addRow("%s, %d", row.name, int(row.access))
            << path(row.name) << int(row.access) << fault;
    }
    QTest::newRow("device") << QStringLiteral("/dev/null") << int(FileAccess::ReadFile)
                            << QStringLiteral("is a device");
}

void tst_fileaccess::fault()
{
    QFETCH(const QString, path);
    QFETCH(const int, access);
    QString fault;
    {
        const AnotherUser user;
        fault = accessFault(path, FileAccess(access));
    }
    QTEST(fault.isNull() ? QStringLiteral("") : fault, "fault");
}

void tst_fileaccess::nothingIsMissing()
{
    const AnotherUser user;
    QVERIFY(isMissing(path("nothing")));
    for (const char *there : {"file", "pipe", "link to nothing", "loop", "closed folder/file"}) {
        QVERIFY2(!isMissing(path(there)), there);
    }
}

KV_CORE_TEST(tst_fileaccess)
#include "tst_fileaccess.moc"
