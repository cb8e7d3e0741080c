// SPDX-License-Identifier: Apache-2.0
#include "ProgramRun.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

/// The example of another maker's panel, built against what is installed.
class tst_outoftree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ownTestPasses();
    void choicesOfBothPanelsAreInTheJob();

private: // NOLINT(readability-redundant-access-specifiers)
    QString path(const char *file) const { return mFolder.filePath(QLatin1String(file)); }
    /// Runs CMake; false when it fails, with what it has told.
    bool cmake(const QStringList &arguments, const QStringList &variables = {}) const;

    QTemporaryDir mFolder;
    const QString mExample = QStringLiteral(KV_EXAMPLES "/panel");
};

bool tst_outoftree::cmake(const QStringList &arguments, const QStringList &variables) const
{
    const ProgramRun run = runProgram(QStringLiteral(KV_CMAKE), arguments, {{}, variables});
    if (run.status != 0) {
        qWarning().noquote() << run.output << run.errors;
    }
    return run.status == 0;
}

void tst_outoftree::initTestCase()
{
    const QString build = path("build");
    QVERIFY(cmake({u"--install"_s, QStringLiteral(KV_BUILD_FOLDER), u"--prefix"_s, u"/usr"_s},
                  {u"DESTDIR="_s + mFolder.path()}));
    QVERIFY(
        cmake({u"-S"_s, mExample, u"-B"_s, build, u"-G"_s, u"Ninja"_s,
               u"-DCMAKE_PREFIX_PATH="_s + path("usr"), u"-DCMAKE_DISABLE_FIND_PACKAGE_Qt5=ON"_s}));
    QVERIFY(cmake({u"--build"_s, build}));
    QVERIFY(cmake({u"--install"_s, build}));
}

void tst_outoftree::ownTestPasses()
{
    const ProgramRun run = runProgram(QStringLiteral(KV_CTEST),
                                      {u"--test-dir"_s, path("build"), u"--output-on-failure"_s});
    QVERIFY2(run.status == 0, qPrintable(run.output));
    QVERIFY2(run.output.contains(u"100% tests passed, 0 tests failed out of 1"_s),
             qPrintable(run.output));
}

void tst_outoftree::choicesOfBothPanelsAreInTheJob()
{
    const QString document = mExample + u"/thermal.ppd"_s;
    const ProgramRun run =
        runProgram(path("usr/bin/kvprint"),
                   {u"--dry-run"_s, u"--ppd"_s, document, u"-o"_s, u"ExPrintSpeed=250"_s, u"-o"_s,
                    u"ExPeelOff=ON"_s, u"-o"_s, u"KvCutAtEnd=ON"_s, document});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.lines(), QStringList({u"Cut Every: No"_s, u"Cut at End: Yes"_s,
                                       u"Mirror Printing: No"_s, u"Print speed: 250 mm/s"_s,
                                       u"Darkness, 0 to 15: 8"_s, u"Peel off labels: On"_s,
                                       u"lp -o ExPrintSpeed=250 -o ExPeelOff=ON -o ExDarkness=8 "
                                       "-o CutMedia=EndOfJob -o MirrorPrint=False -- "_s +
                                           document}));
}

KV_CORE_TEST(tst_outoftree)
#include "tst_outoftree.moc"
