// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/PDELog.h"

#include "PrivateRoot.h"
#include "printcore/PrintSettings.h"

#include <QDir>
#include <QFile>
#include <QPoint>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

namespace {
PrintSettings sampleSettings()
{
    return PrintSettings({{u"copies"_s, 3}, {u"name"_s, u"Größe <&> あ"_s}});
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

QByteArray listOf(PrintSettings settings)
{
    QByteArray data;
    PMPrintSettingsCreateDataRepresentation(&settings, &data, kPMDataFormatXMLDefault);
    return data;
}

bool somethingWasSaid = false;

/// Writes settings in that root folder; whether that was done in silence.
bool dump(PrivateRoot &root, PrintSettings settings, const QString &name)
{
    return root.run([&] {
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {
            somethingWasSaid = true;
        });
        _PDELog_PMPrintSettings_WriteToFile(&settings, name);
        return !somethingWasSaid;
    });
}
} // namespace

/// The dump of print settings, in a root folder of the test's own.
class SettingsDumpTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void writesAPropertyList();
    void writesUnderTheName_data();
    void writesUnderTheName();
    void keepsTheLastDumpWhenThereIsNoRoom();
    void refusesNamesThatLieElsewhere_data();
    void refusesNamesThatLieElsewhere();
    void replacesTheFileAsAWhole();
    void needsBothArguments();
    void settingsThatAreNoPropertyListLeaveTheFileAlone();
    void ignoresARootFolderThatCannotBeWritten();
    void ignoresAFolderInItsPlace();
};

void SettingsDumpTest::init()
{
    if (!PrivateRoot::isPossible()) {
        QSKIP("This user may have no root folder of its own.");
    }
}

void SettingsDumpTest::writesAPropertyList()
{
    PrivateRoot root;
    QVERIFY(dump(root, sampleSettings(), u"job"_s));
    QCOMPARE(root.entries(), QStringList({u"KvPDE_job.plist"_s}));
    const QByteArray written = contents(root.path(u"KvPDE_job.plist"_s));
    QCOMPARE(written, listOf(sampleSettings()));
    QVERIFY(written.startsWith("<?xml"));
    std::unique_ptr<PrintSettings> read;
    QCOMPARE(PMPrintSettingsCreateWithDataRepresentation(written, &read), noErr);
    QCOMPARE(read->value(u"name"_s), QVariant(u"Größe <&> あ"_s));
    QCOMPARE(root.records(), QByteArrayList());
}

void SettingsDumpTest::writesUnderTheName_data()
{
    const TestTable<QString> table("name");
    table.add("plain", u"job 1"_s);
    table.add("empty", u""_s);
    table.add("dots", u".."_s);
    table.add("percent signs", u"50% %@ %d %s"_s);
    table.add("beyond ASCII", u"Größe あ \U0001F600"_s);
    table.add("newline", u"a\nb"_s);
    table.add("longest", QString(255 - 6 - 6 - 7, u'A'));
}

void SettingsDumpTest::writesUnderTheName()
{
    QFETCH(QString, name);
    PrivateRoot root;
    QVERIFY(dump(root, sampleSettings(), name));
    const QString file = u"KvPDE_"_s + name + u".plist"_s;
    QCOMPARE(root.entries(), QStringList({file}));
    QCOMPARE(contents(root.path(file)), listOf(sampleSettings()));
}

void SettingsDumpTest::keepsTheLastDumpWhenThereIsNoRoom()
{
    PrivateRoot root;
    QVERIFY(dump(root, sampleSettings(), u"job"_s));
    const bool hasEnded = root.run([] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit noRoom{0, 0};
        setrlimit(RLIMIT_FSIZE, &noRoom);
        PrintSettings other({{u"copies"_s, 7}});
        _PDELog_PMPrintSettings_WriteToFile(&other, u"job"_s);
        return true;
    });
    QVERIFY(hasEnded);
    QCOMPARE(root.entries(), QStringList({u"KvPDE_job.plist"_s}));
    QCOMPARE(contents(root.path(u"KvPDE_job.plist"_s)), listOf(sampleSettings()));
}

void SettingsDumpTest::refusesNamesThatLieElsewhere_data()
{
    const TestTable<QString> table("name");
    table.add("slash", u"a/b"_s);
    table.add("parent", u"a/../b"_s);
    table.add("slash alone", u"/"_s);
    table.add("folder", u"a/"_s);
    table.add("null character", u"a\0b"_s);
    table.add("too long", QString(256, u'A'));
    table.add("enormous", QString(1 << 20, u'A'));
}

void SettingsDumpTest::refusesNamesThatLieElsewhere()
{
    QFETCH(QString, name);
    PrivateRoot root;
    // Folders that would make way for the name.
    QVERIFY(QDir().mkdir(root.path(u"KvPDE_a"_s)));
    QVERIFY(QDir().mkdir(root.path(u"KvPDE_"_s)));
    QVERIFY(dump(root, sampleSettings(), name));
    QCOMPARE(root.entries(), QStringList({u"KvPDE_"_s, u"KvPDE_a"_s}));
    QVERIFY(QDir(root.path(u"KvPDE_a"_s))
                .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    QVERIFY(QDir(root.path(u"KvPDE_"_s))
                .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

void SettingsDumpTest::replacesTheFileAsAWhole()
{
    PrivateRoot root;
    const QString path = root.path(u"KvPDE_job.plist"_s);
    QVERIFY(dump(root, PrintSettings({{u"long"_s, QString(5000, u'A')}}), u"job"_s));
    QFile former(path);
    QVERIFY(former.open(QIODevice::ReadOnly));
    QVERIFY(dump(root, sampleSettings(), u"job"_s));
    QCOMPARE(contents(path), listOf(sampleSettings()));
    // Who was reading the former file reads it to its end.
    QCOMPARE(former.readAll(), listOf(PrintSettings({{u"long"_s, QString(5000, u'A')}})));
    QCOMPARE(root.entries(), QStringList({u"KvPDE_job.plist"_s}));
}

void SettingsDumpTest::needsBothArguments()
{
    PrivateRoot root;
    PrintSettings settings = sampleSettings();
    QVERIFY(root.run([&settings] {
        _PDELog_PMPrintSettings_WriteToFile(nullptr, u"job"_s);
        _PDELog_PMPrintSettings_WriteToFile(&settings, QString());
        _PDELog_PMPrintSettings_WriteToFile(nullptr, QString());
        return true;
    }));
    QCOMPARE(root.entries(), QStringList());
    QVERIFY(dump(root, PrintSettings(), u"empty"_s));
    QCOMPARE(contents(root.path(u"KvPDE_empty.plist"_s)), listOf(PrintSettings()));
}

void SettingsDumpTest::settingsThatAreNoPropertyListLeaveTheFileAlone()
{
    PrivateRoot root;
    QVERIFY(dump(root, sampleSettings(), u"job"_s));
    QVERIFY(dump(root, PrintSettings({{u"point"_s, QPoint(1, 2)}}), u"job"_s));
    QVERIFY(dump(root, PrintSettings({{u"point"_s, QPoint(1, 2)}}), u"other"_s));
    QCOMPARE(root.entries(), QStringList({u"KvPDE_job.plist"_s}));
    QCOMPARE(contents(root.path(u"KvPDE_job.plist"_s)), listOf(sampleSettings()));
}

void SettingsDumpTest::ignoresARootFolderThatCannotBeWritten()
{
    PrivateRoot root;
    PrintSettings settings = sampleSettings();
    QVERIFY(root.runWithoutRights([&settings] {
        _PDELog_PMPrintSettings_WriteToFile(&settings, u"job"_s);
        return true;
    }));
    QCOMPARE(root.entries(), QStringList());
    QCOMPARE(root.records(), QByteArrayList());
}

void SettingsDumpTest::ignoresAFolderInItsPlace()
{
    PrivateRoot root;
    QVERIFY(QDir().mkdir(root.path(u"KvPDE_job.plist"_s)));
    QVERIFY(dump(root, sampleSettings(), u"job"_s));
    QCOMPARE(root.entries(), QStringList({u"KvPDE_job.plist"_s}));
    QVERIFY(QDir(root.path(u"KvPDE_job.plist"_s)).exists());
}

KV_CORE_TEST(SettingsDumpTest)
#include "tst_settingsdump.moc"
