// SPDX-License-Identifier: Apache-2.0
#include "demo/PrivateScheduler.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cups/cups.h>

#include <algorithm>
#include <cstdio>
#include <memory>

#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr int jobTimeoutMs = 60'000;
constexpr const char *previousServer = "localhost:9";

const QStringList printers = {
    u"korvane-label"_s,     u"korvane-tape"_s,     u"korvane-tape-follow"_s,
    u"korvane-tape-mark"_s, u"korvane-tape-all"_s, u"korvane-plain"_s,
};
const QString rawPrinter = u"raw"_s;

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

int print(const QString &printer, const QString &path)
{
    cups_option_t *options = nullptr;
    const int count = cupsAddOption("KvHalfCut", "ON", 0, &options);
    const int id =
        cupsPrintFile2(CUPS_HTTP_DEFAULT, printer.toUtf8().constData(),
                       QFile::encodeName(path).constData(), "a [quoted] 'title'", count, options);
    cupsFreeOptions(count, options);
    return id;
}

// A process that has ended counts as gone, also before its parent has noticed.
bool isRunning(qint64 process)
{
    const QByteArray status = readFile(u"/proc/%1/stat"_s.arg(process));
    const qsizetype endOfName = status.lastIndexOf(')');
    return endOfName >= 0 && status.mid(endOfName + 2, 1) != "Z";
}
} // namespace

class tst_scheduler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void startSetsTheServer();
    void unsetServerStaysUnset();
    void printersGetPDF_data() { addDocuments(); }
    void printersGetPDF();
    void jobAttributes_data() { addDocuments(); }
    void jobAttributes();
    void jobIdsOfAPrinter();
    void errors();
    void secondScheduler();
    void diesWithItsParent();

private: // NOLINT(readability-redundant-access-specifiers)
    void addDocuments();
    bool addAllPrinters();
    QStringList leftBehind() const
    {
        return QDir(mTemp.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    QTemporaryDir mFiles;
    QTemporaryDir mTemp;
    QString mTextPath;
    QString mPDFPath;
    QString mError;
    std::unique_ptr<PrivateScheduler> mScheduler;
};

void tst_scheduler::initTestCase()
{
    QVERIFY(mFiles.isValid() && mTemp.isValid());
    QCOMPARE(chmod(QFile::encodeName(mTemp.path()).constData(), 0711), 0);
    qputenv("TMPDIR", QFile::encodeName(mTemp.path()));
    qputenv("CUPS_SERVER", previousServer);

    mTextPath = mFiles.filePath(u"text.txt"_s);
    QFile text(mTextPath);
    QVERIFY(text.open(QIODevice::WriteOnly));
    QVERIFY(text.write("A label\n") > 0);

    mPDFPath = mFiles.filePath(u"document.pdf"_s);
    QPdfWriter writer(mPDFPath);
    QPainter painter(&writer);
    QVERIFY(painter.isActive());
    painter.drawRect(100, 100, 400, 200);
}

void tst_scheduler::init()
{
    mScheduler = PrivateScheduler::start(&mError);
    QVERIFY2(mScheduler, qPrintable(mError));
}

void tst_scheduler::cleanup()
{
    if (QTest::currentTestFailed() && mScheduler) {
        qWarning("%s", qPrintable(mScheduler->errorLog()));
    }
    mScheduler.reset();
    QCOMPARE(leftBehind(), QStringList());
    QCOMPARE(qgetenv("CUPS_SERVER"), QByteArray(previousServer));
}

bool tst_scheduler::addAllPrinters()
{
    return std::all_of(printers.begin(), printers.end(),
                       [this](const QString &name) {
                           return mScheduler->addPrinter(
                               name, QStringLiteral(KV_PPD_DIR "/%1.ppd").arg(name), &mError);
                       }) &&
           mScheduler->addPrinter(rawPrinter, {}, &mError);
}

void tst_scheduler::startSetsTheServer()
{
    QVERIFY(mScheduler->address().startsWith("127.0.0.1:"));
    QCOMPARE(qgetenv("CUPS_SERVER"), mScheduler->address());
    QCOMPARE(QByteArray(cupsServer()), QByteArray("127.0.0.1"));
    QCOMPARE(ippPort(), mScheduler->address().mid(10).toInt());
    QVERIFY(isRunning(mScheduler->processId()));
    QVERIFY(mScheduler->folder().startsWith(mTemp.path()));

    mScheduler.reset();
    QCOMPARE(QByteArray(cupsServer()), QByteArray("localhost"));
    QCOMPARE(ippPort(), 9);
}

void tst_scheduler::unsetServerStaysUnset()
{
    mScheduler.reset();
    qunsetenv("CUPS_SERVER");
    mScheduler = PrivateScheduler::start(&mError);
    const bool wasSet = qEnvironmentVariableIsSet("CUPS_SERVER");
    mScheduler.reset();
    const bool isSet = qEnvironmentVariableIsSet("CUPS_SERVER");
    qputenv("CUPS_SERVER", previousServer);
    QVERIFY(wasSet);
    QVERIFY(!isSet);
}

void tst_scheduler::addDocuments()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("text") << mTextPath;
    QTest::newRow("PDF") << mPDFPath;
}

void tst_scheduler::printersGetPDF()
{
    QFETCH(QString, path);
    QVERIFY2(addAllPrinters(), qPrintable(mError));
    QMap<QString, int> jobs;
    for (const QString &printer : printers) {
        jobs[printer] = print(printer, path);
        QVERIFY2(jobs[printer] > 0, cupsLastErrorString());
    }
    for (const QString &printer : printers) {
        QVERIFY2(mScheduler->waitForJob(jobs[printer], jobTimeoutMs), qPrintable(printer));
        const QByteArray output = readFile(mScheduler->outputPath(printer));
        QVERIFY2(output.startsWith("%PDF"), qPrintable(printer));
        QVERIFY2(output.trimmed().endsWith("%%EOF"), qPrintable(printer));
    }
}

void tst_scheduler::jobAttributes()
{
    QFETCH(QString, path);
    QVERIFY2(addAllPrinters(), qPrintable(mError));
    for (const QString &printer : printers + QStringList(rawPrinter)) {
        const int id = print(printer, path);
        QVERIFY2(id > 0, cupsLastErrorString());
        QVERIFY(mScheduler->waitForJob(id, jobTimeoutMs));
        const auto attributes = mScheduler->jobAttributes(id, &mError);
        QVERIFY2(attributes, qPrintable(mError));
        QCOMPARE(attributes->value(u"KvHalfCut"_s), u"ON"_s);
        QCOMPARE(attributes->value(u"job-name"_s), u"a [quoted] 'title'"_s);
        QCOMPARE(attributes->value(u"job-id"_s), QString::number(id));
        QCOMPARE(attributes->value(u"job-state"_s), u"completed"_s);
        QCOMPARE(attributes->value(u"job-sheets"_s), u"none,none"_s);
        QVERIFY(attributes->value(u"job-printer-uri"_s).endsWith(printer));
    }
}

void tst_scheduler::jobIdsOfAPrinter()
{
    QVERIFY2(addAllPrinters(), qPrintable(mError));
    QCOMPARE(mScheduler->jobIds(), QList<int>());
    const int first = print(rawPrinter, mTextPath);
    const int second = print(printers.first(), mTextPath);
    const int third = print(rawPrinter, mTextPath);
    for (const int id : {first, second, third}) {
        QVERIFY(mScheduler->waitForJob(id, jobTimeoutMs));
    }
    QCOMPARE(mScheduler->jobIds(), QList<int>({first, second, third}));
    QCOMPARE(mScheduler->jobIds(rawPrinter), QList<int>({first, third}));
    QCOMPARE(mScheduler->jobIds(printers.first()), QList<int>({second}));
    QCOMPARE(mScheduler->jobIds(printers.last()), QList<int>());
}

void tst_scheduler::errors()
{
    QVERIFY(!mScheduler->addPrinter(rawPrinter, mFiles.filePath(u"missing.ppd"_s), &mError));
    QVERIFY(!mError.isEmpty());
    mError.clear();
    QVERIFY(!mScheduler->jobAttributes(4711, &mError));
    QVERIFY(!mError.isEmpty());
    QElapsedTimer elapsed;
    elapsed.start();
    QVERIFY(!mScheduler->waitForJob(4711, jobTimeoutMs));
    QVERIFY(elapsed.elapsed() < jobTimeoutMs);
}

void tst_scheduler::secondScheduler()
{
    const qint64 first = mScheduler->processId();
    QVERIFY2(addAllPrinters(), qPrintable(mError));
    QVERIFY(print(rawPrinter, mTextPath) > 0);
    mScheduler.reset();
    QVERIFY(!isRunning(first));
    QCOMPARE(leftBehind(), QStringList());

    mScheduler = PrivateScheduler::start(&mError);
    QVERIFY2(mScheduler, qPrintable(mError));
    QCOMPARE(mScheduler->jobIds(), QList<int>());
    QVERIFY2(addAllPrinters(), qPrintable(mError));
    const int id = print(printers.first(), mTextPath);
    QVERIFY2(id > 0, cupsLastErrorString());
    QVERIFY(mScheduler->waitForJob(id, jobTimeoutMs));
    QVERIFY(readFile(mScheduler->outputPath(printers.first())).startsWith("%PDF"));
}

void tst_scheduler::diesWithItsParent()
{
    QTemporaryDir temp;
    QProcess parent;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TMPDIR"_s, temp.path());
    parent.setProcessEnvironment(environment);
    parent.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    parent.start(QStringLiteral(KV_SCHEDULER_HOLDER), {});
    QVERIFY(parent.waitForReadyRead());
    const qint64 scheduler = parent.readLine().trimmed().toLongLong();
    QVERIFY(scheduler > 0);
    QVERIFY(isRunning(scheduler));
    parent.kill();
    QVERIFY(parent.waitForFinished());
    QVERIFY(QTest::qWaitFor([&] { return !isRunning(scheduler); }, 10'000));
}

KV_TEST(tst_scheduler)

#include "tst_scheduler.moc"
