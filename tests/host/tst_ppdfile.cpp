#include "PrintingSite.h"
#include "host/PPDFile.h"
#include "host/PPDPaper.h"

#include <QTest>

#include <cmath>

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
    void paperOfAPageSize_data();
    void paperOfAPageSize();
    void customPageSize_data();
    void customPageSize();
};

void tst_ppdfile::defaultsAreMarked()
{
    const auto ppd = open(QStringLiteral("tape"));
    QVERIFY(ppd && ppd->get());
    QCOMPARE(ppd->markedChoice(u"KvAutoTapeCut"_qs), u"ON"_qs);
    QCOMPARE(ppd->markedChoice(u"KvHalfCut"_qs), u"OFF"_qs);
    QCOMPARE(ppd->markedChoice(u"PageSize"_qs), u"T12x100"_qs);
    QVERIFY(ppd->markedChoice(u"KvCutLabel"_qs).isNull());
}

void tst_ppdfile::lookups()
{
    const auto ppd = open(QStringLiteral("label"));
    QVERIFY(ppd);
    QVERIFY(ppd->hasOption(u"KvCutAtEnd"_qs));
    QVERIFY(!ppd->hasOption(u"KvHalfCut"_qs));
    QVERIFY(!ppd->hasOption(QString()));
    QVERIFY(ppd->hasChoice(u"KvCutAtEnd"_qs, u"ON"_qs));
    QVERIFY(!ppd->hasChoice(u"KvCutAtEnd"_qs, u"MAYBE"_qs));
    QVERIFY(!ppd->hasChoice(u"KvHalfCut"_qs, u"ON"_qs));
    QCOMPARE(ppd->optionText(u"KvCutAtEnd"_qs), u"Cut at End"_qs);
    QVERIFY(ppd->optionText(u"KvHalfCut"_qs).isNull());
    QCOMPARE(ppd->choices(u"KvMirror"_qs), QStringList({u"OFF"_qs, u"ON"_qs}));
    QCOMPARE(ppd->choices(u"KvCutLabel"_qs).size(), 99);
    QCOMPARE(ppd->choices(u"KvHalfCut"_qs), QStringList());
}

void tst_ppdfile::marking()
{
    const auto ppd = open(QStringLiteral("label"));
    QVERIFY(ppd);
    QVERIFY(ppd->mark(u"KvCutLabel"_qs, u"42"_qs));
    QCOMPARE(ppd->markedChoice(u"KvCutLabel"_qs), u"42"_qs);
    QVERIFY(!ppd->mark(u"KvCutLabel"_qs, u"100"_qs));
    QCOMPARE(ppd->markedChoice(u"KvCutLabel"_qs), u"42"_qs);
    QVERIFY(!ppd->mark(u"KvHalfCut"_qs, u"ON"_qs));
    QVERIFY(ppd->markedChoice(u"KvHalfCut"_qs).isNull());
}

void tst_ppdfile::paperOfAPageSize_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QPageSize>("size");
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("height");
    QTest::newRow("no page size: the marked one")
        << u"tape"_qs << QPageSize() << u"T12x100"_qs << 283.46;
    QTest::newRow("a size of its own, where that is allowed")
        << u"tape"_qs << millimetres(20, 50) << u"Custom"_qs << 141.73;
    QTest::newRow("a size of its own, where that is not allowed")
        << u"mark"_qs << millimetres(20, 50) << u"Custom.20x50mm"_qs << 141.73;
    QTest::newRow("a size that the printer lacks")
        << u"mark"_qs << QPageSize(QPageSize::A4) << u"A4"_qs << 842.0;
}

void tst_ppdfile::paperOfAPageSize()
{
    QFETCH(const QString, printer);
    QFETCH(const QPageSize, size);
    QFETCH(const QString, name);
    QFETCH(const double, height);
    const auto ppd = open(printer);
    QVERIFY(ppd);
    const Paper paper = paperIn(*ppd, size);
    QCOMPARE(paper.ppdPaperName(), name);
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
