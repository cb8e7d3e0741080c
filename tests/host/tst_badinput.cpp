// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "CommandRun.h"
#include "PanelUser.h"
#include "PrintingTest.h"
#include "SampleChoices.h"
#include "cups/JobSubmission.h"
#include "cups/PPDFile.h"
#include "cups/PrintQueue.h"
#include "cups/SchedulerConnection.h"
#include "dialog/PrintDialogAttachment.h"
#include "host/PanelHost.h"
#include "support/AnotherUser.h"

#include <QDir>
#include <QTest>

#include <cups/cups.h>

#include <sys/stat.h>

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
} // namespace

class tst_badinput : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void printerWithoutAPPD();
    void unusablePPD_data();
    void unusablePPD();
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
};

void tst_badinput::printerWithoutAPPD()
{
    QVERIFY(addPrinter(u"bare"_s));
    AttachedDialog dialog(u"bare"_s);
    QVERIFY(dialog.user().open());
    QVERIFY(!dialog.tabs().contains(kPanelTab));
    QVERIFY(!dialog.attachment().host());
    QCOMPARE(dialog.problems(), QStringList());
    QVERIFY(dialog.print(mSite.scheduler()) > 0);

    CommandRun run(u"bare"_s, {mSite.document()}, {u"KvMirror=ON"_s}, 2);
    QVERIFY(run.open());
    const int job = run.print();
    QCOMPARE(mSite.choices(job), QStringList{u"KvMirror=ON"_s});
    QCOMPARE(mSite.job(job).value(u"copies"_s), u"2"_s);
}

void tst_badinput::unusablePPD_data()
{
    const TestTable<QString, QString> table("path", "fault");
    const auto addBytes = [this, &table](const char *name, const QByteArray &bytes,
                                         const QString &fault) {
        table.add(name, mSite.file(QString::fromLatin1(name) + u".ppd"_s, bytes), fault);
    };
    const QByteArray whole = ppdOf(u"tape"_s);
    QByteArray nested = whole;
    nested.replace("*OpenGroup: KvCutOptions", "*OpenGroup: One/One\n*OpenGroup: KvCutOptions");
    const auto line = whole.left(whole.indexOf("*OpenGroup: KvCutOptions")).count('\n') + 2;
    QByteArray unstarred = whole;
    unstarred.replace("*PPD-Adobe: \"4.3\"\n", "*PPD-Adobe: \"4.3\"\nKvHalfCut\n");

    addBytes("empty", {}, u"line 0: Missing PPD-Adobe-4.x header"_s);
    addBytes("a text", "no PPD\n", u"line 1: Missing asterisk in column 1"_s);
    addBytes("nested groups", nested, u"line %1: OpenGroup without a CloseGroup first"_s.arg(line));
    addBytes("no asterisk", unstarred, u"line 2: Missing asterisk in column 1"_s);
    addBytes("a line without end", whole.left(200).replace('\n', ' ') + QByteArray(500, 'x'),
             u"line 1: Line longer than the maximum allowed (255 characters)"_s);
    addBytes("a long keyword", "*PPD-Adobe: \"4.3\"\n*" + QByteArray(60, 'a') + ": \"\"\n",
             u"line 2: Illegal main keyword string"_s);
    table.add("missing", mSite.path(u"no.ppd"_s), u"No such file or directory"_s);
    table.add("folder", QFileInfo(mSite.path(u"no.ppd"_s)).path(),
              u"line 0: Missing PPD-Adobe-4.x header"_s);
}

void tst_badinput::unusablePPD()
{
    QFETCH(const QString, path);
    QFETCH(const QString, fault);
    QString error;
    QVERIFY(!PPDFile::open(path, &error));
    QCOMPARE(error, u"%1: %2"_s.arg(path, fault));
    QVERIFY(!PPDFile::open(path, nullptr));
}

void tst_badinput::printerWhosePPDIsBroken()
{
    const QString name = u"spoilt"_s;
    QVERIFY(addPrinter(name, mSite.file(u"printer.ppd"_s, ppdOf(u"tape"_s))));
    QFile ppd(mSite.scheduler().folder() + u"/etc/ppd/spoilt.ppd"_s);
    QVERIFY(ppd.open(QIODevice::ReadWrite));
    QVERIFY(ppd.resize(0));
    QCOMPARE(ppd.write("*PPD-Adobe: \"4.3\"\nno PPD\n"), 25);
    ppd.close();

    AttachedDialog dialog(u"tape"_s);
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPrinter(name));
    QVERIFY(!dialog.tabs().contains(kPanelTab));
    QVERIFY(dialog.user().pickPrinter(u"tape"_s));
    QVERIFY(dialog.tabs().contains(kPanelTab));
    QVERIFY(dialog.user().pickPrinter(name));
    QCOMPARE(dialog.problems(),
             QStringList{u"PPD of spoilt: line 2: Missing asterisk in column 1"_s});
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(mSite.job(job).value(u"job-printer-uri"_s).endsWith(u"/spoilt"));
}

void tst_badinput::oddPPD_data()
{
    const TestTable<QByteArray, QString, QString> table("option", "unseen", "clicked");
    table.add("an option without choices",
              option("KvHalfCut", "Half Cut", "*DefaultKvHalfCut: OFF\n"), QString(), QString());
    table.add("an option without a default",
              option("KvHalfCut", "Half Cut", "*KvHalfCut OFF/Off: \"\"\n*KvHalfCut ON/On: \"\"\n"),
              u"KvHalfCut=OFF"_s, u"KvHalfCut=ON"_s);
    table.add(
        "a default that is no choice",
        option("KvHalfCut", "Half Cut",
               "*DefaultKvHalfCut: MAYBE\n*KvHalfCut OFF/Off: \"\"\n*KvHalfCut ON/On: \"\"\n"),
        u"KvHalfCut=OFF"_s, u"KvHalfCut=ON"_s);
    table.add("an option with the same choice twice",
              option("KvHalfCut", "Half Cut",
                     "*DefaultKvHalfCut: OFF\n*KvHalfCut OFF/Off: \"\"\n"
                     "*KvHalfCut OFF/Never: \"\"\n*KvHalfCut ON/On: \"\"\n"),
              u"KvHalfCut=OFF"_s, u"KvHalfCut=OFF"_s);
    table.add("an option with one choice",
              option("KvHalfCut", "Half Cut", "*DefaultKvHalfCut: OFF\n*KvHalfCut OFF/Off: \"\"\n"),
              u"KvHalfCut=OFF"_s, u"KvHalfCut=OFF"_s);
}

void tst_badinput::oddPPD()
{
    QFETCH(const QByteArray, option);
    QFETCH(const QString, unseen);
    QFETCH(const QString, clicked);
    const QByteArray mirror =
        ::option("KvMirror", "Mirror Printing",
                 "*DefaultKvMirror: OFF\n*KvMirror OFF/Off: \"\"\n*KvMirror ON/On: \"\"\n");
    QVERIFY(
        addPrinter(u"odd"_s, mSite.file(u"printer.ppd"_s, ppdOf(u"plain"_s) + option + mirror)));
    const auto withMirror = [](const QString &half, const char *choice) {
        QStringList choices{u"KvMirror="_s + QLatin1String(choice)};
        return half.isEmpty() ? choices : QStringList{half} + choices;
    };

    AttachedDialog closed(u"odd"_s);
    QVERIFY(closed.user().open());
    QCOMPARE(mSite.choices(closed.print(mSite.scheduler())), withMirror(unseen, "OFF"));
    QCOMPARE(closed.problems(), QStringList());

    AttachedDialog dialog(u"odd"_s);
    QVERIFY(dialog.openTab());
    QCOMPARE(dialog.panel().boxes(), QStringList({u"mHalfCutChkBx"_s, u"mMirrorPrintChkBx"_s}));
    QVERIFY(dialog.panel().click(u"mHalfCutChkBx"_s));
    QVERIFY(dialog.panel().click(u"mMirrorPrintChkBx"_s));
    QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())), withMirror(clicked, "ON"));
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_badinput::optionThatAPanelNeedsIsMissing()
{
    // With counts alone a job cannot say that nothing is to be cut.
    const QString name = u"counting"_s;
    QVERIFY(addPrinter(name, mSite.file(u"printer.ppd"_s,
                                        ppdOf(u"label"_s).replace("KvAutoTapeCut", "KvOtherCut"))));
    AttachedDialog dialog(name);
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.user().pickPrinter(u"label"_s));
    QVERIFY(dialog.user().pickPrinter(name));
    QVERIFY(dialog.panel().pickPreset(1));
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
    QVERIFY(addPrinter(u"latin"_s, mSite.file(u"printer.ppd"_s, ppdOf(u"plain"_s) + mirror)));
    AttachedDialog dialog(u"latin"_s);
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QCOMPARE(panel.boxes(), QStringList{u"mMirrorPrintChkBx"_s});
    QVERIFY(panel.click(u"mMirrorPrintChkBx"_s));
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
    const QString name = u"far"_s;
    QVERIFY(addPrinter(name, mSite.file(u"printer.ppd"_s, ppdOf(u"tape"_s))));
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
    QVERIFY(dialog.panel().click(u"mHalfCutChkBx"_s));
    QVERIFY(mSite.choices(dialog.print(mSite.scheduler())).contains(u"KvHalfCut=ON"));
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_badinput::noScheduler()
{
    cupsSetServer("127.0.0.1:9");
    QString error;
    const bool answers = SchedulerConnection().open(&error);
    ExitStatus status = ExitStatus::Printed;
    CommandRun run(u"tape"_s, {mSite.document()});
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
    const TestTable<QString, QString> table("file", "fault");
    const QString folder = QFileInfo(mSite.path(u"a"_s)).path();
    table.add("missing", mSite.path(u"missing.txt"_s), u"No such file or directory"_s);
    table.add("a folder", folder, u"is a folder"_s);
    table.add("empty", mSite.file(u"empty.txt"_s, {}), u"is empty"_s);
    table.add("a device", u"/dev/null"_s, u"is no regular file"_s);
    const QString pipe = mSite.path(u"pipe"_s);
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    table.add("a pipe", pipe, u"is no regular file"_s);
    table.add("no name", QString(), u"No file name specified"_s);
}

void tst_badinput::fileThatCannotBePrinted()
{
    QFETCH(const QString, file);
    QFETCH(const QString, fault);
    QCOMPARE(JobSubmission::faultOf({file}), u"%1: %2"_s.arg(file, fault));

    const QList<int> before = mSite.scheduler().jobIds();
    ExitStatus status = ExitStatus::Printed;
    CommandRun run(u"tape"_s, {mSite.document(), file});
    QVERIFY(!run.command().prepare(&status));
    QCOMPARE(status, ExitStatus::NotPrinted);
    QCOMPARE(mSite.scheduler().jobIds(), before);
}

void tst_badinput::unreadableFile()
{
    const QString file = mSite.document(u"secret.txt"_s);
    const QByteArray folder = QFile::encodeName(QFileInfo(file).path());
    QCOMPARE(chmod(folder.constData(), 0711), 0);
    QCOMPARE(chmod(QFile::encodeName(file).constData(), 0), 0);
    QString fault;
    {
        const AnotherUser user;
        fault = JobSubmission::faultOf({file});
    }
    QCOMPARE(fault, file + u": Permission denied"_s);
}

void tst_badinput::jobThatCannotBeSent()
{
    SchedulerConnection scheduler;
    QString error;
    QCOMPARE(
        JobSubmission::print(scheduler, u"nowhere"_s, {mSite.document()}, u"title"_s, {}, &error),
        0);
    QVERIFY2(error.startsWith(u"nowhere: "), qPrintable(error));
    QVERIFY(error.size() > 9);

    // A file that is gone by the time of sending leaves no job with the others behind.
    const QList<int> before = mSite.scheduler().jobIds();
    error.clear();
    QCOMPARE(JobSubmission::print(scheduler, u"tape"_s,
                                  {mSite.document(), mSite.path(u"gone.txt"_s)}, u"title"_s, {},
                                  &error),
             0);
    QVERIFY2(error.startsWith(u"tape: "), qPrintable(error));
    const QList<int> after = mSite.scheduler().jobIds();
    for (const int job : after) {
        if (!before.contains(job)) {
            QCOMPARE(mSite.job(job).value(u"job-state"_s), u"canceled"_s);
        }
    }
}

KV_TEST(tst_badinput)
#include "tst_badinput.moc"
