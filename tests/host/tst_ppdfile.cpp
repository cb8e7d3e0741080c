// SPDX-License-Identifier: Apache-2.0
#include "PrintingSite.h"
#include "cups/PPDFile.h"
#include "cups/PPDPaper.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

#include <sys/stat.h>

namespace {
std::unique_ptr<PPDFile> open(const QString &printer)
{
    QString error;
    auto ppd = PPDFile::open(PrintingSite::ppdPath(printer), &error);
    if (!ppd) {
        qWarning("%s", qPrintable(error));
    }
    return ppd;
}

QPageSize millimetres(double width, double height)
{
    return QPageSize(QSizeF(width, height), QPageSize::Millimeter, QString(),
                     QPageSize::ExactMatch);
}
} // namespace

class tst_ppdfile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultsAreMarked();
    void lookups();
    void marking();
    void pipe();
    void endlessFile();
    void paperOfAPageSize_data();
    void paperOfAPageSize();
    void customPageSize_data();
    void customPageSize();
};

void tst_ppdfile::defaultsAreMarked()
{
    const auto ppd = open(u"tape"_s);
    QVERIFY(ppd && ppd->get());
    QCOMPARE(ppd->markedChoice(u"KvAutoTapeCut"_s), u"ON"_s);
    QCOMPARE(ppd->markedChoice(u"KvHalfCut"_s), u"OFF"_s);
    QCOMPARE(ppd->markedChoice(u"PageSize"_s), u"T12x100"_s);
    QVERIFY(ppd->markedChoice(u"KvCutLabel"_s).isNull());
}

void tst_ppdfile::lookups()
{
    const auto ppd = open(u"label"_s);
    QVERIFY(ppd);
    QVERIFY(ppd->hasOption(u"KvCutAtEnd"_s));
    QVERIFY(!ppd->hasOption(u"KvHalfCut"_s));
    QVERIFY(!ppd->hasOption(QString()));
    QVERIFY(ppd->hasChoice(u"KvCutAtEnd"_s, u"ON"_s));
    QVERIFY(!ppd->hasChoice(u"KvCutAtEnd"_s, u"MAYBE"_s));
    QVERIFY(!ppd->hasChoice(u"KvHalfCut"_s, u"ON"_s));
    QCOMPARE(ppd->optionText(u"KvCutAtEnd"_s), u"Cut at End"_s);
    QVERIFY(ppd->optionText(u"KvHalfCut"_s).isNull());
    QCOMPARE(ppd->choices(u"KvMirror"_s), QStringList({u"OFF"_s, u"ON"_s}));
    QCOMPARE(ppd->choices(u"KvCutLabel"_s).size(), 99);
    QCOMPARE(ppd->choices(u"KvHalfCut"_s), QStringList());
}

void tst_ppdfile::marking()
{
    const auto ppd = open(u"label"_s);
    QVERIFY(ppd);
    QVERIFY(ppd->mark(u"KvCutLabel"_s, u"42"_s));
    QCOMPARE(ppd->markedChoice(u"KvCutLabel"_s), u"42"_s);
    QVERIFY(!ppd->mark(u"KvCutLabel"_s, u"100"_s));
    QCOMPARE(ppd->markedChoice(u"KvCutLabel"_s), u"42"_s);
    QVERIFY(!ppd->mark(u"KvHalfCut"_s, u"ON"_s));
    QVERIFY(ppd->markedChoice(u"KvHalfCut"_s).isNull());
}

void tst_ppdfile::pipe()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"pipe"_s);
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    QProcess writer;
    writer.start(u"cp"_s, {PrintingSite::ppdPath(u"tape"_s), path});
    QString error;
    const auto ppd = PPDFile::open(path, &error);
    QVERIFY2(ppd, qPrintable(error));
    QCOMPARE(ppd->markedChoice(u"PageSize"_s), u"T12x100"_s);
    QVERIFY(writer.waitForFinished());
}

void tst_ppdfile::endlessFile()
{
    QString error;
    QVERIFY(!PPDFile::open(u"/dev/zero"_s, &error));
    QCOMPARE(error, u"/dev/zero: is longer than 16777216 bytes"_s);
}

void tst_ppdfile::paperOfAPageSize_data()
{
    const TestTable<QString, QPageSize, QString, double> table("printer", "size", "name", "height");
    table.add("no page size: the marked one", u"tape"_s, QPageSize(), u"T12x100"_s, 283.46);
    table.add("a size of its own, where that is allowed", u"tape"_s, millimetres(20, 50),
              u"Custom"_s, 141.73);
    table.add("a size of its own, where that is not allowed", u"mark"_s, millimetres(20, 50),
              u"Custom.20x50mm"_s, 141.73);
    table.add("a size that the printer lacks", u"mark"_s, QPageSize(QPageSize::A4), u"A4"_s, 842.0);
}

void tst_ppdfile::paperOfAPageSize()
{
    QFETCH(const QString, printer);
    QFETCH(const QPageSize, size);
    QFETCH(const double, height);
    const auto ppd = open(printer);
    QVERIFY(ppd);
    const Paper paper = paperIn(*ppd, size);
    QTEST(paper.ppdPaperName(), "name");
    QVERIFY2(std::abs(paper.height() - height) < 0.5, qPrintable(QString::number(paper.height())));
}

void tst_ppdfile::customPageSize_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("key");
    const auto add = [](const char *printer, const char *name, const char *key) {
        QTest::addRow("%s %s", printer, name)
            << QString::fromLatin1(printer) << QString::fromLatin1(name)
            << QString::fromLatin1(key);
    };
    add("tape", "Custom.20x50mm", "Custom.20x50mm");
    add("tape", "Custom.2x5cm", "Custom.20x50mm");
    add("tape", "Custom.72x144", "Custom.25.4x50.8mm");
    add("tape", "Custom.12.5x33.25mm", "Custom.12.5x33.25mm");
    add("tape", "Custom.1x2in", "Custom.25.4x50.8mm");
    add("tape", "T12x100", "");
    add("tape", "Custom", "");
    add("tape", "Custom.", "");
    add("tape", "Custom.wide", "");
    add("tape", "Custom.0x0mm", "");
    add("tape", "Custom.-20x50mm", "");
    add("mark", "Custom.20x50mm", "");
}

void tst_ppdfile::customPageSize()
{
    QFETCH(const QString, printer);
    QFETCH(const QString, name);
    QFETCH(const QString, key);
    const auto ppd = open(printer);
    QVERIFY(ppd);
    const QPageSize size = customPageSizeIn(*ppd, name);
    QCOMPARE(size.isValid(), !key.isEmpty());
    QCOMPARE(size.key(), key);
}

KV_TEST(tst_ppdfile)
#include "tst_ppdfile.moc"
