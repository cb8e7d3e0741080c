// SPDX-License-Identifier: Apache-2.0
#include "CutterPrinter.h"
#include "PrintingTest.h"
#include "SampleChoices.h"
#include "ScriptTalk.h"

#include <QFile>
#include <QTest>

/// Jobs that a script submits, as the scheduler sees them.
class tst_submit : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void choicesOfThePanel();
    void paperOfThePanel();
    void printerWithOtherWords();
    void titleCopiesAndOptions();
    void dataOfTheMessage();
    void jobsAndCancel();
    void refused_data();
    void refused();
    void forbiddenTogether();
    void schedulerThatIsGone();

private: // NOLINT(readability-redundant-access-specifiers)
    /// Opens a panel and shows it.
    static bool open(ScriptTalk &talk, const QString &printer);
    /// The job that is submitted; 0, and told, when there is none.
    int submit(ScriptTalk &talk, QJsonObject members = {}) const;
};

bool tst_submit::open(ScriptTalk &talk, const QString &printer)
{
    talk.ask("open", {{u"printer"_s, printer}, {u"locale"_s, u"en"_s}});
    talk.ask("view");
    return isOK(talk.ask("show"));
}

int tst_submit::submit(ScriptTalk &talk, QJsonObject members) const
{
    if (!members.contains(u"data"_s)) {
        members.insert(u"files"_s, QJsonArray{mSite.document()});
    }
    const QJsonObject answer = talk.ask("submit", members);
    if (!isOK(answer)) {
        qWarning("%s", qPrintable(errorOf(answer)));
    }
    return answer.value(u"job"_s).toInt();
}

void tst_submit::choicesOfThePanel()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvMirror=ON number-up=2\n"));
    ScriptTalk talk;
    QVERIFY(open(talk, u"tape"_s));
    talk.click("mHalfCutChkBx");
    int job = submit(talk);
    QCOMPARE(mSite.choices(job),
             SampleChoices::replaced(SampleChoices::seen(u"tape"_s), u"KvHalfCut=ON"_s));
    QCOMPARE(mSite.job(job).value(u"number-up"_s), u"2"_s);
    QVERIFY(mSite.job(job).value(u"job-printer-uri"_s).endsWith(u"/tape"));
    // The next starts from the same choices.
    talk.click("mChainPrintChkBx");
    job = submit(talk);
    QCOMPARE(mSite.choices(job), SampleChoices::replaced(SampleChoices::seen(u"tape"_s),
                                                         u"KvHalfCut=ON KvChainPrint=ON"_s));
}

void tst_submit::paperOfThePanel()
{
    QVERIFY(mSite.saveUserOptions("Dest tape PageSize=T24x100\n"));
    ScriptTalk talk;
    QVERIFY(open(talk, u"tape"_s));
    QCOMPARE(mSite.job(submit(talk)).value(u"media"_s), u"T24x100"_s);
    talk.paper(u"FL21x45"_s);
    const auto job = mSite.job(submit(talk));
    QCOMPARE(job.value(u"media"_s), u"FL21x45"_s);
    QCOMPARE(job.value(u"PageSize"_s), QString());
}

void tst_submit::printerWithOtherWords()
{
    QVERIFY(addPrinter(u"cutter"_s, mSite.file(u"cutter.ppd"_s, CutterPrinter::ppd("None"))));
    ScriptTalk talk;
    QVERIFY(open(talk, u"cutter"_s));
    talk.click("mCutAndEndChkBx");
    const int job = submit(talk);
    QCOMPARE(CutterPrinter::printed(mSite.job(job)), u"CutMedia=EndOfPage MirrorPrint=false"_s);
    QCOMPARE(mSite.choices(job), QStringList());
}

void tst_submit::titleCopiesAndOptions()
{
    ScriptTalk talk;
    QVERIFY(open(talk, u"label"_s));
    const auto job = mSite.job(submit(
        talk, {{u"title"_s, u"Two words"_s},
               {u"copies"_s, 3},
               {u"options"_s, QJsonObject{{u"job-billing"_s, u"labels"_s}, {u"number-up"_s, 2}}}}));
    QCOMPARE(job.value(u"job-name"_s), u"Two words"_s);
    QCOMPARE(job.value(u"copies"_s), u"3"_s);
    QCOMPARE(job.value(u"job-billing"_s), u"labels"_s);
    QCOMPARE(job.value(u"number-up"_s), u"2"_s);
}

void tst_submit::dataOfTheMessage()
{
    ScriptTalk talk;
    QVERIFY(open(talk, u"tape"_s));
    const QByteArray data(3000, 'x');
    const auto job = mSite.job(
        submit(talk, {{u"data"_s, QString::fromLatin1(data.toBase64())}, {u"title"_s, u"T"_s}}));
    QCOMPARE(job.value(u"job-k-octets"_s), u"3"_s);
    QCOMPARE(job.value(u"job-name"_s), u"T"_s);
}

void tst_submit::jobsAndCancel()
{
    ScriptTalk talk;
    QVERIFY(talk.ask("jobs").value(u"jobs"_s).toArray().isEmpty());
    QVERIFY(open(talk, u"tape"_s));
    const int first = submit(talk);
    const int second = submit(talk);
    QVERIFY(isOK(talk.ask("close")));
    QVERIFY(isOK(talk.ask("cancel", {{u"job"_s, second}})));
    const QJsonArray jobs = talk.ask("jobs").value(u"jobs"_s).toArray();
    QCOMPARE(jobs.size(), 2);
    QCOMPARE(jobs.at(0)[u"job"_s].toInt(), first);
    QCOMPARE(jobs.at(0)[u"state"_s].toString(), u"pending"_s);
    QCOMPARE(jobs.at(0)[u"printer"_s].toString(), u"tape"_s);
    QCOMPARE(jobs.at(1)[u"state"_s].toString(), u"canceled"_s);
    QCOMPARE(mSite.job(second).value(u"job-state"_s), u"canceled"_s);
    QCOMPARE(talk.ask("jobs", {{u"job"_s, first}}).value(u"jobs"_s).toArray().size(), 1);
    // Not twice, and nobody else's.
    QVERIFY(!errorOf(talk.ask("cancel", {{u"job"_s, second}})).isEmpty());
    QCOMPARE(errorOf(talk.ask("cancel", {{u"job"_s, second + 1}})),
             u"job %1 is none that has been submitted here"_s.arg(second + 1));
}

void tst_submit::refused_data()
{
    const TestTable<QJsonObject, QString> table("members", "fault");
    const QJsonArray files{mSite.document()};
    const auto with = [&files](const QString &member, const QJsonValue &value) {
        return QJsonObject{{u"files"_s, files}, {member, value}};
    };
    const auto option = [&with](const QString &key, const QString &value) {
        return with(u"options"_s, QJsonObject{{key, value}});
    };
    table.add("nothing to print", {}, u"\"submit\" needs either \"files\" or \"data\""_s);
    table.add("both", with(u"data"_s, u"eA=="_s),
              u"\"submit\" needs either \"files\" or \"data\""_s);
    table.add("missing file", {{u"files"_s, QJsonArray{u"/nowhere"_s}}},
              u"/nowhere: No such file or directory"_s);
    table.add("files that are none", {{u"files"_s, u"/nowhere"_s}},
              u"\"files\" has to be an array of texts without null characters"_s);
    table.add("data that is none", {{u"data"_s, u"%%%"_s}},
              u"\"data\" has to be bytes in base64"_s);
    table.add("no copies", with(u"copies"_s, 0), u"\"copies\" has to be 1 to 9999"_s);
    table.add("option of the panel", option(u"kvhalfcut"_s, u"ON"_s),
              u"\"options\": KvHalfCut has a command or a member of its own"_s);
    table.add("paper", option(u"media"_s, u"T24x100"_s),
              u"\"options\": media has a command or a member of its own"_s);
    table.add("unknown member", with(u"printer"_s, u"tape"_s),
              u"\"submit\" knows no \"printer\""_s);
}

void tst_submit::refused()
{
    QFETCH(const QJsonObject, members);
    QFETCH(const QString, fault);
    const auto before = mSite.scheduler().jobIds();
    ScriptTalk talk;
    QVERIFY(open(talk, u"tape"_s));
    QCOMPARE(errorOf(talk.ask("submit", members)), fault);
    QCOMPARE(mSite.scheduler().jobIds(), before);
    QVERIFY(submit(talk) > 0);
    QVERIFY(isOK(talk.ask("close")));
    QCOMPARE(errorOf(talk.ask("submit", members)),
             u"\"submit\" is out of place: no panel is open"_s);
    talk.open(u"tape"_s);
    QCOMPARE(errorOf(talk.ask("submit", {{u"files"_s, QJsonArray{mSite.document()}}})),
             u"the panel has been opened for a PPD without a printer"_s);
}

void tst_submit::forbiddenTogether()
{
    QVERIFY(addPrinter(u"cutter"_s, mSite.file(u"cutter.ppd"_s, CutterPrinter::ppd("None"))));
    const auto before = mSite.scheduler().jobIds();
    const QJsonObject members{{u"files"_s, QJsonArray{mSite.document()}},
                              {u"options"_s, QJsonObject{{u"InkType"_s, u"Thick"_s}}}};
    ScriptTalk talk;
    QVERIFY(open(talk, u"cutter"_s));
    talk.click("mCutEveryChkBx");
    talk.click("mCutAndEndChkBx");
    QCOMPARE(errorOf(talk.ask("submit", members)),
             u"CutMedia=EndOfJob cannot be combined with InkType=Thick: the printer's PPD "
             "forbids it"_s);
    QCOMPARE(mSite.scheduler().jobIds(), before);
    talk.click("mCutAndEndChkBx");
    QVERIFY(submit(talk, {{u"options"_s, members.value(u"options"_s)}}) > 0);
}

void tst_submit::schedulerThatIsGone()
{
    ScriptTalk talk;
    QVERIFY(open(talk, u"tape"_s));
    const int job = submit(talk);
    const QByteArray address = mSite.scheduler().address();
    cupsSetServer("127.0.0.1:9");
    const QString fault = errorOf(talk.ask("submit", {{u"files"_s, QJsonArray{mSite.document()}}}));
    const QString noAnswer = errorOf(talk.ask("jobs"));
    cupsSetServer(address.constData());
    QVERIFY2(fault.startsWith(u"no print scheduler answers at 127.0.0.1 (port 9): "),
             qPrintable(fault));
    QCOMPARE(noAnswer, fault);
    QCOMPARE(talk.ask("jobs").value(u"jobs"_s)[0][u"job"_s].toInt(), job);
}

KV_TEST(tst_submit)
#include "tst_submit.moc"
