// SPDX-License-Identifier: Apache-2.0
#include "printcore/CheckedFile.h"
#include "tests/support/AnotherUser.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

#include <sys/stat.h>
#include <unistd.h>

namespace {
/// A user who is neither root nor the one who runs the test.
constexpr uid_t anotherUser = 65533;
constexpr qint64 gigabyte = 1024 * 1024 * 1024;

QString open(const QString &path, std::optional<FileUse> trusted)
{
    const CheckedFile file =
        trusted ? CheckedFile::trusted(path, *trusted) : CheckedFile::ofAnybody(path);
    return file.fault();
}
} // namespace

Q_DECLARE_METATYPE(std::optional<FileUse>)

/// What is told of files and folders that are not used, and what is read of the others.
class tst_checkedfile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void fault_data();
    void fault();
    void nothingIsMissing();
    void trust_data();
    void trust();
    void foldersAboveTheTop_data();
    void foldersAboveTheTop();
    void anothersFile();
    void linksStayInTheirFolder();
    void linkIsFollowedToItsRealPath();
    void size_data();
    void size();
    void readsWhatItHasOpened();
    void unreadableFileHasNoBytes();

private: // NOLINT(readability-redundant-access-specifiers)
    QString path(const char *name) const { return mFolder.filePath(QLatin1String(name)); }
    bool setMode(const char *name, mode_t mode) const
    {
        return chmod(QFile::encodeName(path(name)).constData(), mode) == 0;
    }
    bool make(const char *name, mode_t mode, const QByteArray &bytes = "bytes") const;

    QTemporaryDir mFolder;
};

bool tst_checkedfile::make(const char *name, mode_t mode, const QByteArray &bytes) const
{
    QFile file(path(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
           setMode(name, mode);
}

void tst_checkedfile::initTestCase()
{
    const QDir folder(mFolder.path());
    QCOMPARE(chmod(QFile::encodeName(mFolder.path()).constData(), 0755), 0);
    QVERIFY(make("file", 0444) && make("closed file", 0));
    for (const char *name : {"folder", "closed folder", "unlisted folder"}) {
        QVERIFY(folder.mkpath(QLatin1String(name)));
    }
    QVERIFY(make("closed folder/file", 0444));
    QVERIFY(setMode("closed folder", 0) && setMode("unlisted folder", 0111));
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe")).constData(), 0644), 0);
    QVERIFY(QFile::link(path("file"), path("link")));
    QVERIFY(QFile::link(path("pipe"), path("link to a pipe")));
    QVERIFY(QFile::link(path("nothing"), path("link to nothing")));
    QVERIFY(QFile::link(path("loop"), path("loop")));
}

void tst_checkedfile::cleanupTestCase()
{
    // So that the folder can be removed by anybody.
    QVERIFY(setMode("closed folder", 0755) && setMode("unlisted folder", 0755));
}

void tst_checkedfile::fault_data()
{
    const TestTable<QString, std::optional<FileUse>, QString> table("path", "trusted", "fault");
    constexpr const char *link = "is a link to %1, which is missing";
    constexpr const char *unreached = "cannot be reached: Permission denied";
    constexpr const char *unread = "cannot be read: Permission denied";
    const struct
    {
        const char *name;
        std::optional<FileUse> trusted;
        const char *fault;
    } rows[] = {
        {"folder", FileUse::Enter, ""},
        {"folder", FileUse::List, ""},
        {"unlisted folder", FileUse::Enter, ""},
        {"unlisted folder", FileUse::List, unread},
        {"closed folder", FileUse::Enter, unread},
        {"nothing", FileUse::Enter, "is missing"},
        {"link to nothing", FileUse::List, link},
        {"file", FileUse::Enter, "is a file"},
        {"pipe", FileUse::List, "is a pipe"},
    };
    constexpr struct
    {
        const char *name;
        const char *fault;
        /// Of a trusted file, when that is another one.
        const char *trustedFault;
    } files[] = {
        {"file", "", nullptr},
        {"link", "", nullptr},
        {"nothing", "is missing", nullptr},
        {"nowhere/nothing", "is missing", nullptr},
        {"file/nothing", "cannot be reached: Not a directory", nullptr},
        {"link to nothing", link, nullptr},
        {"loop", "cannot be reached: Too many levels of symbolic links", nullptr},
        {"folder", "is a folder", nullptr},
        {"pipe", "is a pipe", nullptr},
        {"link to a pipe", "is a pipe", "is a link to %2, which is a pipe"},
        {"closed file", unread, nullptr},
        {"closed folder/file", unreached, nullptr},
    };
    const auto addRow = [this](const char *name, std::optional<FileUse> trusted, const char *told) {
        QString fault = QString::fromLatin1(told);
        fault.replace(u"%1"_s, path("nothing"));
        fault.replace(u"%2"_s, path("pipe"));
        QTest::addRow("%s, %d", name, trusted ? int(*trusted) : -1)
            << path(name) << trusted << fault;
    };
    for (const auto &row : rows) {
        addRow(row.name, row.trusted, row.fault);
    }
    for (const auto &file : files) {
        addRow(file.name, std::nullopt, file.fault);
        addRow(file.name, FileUse::Read, file.trustedFault ? file.trustedFault : file.fault);
    }
    table.add("device", u"/dev/null"_s, std::optional<FileUse>(), u"is a device"_s);
    table.add("trusted device", u"/dev/null"_s, std::optional(FileUse::Read), u"is a device"_s);
}

void tst_checkedfile::fault()
{
    QFETCH(const QString, path);
    QFETCH(const std::optional<FileUse>, trusted);
    QString fault;
    {
        const AnotherUser user;
        fault = open(path, trusted);
    }
    QTEST(fault.isNull() ? u""_s : fault, "fault");
}

void tst_checkedfile::nothingIsMissing()
{
    const AnotherUser user;
    for (const char *name : {"nothing", "nowhere/nothing"}) {
        QVERIFY2(CheckedFile::ofAnybody(path(name)).isMissing(), name);
        QVERIFY2(CheckedFile::trusted(path(name)).isMissing(), name);
    }
    for (const char *there : {"file", "pipe", "link to nothing", "loop", "closed folder/file"}) {
        QVERIFY2(!CheckedFile::ofAnybody(path(there)).isMissing(), there);
        QVERIFY2(!CheckedFile::trusted(path(there)).isMissing(), there);
    }
}

void tst_checkedfile::trust_data()
{
    QTest::addColumn<QString>("changed");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("fault");
    const QString written = u"can be written by others (mode %1)"_s;
    const QString within = u"is in %1, which "_s;
    for (const int mode : {0664, 0646, 0620, 0602}) {
        QTest::addRow("file %o", unsigned(mode))
            << u"top/way/file"_s << mode << written.arg(mode, 0, 8);
    }
    for (const int mode : {0775, 0757, 01777}) {
        for (const char *folder : {"top/way", "top"}) {
            QTest::addRow("%s %o", folder, unsigned(mode))
                << QString::fromLatin1(folder) << mode
                << within.arg(path(folder)) + written.arg(mode, 0, 8);
        }
    }
    for (const int mode : {0644, 0400, 0755, 04755}) {
        QTest::addRow("file %o", unsigned(mode)) << u"top/way/file"_s << mode << QString();
    }
}

void tst_checkedfile::trust()
{
    QFETCH(const QString, changed);
    QFETCH(const int, mode);
    QFETCH(const QString, fault);
    QVERIFY(QDir(mFolder.path()).mkpath(u"top/way"_s));
    QVERIFY(setMode("top", 0755) && setMode("top/way", 0755) && make("top/way/file", 0644));
    QVERIFY(setMode(changed.toUtf8().constData(), mode_t(mode)));
    const QString file = path("top/way/file");
    QCOMPARE(CheckedFile::trusted(file, FileUse::Read, path("top")).fault(), fault);
    QCOMPARE(CheckedFile::ofAnybody(file).fault(), QString());
    QVERIFY(setMode("top", 0755) && setMode("top/way", 0755) && QFile::remove(file));
}

void tst_checkedfile::foldersAboveTheTop_data()
{
    const TestTable<int, int, int, QString> table("mode", "owner", "group", "fault");
    const int us = int(geteuid());
    const int others = int(anotherUser);
    const QString written = u"is in %1, which can be written by others (mode %2)"_s;
    const QString owned = u"is in %1, which belongs to another user (%2)"_s;
    const QString above = path("above");
    table.add("closed to others", 0755, us, others, QString());
    table.add("sticky", 01777, us, others, QString());
    table.add("all", 0777, us, others, written.arg(above).arg(777));
    table.add("a group", 0775, us, others, written.arg(above).arg(775));
    table.add("the user's own group", 0775, us, us, QString());
    table.add("own group and all", 0777, us, us, written.arg(above).arg(777));
    table.add("another's", 0755, others, us, owned.arg(above).arg(others));
    table.add("another's sticky", 01777, others, us, owned.arg(above).arg(others));
}

void tst_checkedfile::foldersAboveTheTop()
{
    QFETCH(const int, mode);
    QFETCH(const int, owner);
    QFETCH(const int, group);
    QFETCH(const QString, fault);
    if (geteuid() != 0) {
        QSKIP("Only root can give files away.");
    }
    QVERIFY(QDir(mFolder.path()).mkpath(u"above/top"_s));
    QVERIFY(make("above/top/file", 0644));
    QCOMPARE(chown(QFile::encodeName(path("above")).constData(), uid_t(owner), gid_t(group)), 0);
    QVERIFY(setMode("above", mode_t(mode)));
    QCOMPARE(CheckedFile::trusted(path("above/top/file")).fault(), fault);
    QCOMPARE(CheckedFile::trusted(path("above/top"), FileUse::List, path("above/top")).fault(),
             fault);
}

void tst_checkedfile::anothersFile()
{
    if (geteuid() != 0) {
        QSKIP("Only root can give files away.");
    }
    QVERIFY(make("another's", 0644));
    QCOMPARE(chown(QFile::encodeName(path("another's")).constData(), anotherUser, 0), 0);
    const QString fault = u"belongs to another user (%1)"_s.arg(anotherUser);
    QCOMPARE(CheckedFile::trusted(path("another's")).fault(), fault);
    const CheckedFile folder = CheckedFile::trusted(mFolder.path(), FileUse::Enter, mFolder.path());
    QCOMPARE(folder.fault(), QString());
    QCOMPARE(folder.file(u"another's"_s).fault(), fault);
    QCOMPARE(CheckedFile::ofAnybody(path("another's")).fault(), QString());
}

void tst_checkedfile::linksStayInTheirFolder()
{
    QVERIFY(QDir(mFolder.path()).mkpath(u"links/below"_s));
    QVERIFY(make("links/file", 0644) && make("links/open", 0666) && make("links/below/file", 0644));
    QVERIFY(QFile::link(u"file"_s, path("links/within")));
    QVERIFY(QFile::link(u"below/file"_s, path("links/to below")));
    QVERIFY(QFile::link(u"open"_s, path("links/to open")));
    QVERIFY(QFile::link(u"../file"_s, path("links/outwards")));
    const QString folder = path("links");
    const CheckedFile checked = CheckedFile::trusted(folder, FileUse::Enter, folder);
    const struct
    {
        const char *link;
        QString fault;
    } rows[] = {
        {"within", QString()},
        {"to below", QString()},
        {"to open",
         u"is a link to %1/open, which can be written by others (mode 666)"_s.arg(folder)},
        {"outwards", u"is not in %1 but in %2"_s.arg(folder, mFolder.path())},
    };
    for (const auto &row : rows) {
        const QString name = QString::fromLatin1(row.link);
        QCOMPARE(checked.file(name).fault(), row.fault);
        QCOMPARE(CheckedFile::trusted(folder + u'/' + name).fault(), row.fault);
        QCOMPARE(CheckedFile::ofAnybody(folder + u'/' + name).fault(), QString());
    }
    QCOMPARE(CheckedFile::trusted(path("links/outwards"), FileUse::Read, mFolder.path()).fault(),
             QString());
}

void tst_checkedfile::linkIsFollowedToItsRealPath()
{
    QVERIFY(QDir(mFolder.path()).mkpath(u"real"_s));
    QVERIFY(make("real/file", 0644) && QFile::link(path("real"), path("way")));
    CheckedFile file = CheckedFile::trusted(path("way/file"), FileUse::Read, path("way"));
    QCOMPARE(file.fault(), QString());
    QCOMPARE(file.path(), path("real/file"));
    // The way leads elsewhere now; what was opened is what is read.
    QVERIFY(QFile::remove(path("way")) && QFile::link(path("folder"), path("way")));
    QCOMPARE(file.read(100), QByteArray("bytes"));
}

void tst_checkedfile::size_data()
{
    const TestTable<qint64, bool> table("size", "isRead");
    table.add("empty", qint64(0), true);
    table.add("the greatest", qint64(50'000), true);
    table.add("one more", qint64(50'001), false);
    table.add("1 GB", gigabyte, false);
    table.add("3 GB", 3 * gigabyte, false);
}

void tst_checkedfile::size()
{
    QFETCH(const qint64, size);
    QFETCH(const bool, isRead);
    QVERIFY(make("sized", 0644));
    QVERIFY(QFile(path("sized")).resize(size));
    CheckedFile file = CheckedFile::trusted(path("sized"));
    const QByteArray bytes = file.read(50'000);
    QCOMPARE(file.fault(), isRead ? QString() : u"has more than 50000 bytes"_s);
    QCOMPARE(bytes.isNull(), !isRead);
    QCOMPARE(qint64(bytes.size()), isRead ? size : 0);
}

void tst_checkedfile::readsWhatItHasOpened()
{
    QVERIFY(make("grown", 0644, "short"));
    CheckedFile grown = CheckedFile::ofAnybody(path("grown"));
    QVERIFY(make("grown", 0644, QByteArray(101, 'x')));
    QCOMPARE(grown.read(100), QByteArray());
    QCOMPARE(grown.fault(), u"has more than 100 bytes"_s);
    // A file of the system whose size is told as none.
    CheckedFile endless = CheckedFile::ofAnybody(u"/proc/self/maps"_s);
    QCOMPARE(endless.read(10), QByteArray());
    QCOMPARE(endless.fault(), u"has more than 10 bytes"_s);
}

void tst_checkedfile::unreadableFileHasNoBytes()
{
    CheckedFile missing = CheckedFile::trusted(path("nothing"));
    QVERIFY(missing.read(100).isNull());
    QCOMPARE(missing.fault(), u"is missing"_s);
    const CheckedFile nowhere =
        CheckedFile::trusted(path("nowhere"), FileUse::Enter, path("nowhere"));
    CheckedFile inNowhere = nowhere.file(u"file"_s);
    QVERIFY(inNowhere.isMissing() && inNowhere.read(100).isNull());
}

KV_CORE_TEST(tst_checkedfile)
#include "tst_checkedfile.moc"
