// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "CommandRun.h"
#include "PanelUser.h"
#include "PrintingSite.h"
#include "SampleChoices.h"
#include "cups/JobSubmission.h"
#include "cups/PPDFile.h"
#include "cups/PrintQueue.h"
#include "cups/SchedulerConnection.h"
#include "dialog/PrintDialogAttachment.h"
#include "host/PanelHost.h"

#include <QDir>
#include <QTest>

#include <cups/cups.h>

#include <sys/stat.h>
#include <unistd.h>

namespace {
QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray ppdOf(const QString &printer)
{
    return readFile(PrintingSite::ppdPath(printer));
}

/// An option as a PPD declares it.
QByteArray option(const QByteArray &keyword, const QByteArray &text, const QByteArray &lines)
{
    return "*OpenUI *" + keyword + '/' + text + ": PickOne\n" + lines + "*CloseUI: *" + keyword +
           '\n';
}

/// Becomes a user who may read only what everybody may, for as long as it lives.
class OrdinaryUser
{
public:
    OrdinaryUser() { mChanged = geteuid() == 0 && seteuid(nobody) == 0; }
    ~OrdinaryUser()
    {
        if (mChanged && seteuid(0) != 0) {
            qFatal("cannot become root again");
        }
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    static constexpr uid_t nobody = 65534;
    bool mChanged = false;
};
} // namespace

class tst_badinput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void printerWithoutAPPD();
    void brokenPPD_data();
    void brokenPPD();
    void missingPPD_data();
    void missingPPD();
    void printerWhosePPDIsBroken();
    void oddPPD_data();
    void oddPPD();
    void optionThatAPanelNeedsIsMissing();
    void textsThatAreNoUTF8();
    void longDeviceURI_data();
    void longDeviceURI();

    void noScheduler();
    void unknownPrinter();
    void fileThatCannotBePrinted_data();
    void fileThatCannotBePrinted();
    void unreadableFile();
    void jobThatCannotBeSent();

private: // NOLINT(readability-redundant-access-specifiers)
    bool addPrinter(const QString &name, const QByteArray &ppd) const;

    PrintingSite mSite;
};

void tst_badinput::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
}

bool tst_badinput::addPrinter(const QString &name, const QByteArray &ppd) const
{
    QString error;
    const QString path = ppd.isEmpty() ? QString() : mSite.file(name + u".ppd"_s, ppd);
    const bool added = mSite.scheduler().addPrinter(name, path, &error);
    if (!added) {
        qWarning("%s", qPrintable(error));
    }
    return added;
}

void tst_badinput::printerWithoutAPPD()
{
    QVERIFY(addPrinter(QStringLiteral("bare"), {}));
    AttachedDialog dialog(QStringLiteral("bare"));
    QVERIFY(dialog.user().open());
    QVERIFY(!dialog.tabs().contains(kPanelTab));
    QVERIFY(!dialog.attachment().host());
    QCOMPARE(dialog.problems(), QStringList());
    QVERIFY(dialog.print(mSite.scheduler()) > 0);

    CommandRun run(QStringLiteral("bare"), {mSite.document()}, {QStringLiteral("KvMirror=ON")}, 2);
    QVERIFY(run.open());
    const int job = run.print();
    QVERIFY(job > 0);
    QCOMPARE(mSite.choices(job), QStringList{u"KvMirror=ON"_s});
    QCOMPARE(mSite.job(job).value(QStringLiteral("copies")), QStringLiteral("2"));
}

void tst_badinput::brokenPPD_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("fault");
    const QByteArray whole = ppdOf(QStringLiteral("tape"));
    QByteArray nested = whole;
    nested.replace("*OpenGroup: KvCutOptions", "*OpenGroup: One/One\n*OpenGroup: KvCutOptions");
    const auto line = whole.left(whole.indexOf("*OpenGroup: KvCutOptions")).count('\n') + 2;
    QByteArray unstarred = whole;
    unstarred.replace("*PPD-Adobe: \"4.3\"\n", "*PPD-Adobe: \"4.3\"\nKvHalfCut\n");

    QTest::newRow("empty") << QByteArray() << u"line 0: Missing PPD-Adobe-4.x header"_s;
    QTest::newRow("a text") << QByteArray("no PPD\n") << u"line 1: Missing asterisk in column 1"_s;
    QTest::newRow("nested groups")
        << nested << u"line %1: OpenGroup without a CloseGroup first"_s.arg(line);
    QTest::newRow("no asterisk") << unstarred << u"line 2: Missing asterisk in column 1"_s;
    QTest::newRow("a line without end")
        << whole.left(200).replace('\n', ' ') + QByteArray(500, 'x')
        << u"line 1: Line longer than the maximum allowed (255 characters)"_s;
    QTest::newRow("a long keyword") << "*PPD-Adobe: \"4.3\"\n*" + QByteArray(60, 'a') + ": \"\"\n"
                                    << u"line 2: Illegal main keyword string"_s;
}

void tst_badinput::brokenPPD()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, fault);
    const QString path = mSite.file(QStringLiteral("broken.ppd"), bytes);
    QString error;
    QVERIFY(!PPDFile::open(path, &error));
    QCOMPARE(error, QStringLiteral("%1: %2").arg(path, fault));
    QVERIFY(!PPDFile::open(path, nullptr));
}

void tst_badinput::missingPPD_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("fault");
    QTest::newRow("missing") << mSite.path(QStringLiteral("no.ppd"))
                             << QStringLiteral("No such file or directory");
    QTest::newRow("folder") << QFileInfo(mSite.path(QStringLiteral("no.ppd"))).path()
                            << QStringLiteral("line 0: Missing PPD-Adobe-4.x header");
}

void tst_badinput::missingPPD()
{
    QFETCH(const QString, path);
    QFETCH(const QString, fault);
    QString error;
    QVERIFY(!PPDFile::open(path, &error));
    QCOMPARE(error, QStringLiteral("%1: %2").arg(path, fault));
}

void tst_badinput::printerWhosePPDIsBroken()
{
    const QString name = QStringLiteral("spoilt");
    QVERIFY(addPrinter(name, ppdOf(QStringLiteral("tape"))));
    QFile ppd(mSite.scheduler().folder() + QStringLiteral("/etc/ppd/spoilt.ppd"));
    QVERIFY(ppd.open(QIODevice::ReadWrite));
    QVERIFY(ppd.resize(0));
    QCOMPARE(ppd.write("*PPD-Adobe: \"4.3\"\nno PPD\n"), 25);
    ppd.close();

    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPrinter(name));
    QVERIFY(!dialog.tabs().contains(kPanelTab));
    QVERIFY(dialog.user().pickPrinter(QStringLiteral("tape")));
    QVERIFY(dialog.tabs().contains(kPanelTab));
    QVERIFY(dialog.user().pickPrinter(name));
    QCOMPARE(dialog.problems(),
             QStringList{u"PPD of spoilt: line 2: Missing asterisk in column 1"_s});
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(job > 0);
    QVERIFY(mSite.job(job).value(u"job-printer-uri"_s).endsWith(u"/spoilt"));
}

void tst_badinput::oddPPD_data()
{
    QTest::addColumn<QByteArray>("option");
    QTest::addColumn<QString>("unseen");
    QTest::addColumn<QString>("clicked");
    QTest::newRow("an option without choices")
        << option("KvHalfCut", "Half Cut", "*DefaultKvHalfCut: OFF\n") << QString() << QString();
    QTest::newRow("an option without a default")
        << option("KvHalfCut", "Half Cut", "*KvHalfCut OFF/Off: \"\"\n*KvHalfCut ON/On: \"\"\n")
        << u"KvHalfCut=OFF"_s << u"KvHalfCut=ON"_s;
    QTest::newRow("a default that is no choice")
        << option("KvHalfCut", "Half Cut",
                  "*DefaultKvHalfCut: MAYBE\n*KvHalfCut OFF/Off: \"\"\n*KvHalfCut ON/On: \"\"\n")
        << u"KvHalfCut=OFF"_s << u"KvHalfCut=ON"_s;
    QTest::newRow("an option with one choice")
        << option("KvHalfCut", "Half Cut", "*DefaultKvHalfCut: OFF\n*KvHalfCut OFF/Off: \"\"\n")
        << u"KvHalfCut=OFF"_s << u"KvHalfCut=OFF"_s;
}

void tst_badinput::oddPPD()
{
    QFETCH(const QByteArray, option);
    QFETCH(const QString, unseen);
    QFETCH(const QString, clicked);
    const QByteArray mirror =
        ::option("KvMirror", "Mirror Printing",
                 "*DefaultKvMirror: OFF\n*KvMirror OFF/Off: \"\"\n*KvMirror ON/On: \"\"\n");
    QVERIFY(addPrinter(QStringLiteral("odd"), ppdOf(QStringLiteral("plain")) + option + mirror));
    const auto withMirror = [](const QString &half, const char *choice) {
        QStringList choices{u"KvMirror="_s + QLatin1String(choice)};
        return half.isEmpty() ? choices : QStringList{half} + choices;
    };

    AttachedDialog closed(QStringLiteral("odd"));
    QVERIFY(closed.user().open());
    QCOMPARE(mSite.choices(closed.print(mSite.scheduler())), withMirror(unseen, "OFF"));
    QCOMPARE(closed.problems(), QStringList());

    AttachedDialog dialog(QStringLiteral("odd"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QCOMPARE(panel.boxes(), QStringList({u"mHalfCutChkBx"_s, u"mMirrorPrintChkBx"_s}));
    QVERIFY(panel.click(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(panel.click(QStringLiteral("mMirrorPrintChkBx")));
    QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())), withMirror(clicked, "ON"));
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_badinput::optionThatAPanelNeedsIsMissing()
{
    // With counts alone a job cannot say that nothing is to be cut.
    const QString name = QStringLiteral("counting");
    QVERIFY(addPrinter(name, ppdOf(u"label"_s).replace("KvAutoTapeCut", "KvOtherCut")));
    AttachedDialog dialog(name);
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.user().pickPrinter(QStringLiteral("label")));
    QVERIFY(dialog.user().pickPrinter(name));
    QVERIFY(PanelUser(dialog.user()).pickPreset(1));
    QCOMPARE(dialog.problems(), QStringList{u"the panel \"Cut Options\" sets KvAutoTapeCut, which "
                                            "the printer's PPD lacks: no job carries it"_s});
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.choices(job),
             QStringList({u"KvCutAtEnd=OFF"_s, u"KvCutLabel=1"_s, u"KvMirror=OFF"_s}));
}

void tst_badinput::textsThatAreNoUTF8()
{
    const QByteArray mirror =
        option("KvMirror", "Spiegel\xfc\xe9\xff",
               "*DefaultKvMirror: OFF\n*KvMirror OFF/A\xe4s: \"\"\n*KvMirror ON/\xc3\x28: \"\"\n");
    QVERIFY(addPrinter(QStringLiteral("latin"), ppdOf(QStringLiteral("plain")) + mirror));
    AttachedDialog dialog(QStringLiteral("latin"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QCOMPARE(panel.boxes(), QStringList{u"mMirrorPrintChkBx"_s});
    QVERIFY(panel.click(QStringLiteral("mMirrorPrintChkBx")));
    QTest::qWait(0);
    QCOMPARE(panel.summary().size(), 1);
    QVERIFY(panel.summary().first().startsWith(u"Spiegel"));
    QVERIFY(panel.summary().first().endsWith(u": Yes"));
    QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())), QStringList{u"KvMirror=ON"_s});
}

void tst_badinput::longDeviceURI_data()
{
    QTest::addColumn<int>("length");
    for (const int length : {254, 255, 256, 400, 1000}) {
        QTest::addRow("%d bytes", length) << length;
    }
}

void tst_badinput::longDeviceURI()
{
    QFETCH(const int, length);
    const QString name = QStringLiteral("far");
    QVERIFY(addPrinter(name, ppdOf(QStringLiteral("tape"))));
    const QByteArray uri = QByteArray("ipp://127.0.0.1:9/?").leftJustified(length, 'x');
    ipp_t *request = ippNewRequest(IPP_OP_CUPS_ADD_MODIFY_PRINTER);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 "ipp://localhost/printers/far");
    ippAddString(request, IPP_TAG_PRINTER, IPP_TAG_URI, "device-uri", nullptr, uri.constData());
    ippDelete(cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/admin/"));
    QVERIFY2(cupsLastError() <= IPP_STATUS_OK_CONFLICTING, cupsLastErrorString());
    SchedulerConnection scheduler;
    QString error;
    QCOMPARE(PrintQueue::find(scheduler, name, &error)->deviceURI(), QString::fromLatin1(uri));

    AttachedDialog dialog(name);
    QVERIFY(dialog.openTab());
    QVERIFY(PanelUser(dialog.user()).click(QStringLiteral("mHalfCutChkBx")));
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(mSite.choices(job).contains(u"KvHalfCut=ON"));
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_badinput::noScheduler()
{
    cupsSetServer("127.0.0.1:9");
    QString error;
    const bool answers = SchedulerConnection().open(&error);
    ExitStatus status = ExitStatus::Printed;
    CommandRun run(QStringLiteral("tape"), {mSite.document()});
    const QPrintDialog *dialog = run.command().prepare(&status);
    cupsSetServer(mSite.scheduler().address().constData());
    QVERIFY(!answers);
    QVERIFY2(error.startsWith(u"no print scheduler answers at 127.0.0.1 (port 9): "),
             qPrintable(error));
    QVERIFY(!dialog);
    QCOMPARE(status, ExitStatus::NotPrinted);
    QVERIFY(SchedulerConnection().open(&error));
}

void tst_badinput::unknownPrinter()
{
    for (const char *printer : {"nowhere", "tape ", "TAPES", "tape/instance"}) {
        ExitStatus status = ExitStatus::Printed;
        CommandRun run(QLatin1String(printer), {mSite.document()});
        QVERIFY2(!run.command().prepare(&status), printer);
        QCOMPARE(status, ExitStatus::NotPrinted);
    }
}

void tst_badinput::fileThatCannotBePrinted_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("fault");
    const QString folder = QFileInfo(mSite.path(QStringLiteral("a"))).path();
    QTest::newRow("missing") << mSite.path(QStringLiteral("missing.txt"))
                             << QStringLiteral("No such file or directory");
    QTest::newRow("a folder") << folder << QStringLiteral("is a folder");
    QTest::newRow("empty") << mSite.file(QStringLiteral("empty.txt"), {})
                           << QStringLiteral("is empty");
    QTest::newRow("a device") << QStringLiteral("/dev/null")
                              << QStringLiteral("is no regular file");
    const QString pipe = mSite.path(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("a pipe") << pipe << QStringLiteral("is no regular file");
    QTest::newRow("no name") << QString() << QStringLiteral("No file name specified");
}

void tst_badinput::fileThatCannotBePrinted()
{
    QFETCH(const QString, file);
    QFETCH(const QString, fault);
    QCOMPARE(JobSubmission::faultOf({file}), QStringLiteral("%1: %2").arg(file, fault));

    const QList<int> before = mSite.scheduler().jobIds();
    ExitStatus status = ExitStatus::Printed;
    CommandRun run(QStringLiteral("tape"), {mSite.document(), file});
    QVERIFY(!run.command().prepare(&status));
    QCOMPARE(status, ExitStatus::NotPrinted);
    QCOMPARE(mSite.scheduler().jobIds(), before);
}

void tst_badinput::unreadableFile()
{
    const QString file = mSite.document(QStringLiteral("secret.txt"));
    const QByteArray folder = QFile::encodeName(QFileInfo(file).path());
    QCOMPARE(chmod(folder.constData(), 0711), 0);
    QCOMPARE(chmod(QFile::encodeName(file).constData(), 0), 0);
    QString fault;
    {
        const OrdinaryUser user;
        fault = JobSubmission::faultOf({file});
    }
    QCOMPARE(fault, file + QStringLiteral(": Permission denied"));
}

void tst_badinput::jobThatCannotBeSent()
{
    SchedulerConnection scheduler;
    QString error;
    QCOMPARE(JobSubmission::print(scheduler, QStringLiteral("nowhere"), {mSite.document()},
                                  u"title"_s, {}, &error),
             0);
    QVERIFY2(error.startsWith(u"nowhere: "), qPrintable(error));
    QVERIFY(error.size() > 9);

    // A file that is gone by the time of sending leaves no job with the others behind.
    const QList<int> before = mSite.scheduler().jobIds();
    error.clear();
    QCOMPARE(JobSubmission::print(scheduler, QStringLiteral("tape"),
                                  {mSite.document(), mSite.path(QStringLiteral("gone.txt"))},
                                  u"title"_s, {}, &error),
             0);
    QVERIFY2(error.startsWith(u"tape: "), qPrintable(error));
    const QList<int> after = mSite.scheduler().jobIds();
    for (const int job : after) {
        if (!before.contains(job)) {
            QCOMPARE(mSite.job(job).value(QStringLiteral("job-state")), QStringLiteral("canceled"));
        }
    }
}

KV_TEST(tst_badinput)
#include "tst_badinput.moc"
