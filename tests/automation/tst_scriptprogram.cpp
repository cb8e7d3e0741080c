// SPDX-License-Identifier: Apache-2.0
#include "PrintingTest.h"
#include "ProgramRun.h"
#include "ProgramTalk.h"
#include "ScriptTalk.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QTest>

#include <csignal>

namespace {
const QString script = u"--script"_s;
const QString standardInput = u"-"_s;
/// Where no scheduler is.

QByteArray openLine(const QString &printer)
{
    return R"({"cmd":"open","locale":"en","ppd":)" + compact(PrintingSite::ppdPath(printer)) + '}';
}

QList<QJsonObject> answersOf(const ProgramRun &run)
{
    QList<QJsonObject> answers;
    const QStringList lines = run.lines();
    for (const QString &line : lines) {
        answers.append(QJsonDocument::fromJson(line.toUtf8()).object());
    }
    return answers;
}

/// Whether each answer is "ok".
QList<bool> successes(const ProgramRun &run)
{
    QList<bool> all;
    const QList<QJsonObject> answers = answersOf(run);
    for (const QJsonObject &answer : answers) {
        all.append(isOK(answer));
    }
    return all;
}

} // namespace

/// Scripts as the program runs them.
class tst_scriptprogram : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void demonstration();
    void everyLineIsAnsweredAtOnce();
    void scriptInAFile();
    void faultyLine();
    void lineEnds_data();
    void lineEnds();
    void emptyScript();
    void linesOfAnyBytes();
    void scriptThatCannotBeRead();
    void readerThatGoesAway();
    void answersThatCannotBeWritten();
    void defaultPPD();
    void defaultPrinter();
    void noDisplayIsNeeded_data();
    void noDisplayIsNeeded();
    void lengthsArePointsInAnyFont();
    void alertGoesToTheAnswerAlone();
};

void tst_scriptprogram::demonstration()
{
    const QByteArray open =
        R"({"cmd":"open","locale":"none","ppd":)" + compact(PrintingSite::ppdPath(u"all"_s)) + '}';
    const ProgramRun run = runKvprint({script, standardInput},
                                      {open + "\n{\"cmd\":\"view\"}\n{\"cmd\":\"show\"}\n"
                                              "{\"cmd\":\"click\",\"control\":\"mHalfCutChkBx\"}\n"
                                              "{\"cmd\":\"state\"}\n",
                                       {noScheduler}});
    QCOMPARE(run.status, 0);
    QCOMPARE(successes(run), QList<bool>(5, true));
    const QList<QJsonObject> answers = answersOf(run);
    QCOMPARE(answers.at(0).value(u"name").toString(), u"OP_PANEL_NAME"_s);
    QCOMPARE(answers.at(1).value(u"height").toInt(), 292);
    QCOMPARE(changesIn(answers.at(2)).size(), 9);
    QCOMPARE(changesIn(answers.at(3)), QStringList{u"KvHalfCut=ON"_s});
    const QJsonObject controls = answers.at(4).value(u"controls").toObject();
    QCOMPARE(controls.value(u"mHalfCutChkBx")[u"state"].toInt(), 1);
    QCOMPARE(controls.value(u"mCutMarkChkBx")[u"y"].toInt(), 292 - 38);
}

void tst_scriptprogram::everyLineIsAnsweredAtOnce()
{
    ProgramTalk talk;
    QVERIFY(isOK(talk.ask(openLine(u"tape"_s))));
    QCOMPARE(talk.ask(R"({"cmd":"view"})").value(u"height").toInt(), 188);
    QVERIFY(!errorOf(talk.ask("")).isEmpty());
    QVERIFY(isOK(talk.ask(R"({"cmd":"show"})")));
    QCOMPARE(talk.ask(R"({"cmd":"click","control":"mHalfCutChkBx"})").value(u"delivered"),
             QJsonValue(true));
    QVERIFY(isOK(talk.ask(R"({"cmd":"close"})")));
    QCOMPARE(talk.process().bytesAvailable(), 0);
    QCOMPARE(talk.end(), 4);
}

void tst_scriptprogram::scriptInAFile()
{
    const QString file =
        mSite.file(u"a script.jsonl"_s, openLine(u"tape"_s) + "\n{\"cmd\":\"keys\"}\n");
    const ProgramRun run = runKvprint({script, file}, {"{\"cmd\":\"nonsense\"}\n"});
    QCOMPARE(run.status, 0);
    QCOMPARE(successes(run), QList<bool>({true, true}));
    // A file called "-" is not meant by "-".
    const QString folder = QFileInfo(file).path();
    QVERIFY(!mSite.file(u"-"_s, "{}\n").isNull());
    const ProgramRun relative = runKvprint({script, u"./-"_s}, {{}, {}, folder});
    QCOMPARE(successes(relative), QList<bool>{false});
    QCOMPARE(runKvprint({script, u"-"_s}, {{}, {}, folder}).output, QString());
}

void tst_scriptprogram::faultyLine()
{
    const ProgramRun run =
        runKvprint({script, standardInput},
                   {"{\"cmd\":\"view\"}\n" + openLine(u"tape"_s) + "\n\n{\"cmd\":\"view\"}\n"});
    QCOMPARE(run.status, 4);
    QCOMPARE(successes(run), QList<bool>({false, true, false, true}));
}

void tst_scriptprogram::lineEnds_data()
{
    const TestTable<QByteArray, QByteArray> table("between", "last");
    table.add("line feeds", "\n", "\n");
    table.add("none behind the last", "\n", QByteArray());
    table.add("carriage returns, too", "\r\n", "\r\n");
    table.add("carriage return behind the last", "\r\n", "\r");
}

void tst_scriptprogram::lineEnds()
{
    QFETCH(const QByteArray, between);
    QFETCH(const QByteArray, last);
    const ProgramRun run = runKvprint({script, standardInput},
                                      {openLine(u"tape"_s) + between + R"({"cmd":"view"})" + last});
    QCOMPARE(run.status, 0);
    QCOMPARE(successes(run), QList<bool>({true, true}));
    QVERIFY(run.output.endsWith(u'\n'));
    QVERIFY(!run.output.contains(u'\r'));
}

void tst_scriptprogram::emptyScript()
{
    const ProgramRun run = runKvprint({script, standardInput});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output, QString());
}

void tst_scriptprogram::linesOfAnyBytes()
{
    ProgramTalk talk;
    talk.ask(openLine(u"tape"_s));
    for (const QByteArray &line :
         {QByteArray("\0", 1), QByteArray("\0{\"cmd\":\"close\"}", 16),
          QByteArray("{\"cmd\":\"close\"}\0x", 17), QByteArray("\xff\xfe\x80"),
          QByteArray(1 << 20, 'x'), QByteArray(1 << 20, '['), QByteArray("\r")}) {
        QVERIFY(!errorOf(talk.ask(line)).isEmpty());
    }
    QVERIFY(isOK(talk.ask(R"({"cmd":"close"})")));
    QCOMPARE(talk.end(), 4);
}

void tst_scriptprogram::scriptThatCannotBeRead()
{
    const QString missing = mSite.path(u"missing.jsonl"_s);
    const QString folder = QFileInfo(missing).path();
    const QString endless = mSite.file(u"endless.jsonl"_s, QByteArray((4 << 20) + 1, ' '));
    const std::pair<QString, QString> faults[] = {
        {missing, missing + u": No such file or directory"_s},
        {folder, folder + u": Is a directory"_s},
        {endless, endless + u": a line is longer than 4194304 bytes"_s},
    };
    for (const auto &[file, fault] : faults) {
        const ProgramRun run = runKvprint({script, file});
        QCOMPARE(run.status, 3);
        QCOMPARE(run.output, QString());
        QVERIFY(run.tells(u"kvprint: "_s + fault));
    }
}

void tst_scriptprogram::readerThatGoesAway()
{
    // More answers than any pipe holds.
    const QByteArray state = "{\"cmd\":\"state\"}\n";
    const QString file =
        mSite.file(u"states.jsonl"_s, openLine(u"tape"_s) + '\n' + state.repeated(1000));
    const QString line = u"{ %1'%2' --script '%3'; echo status $? >&2; } | head -n 1"_s;
    const QString program = QStringLiteral(KV_PRINT_PROGRAM);
    const ProgramRun ended = runInShell(line.arg(QString(), program, file));
    QCOMPARE(successes(ended), QList<bool>{true});
    QVERIFY2(ended.errors.endsWith(u"status %1\n"_s.arg(128 + SIGPIPE)), qPrintable(ended.errors));
    // Some environments let their programs ignore the signal.
    const ProgramRun told = runInShell(line.arg(u"trap '' PIPE; "_s, program, file));
    QCOMPARE(successes(told), QList<bool>{true});
    QVERIFY2(told.errors.endsWith(
                 u"kvprint: standard output cannot be written: Broken pipe\nstatus 3\n"),
             qPrintable(told.errors));
}

void tst_scriptprogram::answersThatCannotBeWritten()
{
    const QString file = mSite.file(u"keys.jsonl"_s, openLine(u"tape"_s) + '\n');
    const ProgramRun run = runInShell(
        u"exec '%1' --script '%2' > /dev/full"_s.arg(QStringLiteral(KV_PRINT_PROGRAM), file));
    QCOMPARE(run.status, 3);
    QVERIFY(run.tells(u"kvprint: standard output cannot be written: No space left on device"_s));
}

void tst_scriptprogram::defaultPPD()
{
    ProgramTalk talk({u"--ppd"_s, PrintingSite::ppdPath(u"label"_s)}, {noScheduler});
    QCOMPARE(talk.ask(R"({"cmd":"open"})").value(u"isRV"), QJsonValue(true));
    talk.ask(R"({"cmd":"close"})");
    QCOMPARE(talk.ask(openLine(u"tape"_s)).value(u"isRV"), QJsonValue(false));
    QCOMPARE(talk.end(), 0);

    const QString missing = mSite.path(u"missing.ppd"_s);
    ProgramTalk wrong({u"--ppd"_s, missing});
    QCOMPARE(errorOf(wrong.ask(R"({"cmd":"open"})")), missing + u": No such file or directory"_s);
    QCOMPARE(wrong.end(), 4);
}

void tst_scriptprogram::defaultPrinter()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvMirror=ON\n"));
    ProgramTalk talk({u"-d"_s, u"tape"_s});
    QVERIFY(isOK(talk.ask(R"({"cmd":"open"})")));
    const QJsonObject state = talk.ask(R"({"cmd":"state"})");
    QCOMPARE(state.value(u"marks")[u"KvMirror"], QJsonValue(u"ON"_s));
    QCOMPARE(talk.end(), 0);

    ProgramTalk none;
    QCOMPARE(errorOf(none.ask(R"({"cmd":"open"})")),
             u"\"open\" needs either \"ppd\" or \"printer\""_s);
}

void tst_scriptprogram::noDisplayIsNeeded_data()
{
    const TestTable<QStringList> table("variables");
    const QString display = u"DISPLAY"_s;
    const QString wayland = u"WAYLAND_DISPLAY"_s;
    const QString platform = u"QT_QPA_PLATFORM"_s;
    table.add("no display", {display, wayland, platform});
    table.add("the user's wish for X", {display, wayland, platform + u"=xcb"_s});
    table.add("a display that is gone",
              {display + u"=:4711"_s, wayland + u"=gone"_s, platform + u"=wayland;xcb"_s});
    table.add("an unknown platform", {platform + u"=frobnicate"_s});
}

void tst_scriptprogram::noDisplayIsNeeded()
{
    QFETCH(const QStringList, variables);
    const QByteArray lines = openLine(u"tape"_s) + "\n{\"cmd\":\"view\"}\n{\"cmd\":\"show\"}\n";
    const ProgramRun run = runKvprint({script, standardInput}, {lines, variables});
    QCOMPARE(run.status, 0);
    QCOMPARE(successes(run), QList<bool>(3, true));
    const QStringList onPPD{u"--ppd"_s, PrintingSite::ppdPath(u"tape"_s)};
    const QStringList picture{u"--screenshot"_s, mSite.path(u"panel.png"_s)};
    const QStringList dryRun{u"--dry-run"_s, mSite.document()};
    for (const QStringList &action : {picture, dryRun, QStringList{u"--list"_s}}) {
        QCOMPARE(runKvprint(onPPD + action, {{}, variables}).status, 0);
    }
}

void tst_scriptprogram::lengthsArePointsInAnyFont()
{
    const auto shown = [](const QString &dpi) {
        ProgramTalk talk({}, {u"QT_FONT_DPI="_s + dpi});
        talk.ask(openLine(u"all"_s));
        const QJsonObject view = talk.ask(R"({"cmd":"view"})");
        talk.ask(R"({"cmd":"show"})");
        return compact(view) + compact(talk.ask(R"({"cmd":"state"})"));
    };
    QCOMPARE(shown(u"240"_s), shown(u"96"_s));
}

void tst_scriptprogram::alertGoesToTheAnswerAlone()
{
    const QByteArray open = R"({"cmd":"open","paper":"HS12x100","ppd":)" +
                            compact(PrintingSite::ppdPath(u"follow"_s)) + '}';
    const QByteArray click = R"({"cmd":"click","control":"mCutEveryChkBx"})"
                             "\n";
    const ProgramRun run =
        runKvprint({script, standardInput},
                   {open + "\n{\"cmd\":\"view\"}\n{\"cmd\":\"show\"}\n" + click + click, {}});
    QCOMPARE(run.status, 0);
    QCOMPARE(eventsOf(answersOf(run).last()).size(), 2);
    QVERIFY2(!run.errors.contains(u"kvprint:"), qPrintable(run.errors));
}

KV_TEST(tst_scriptprogram)
#include "tst_scriptprogram.moc"
