// SPDX-License-Identifier: Apache-2.0
#include "PrintingTest.h"
#include "ProgramRun.h"

#include <QDir>
#include <QImage>
#include <QImageReader>
#include <QSet>
#include <QTest>

namespace {
const QString o = u"-o"_s;

/// How many colours a picture has.
qsizetype coloursIn(const QImage &picture)
{
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            colours.insert(picture.pixel(x, y));
        }
    }
    return colours.size();
}
} // namespace

/// Pictures of the panel.
class tst_screenshot : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void size_data();
    void size();
    void optionsAreShown();
    void queueWithSavedOptions();
    void formerPictureIsReplaced();
    void pictureForAnotherProgram();
    void refused_data();
    void refused();
    void noRoomForThePicture();

private: // NOLINT(readability-redundant-access-specifiers)
    /// The panel's picture; null when none was written or it is no PNG.
    QImage picture(const QStringList &arguments);

    ProgramRun mRun;
};

QImage tst_screenshot::picture(const QStringList &arguments)
{
    const QString file = mSite.path(u"a picture.png"_s);
    QFile::remove(file);
    mRun = runKvprint(arguments + QStringList{u"--screenshot"_s, file});
    return mRun.status == 0 ? QImage(file, "PNG") : QImage();
}

void tst_screenshot::size_data()
{
    const TestTable<QString, QSize> table("printer", "size");
    table.add("nine options", u"all"_s, QSize(480, 292));
    table.add("without cut every, cut at end and cut marks", u"tape"_s, QSize(480, 292 - 4 * 26));
    table.add("labels", u"label"_s, QSize(480, 150));
}

void tst_screenshot::size()
{
    QFETCH(const QString, printer);
    QFETCH(const QSize, size);
    const QImage panel = picture({u"--ppd"_s, PrintingSite::ppdPath(printer)});
    QVERIFY2(!panel.isNull(), qPrintable(mRun.errors));
    QCOMPARE(panel.size(), size);
    QVERIFY(coloursIn(panel) > 10);
    QCOMPARE(mRun.output, QString());
    // The same panel on a queue of that printer.
    QVERIFY(picture({u"-d"_s, printer}) == panel);
}

void tst_screenshot::optionsAreShown()
{
    const QStringList tape{u"--ppd"_s, PrintingSite::ppdPath(u"tape"_s)};
    const QImage byDefault = picture(tape);
    const QImage halfCut = picture(tape + QStringList{o, u"KvHalfCut=ON"_s});
    const QImage preset = picture(tape + QStringList{u"--preset"_s, u"AHCMOnOnOffOff"_s});
    const QImage onFlags = picture(tape + QStringList{o, u"media=FL21x45"_s});
    QVERIFY(!byDefault.isNull() && !halfCut.isNull() && !preset.isNull() && !onFlags.isNull());
    QVERIFY(halfCut != byDefault);
    QVERIFY(preset == halfCut);
    QVERIFY(onFlags != byDefault);
    QVERIFY(picture(tape) == byDefault);
}

void tst_screenshot::queueWithSavedOptions()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=ON\n"));
    const QImage saved = picture({u"-d"_s, u"tape"_s});
    QVERIFY(!saved.isNull());
    QVERIFY(saved == picture({u"--ppd"_s, PrintingSite::ppdPath(u"tape"_s), o, u"KvHalfCut=ON"_s}));
}

void tst_screenshot::formerPictureIsReplaced()
{
    const QString file = mSite.file(u"former"_s, QByteArray(1 << 20, 'x'));
    const ProgramRun run =
        runKvprint({u"--ppd"_s, PrintingSite::ppdPath(u"tape"_s), u"--screenshot"_s, file});
    QCOMPARE(run.status, 0);
    QCOMPARE(QImageReader::imageFormat(file), QByteArray("png"));
    QVERIFY(QFileInfo(file).size() < (1 << 20));
    QCOMPARE(mSite.scheduler().jobIds(), QList<int>());
}

void tst_screenshot::pictureForAnotherProgram()
{
    const QString file = mSite.path(u"piped.png"_s);
    const QString line = u"'%1' --ppd '%2' --screenshot /dev/stdout | cat > '%3'"_s;
    runInShell(line.arg(QStringLiteral(KV_PRINT_PROGRAM), PrintingSite::ppdPath(u"tape"_s), file));
    const QImage piped(file, "PNG");
    QVERIFY(!piped.isNull());
    QVERIFY(piped == picture({u"--ppd"_s, PrintingSite::ppdPath(u"tape"_s)}));
}

void tst_screenshot::refused_data()
{
    const TestTable<QStringList, QString, int, QString> table("arguments", "file", "status",
                                                              "fault");
    const QStringList tape{u"--ppd"_s, PrintingSite::ppdPath(u"tape"_s)};
    const QString file = mSite.path(u"none.png"_s);
    const QString nowhere = mSite.path(u"nowhere/none.png"_s);
    const QString folder = QFileInfo(file).path();
    const QString unwritten = u": the picture could not be written"_s;
    table.add("no such folder", tape, nowhere, 3, nowhere + unwritten);
    table.add("a folder", tape, folder, 3, folder + unwritten);
    table.add("printer without the panel's options", {u"-d"_s, u"plain"_s}, file, 3,
              u"the printer has no panel"_s);
    table.add("unknown printer", {u"-d"_s, u"nowhere"_s}, file, 3,
              u"there is no printer nowhere"_s);
    table.add("missing PPD", {u"--ppd"_s, u"/nowhere.ppd"_s}, file, 3,
              u"/nowhere.ppd: No such file or directory"_s);
    table.add("half cut on flags", tape + QStringList{o, u"media=FL21x45"_s, o, u"KvHalfCut=ON"_s},
              file, 2, u"KvHalfCut=ON cannot be chosen on the paper FL21x45"_s);
    table.add("unknown preset", tape + QStringList{u"--preset"_s, u"None"_s}, file, 2,
              u"--preset None: the presets are: "_s);
}

void tst_screenshot::refused()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, file);
    QFETCH(const int, status);
    QFETCH(const QString, fault);
    const ProgramRun run = runKvprint(arguments + QStringList{u"--screenshot"_s, file});
    QCOMPARE(run.status, status);
    QVERIFY(run.tells(u"kvprint: "_s + fault));
    QVERIFY(!QFileInfo(file).isFile());
}

void tst_screenshot::noRoomForThePicture()
{
    const QString file = mSite.path(u"cut.png"_s);
    const QString line = u"trap '' XFSZ; ulimit -f 0; exec '%1' --ppd '%2' --screenshot '%3'"_s;
    const ProgramRun run = runInShell(
        line.arg(QStringLiteral(KV_PRINT_PROGRAM), PrintingSite::ppdPath(u"tape"_s), file));
    QCOMPARE(run.status, 3);
    QVERIFY(run.tells(file + u": the picture could not be written: "_s));
    QVERIFY(!QFileInfo(file).size());
}

KV_TEST(tst_screenshot)
#include "tst_screenshot.moc"
