// SPDX-License-Identifier: Apache-2.0
#include "PrintingTest.h"
#include "ProgramRun.h"

#include <QFileInfo>
#include <QTest>

namespace {
const QString dryRun = u"--dry-run"_s;

/// What two jobs must have in common to be printed alike. What a job has anyway may be unsaid.
QStringList essence(const QMap<QString, QString> &job)
{
    static const QStringList keys{u"PageSize"_s,           u"fit-to-page"_s,     u"job-billing"_s,
                                  u"job-name"_s,           u"job-printer-uri"_s, u"media"_s,
                                  u"number-of-documents"_s};
    static const QStringList countingKeys{u"copies"_s, u"number-up"_s};
    QStringList parts;
    for (auto it = job.begin(); it != job.end(); ++it) {
        if (keys.contains(it.key()) || it.key().startsWith(u"Kv") ||
            (countingKeys.contains(it.key()) && it.value() != u"1")) {
            parts.append(it.key() + u'=' + it.value());
        }
    }
    return parts;
}

QString commandIn(const ProgramRun &run)
{
    const qsizetype start = run.output.startsWith(u"lp ") ? 0 : run.output.indexOf(u"\nlp ") + 1;
    return run.output.mid(start);
}
} // namespace

/// The dry run: what it tells, and whether its command prints the same job as kvprint does.
class tst_dryrun : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void demonstration();
    void summary_data();
    void summary();
    void commandOfAPPD();
    void commandNamesTheCopies_data();
    void commandNamesTheCopies();
    void commandPrintsTheSameJob_data();
    void commandPrintsTheSameJob();
    void commandTakesAnyFileName_data();
    void commandTakesAnyFileName();
    void savedOptionsAreLeftToTheCommand();
    void commandNamesTheInstance();
    void nothingIsPrinted();
    void fileThatIsNotThereYet();
    void printerWithoutAPPD();
    void unknownOptionsOfAPPDAlone();
    void outputThatCannotBeWritten();

private: // NOLINT(readability-redundant-access-specifiers)
    /// The job that has been printed since the last call; 0 for none or more than one.
    int newJob();

    qsizetype mJobCount = 0;
};

void tst_dryrun::init()
{
    PrintingTest::init();
    mJobCount = mSite.scheduler().jobIds().size();
}

int tst_dryrun::newJob()
{
    const QList<int> jobs = mSite.scheduler().jobIds();
    const bool isOneMore = jobs.size() == mJobCount + 1;
    mJobCount = jobs.size();
    return isOneMore ? jobs.last() : 0;
}

void tst_dryrun::demonstration()
{
    const ProgramRun run = runKvprint({u"--ppd"_s, PrintingSite::ppdPath(u"tape"_s), u"--preset"_s,
                                       u"AHCMOffOnOffOff"_s, dryRun, u"label.pdf"_s},
                                      {{}, {u"CUPS_SERVER=127.0.0.1:9"_s}});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output,
             u"Auto Cut: No\nHalf Cut: Yes\nSpecial Tape: No\nChain Printing: No\n"
             "Mirror Printing: No\nRemove Blank Space: No\n"
             "lp -o KvMirror=OFF -o KvAutoTapeCut=OFF -o KvHalfCut=ON -o KvChainPrint=OFF "
             "-o KvSpecialTape=OFF -o KvRemoveBlkSpace=OFF -- label.pdf\n"_s);
}

void tst_dryrun::summary_data()
{
    const TestTable<QStringList, QStringList> table("arguments", "lines");
    const auto add = [&table](const char *name, const QString &printer, const QStringList &more,
                              const QStringList &lines) {
        table.add(name, QStringList{u"-d"_s, printer} + more, lines);
    };
    const QString o = u"-o"_s;
    add("labels", u"label"_s, {o, u"KvCutLabel=12"_s},
        {u"Cut Every: 12 labels"_s, u"Cut at End: No"_s, u"Mirror Printing: No"_s});
    add("cuts after some labels", u"follow"_s, {o, u"KvCutLabel=12 KvMirror=ON"_s},
        {u"Cut Every: 12 labels"_s, u"Half Cut: No"_s, u"Chain Printing: No"_s,
         u"Mirror Printing: Yes"_s});
    add("no cuts", u"follow"_s, {o, u"KvAutoTapeCut=OFF"_s},
        {u"Cut Every: No"_s, u"Half Cut: No"_s, u"Chain Printing: No"_s, u"Mirror Printing: No"_s});
    add("label paper", u"tape"_s, {o, u"media=FL21x45"_s},
        {u"Auto Cut: Yes"_s, u"Half Cut: No"_s, u"Special Tape: No"_s, u"Chain Printing: No"_s,
         u"Mirror Printing: No"_s});
    add("no options of the panel's", u"plain"_s, {}, {});
}

void tst_dryrun::summary()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QStringList, lines);
    const ProgramRun run = runKvprint(arguments + QStringList{dryRun, mSite.document()});
    QCOMPARE(run.status, 0);
    QStringList found = run.lines();
    QVERIFY(found.takeLast().startsWith(u"lp "));
    QCOMPARE(found, lines);
}

void tst_dryrun::commandOfAPPD()
{
    const ProgramRun run = runKvprint({u"--ppd"_s, PrintingSite::ppdPath(u"label"_s), u"-o"_s,
                                       u"KvCutLabel=5"_s, u"-n"_s, u"2"_s, dryRun, u"a b"_s});
    QCOMPARE(commandIn(run), u"lp -n 2 -o KvCutLabel=5 -o KvCutAtEnd=OFF -o KvMirror=OFF "
                             "-o KvAutoTapeCut=ON -- 'a b'\n"_s);
}

void tst_dryrun::commandNamesTheCopies_data()
{
    const TestTable<QStringList, QString> table("arguments", "part");
    table.add("several", {u"-n"_s, u"3"_s}, u" -n 3 "_s);
    // The user may have saved another number for the queue.
    table.add("one", {u"-n"_s, u"1"_s}, u" -n 1 "_s);
    table.add("as an option", {u"-o"_s, u"copies=4"_s}, u" -o copies=4 "_s);
}

void tst_dryrun::commandNamesTheCopies()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, part);
    const ProgramRun run = runKvprint(QStringList{u"-d"_s, u"label"_s} + arguments +
                                      QStringList{dryRun, mSite.document()});
    QVERIFY2(commandIn(run).contains(part), qPrintable(run.output));
    const ProgramRun unsaid = runKvprint({u"-d"_s, u"label"_s, dryRun, mSite.document()});
    QVERIFY(!commandIn(unsaid).contains(u" -n "));
}

void tst_dryrun::commandPrintsTheSameJob_data()
{
    const TestTable<QString, QStringList> table("saved", "arguments");
    const QString none;
    const QStringList tape{u"-d"_s, u"tape"_s};
    const QString o = u"-o"_s;
    table.add("defaults", none, tape);
    table.add("preset and options", none,
              tape + QStringList{u"--preset"_s, u"AHCMOffOnOffOff"_s, o, u"KvMirror=ON"_s});
    table.add("paper and copies", none, tape + QStringList{o, u"media=T24x100"_s, u"-n"_s, u"2"_s});
    table.add("two numbers of copies", none, tape + QStringList{u"-n"_s, u"2"_s, o, u"copies=4"_s});
    table.add("custom paper", none, tape + QStringList{o, u"PageSize=Custom.20x50mm"_s});
    table.add("spaces", none, tape + QStringList{o, u"job-billing='two  words'"_s});
    table.add("quotes", none, tape + QStringList{o, uR"(job-billing=it\'s\ \"quoted\")"_s});
    table.add("braces, dollars and backslashes", none,
              tape + QStringList{o, uR"(job-billing={a}\ $HOME\\n\ `id`\ *;&|#!)"_s});
    table.add("braces in front", none, tape + QStringList{o, uR"(job-billing=\{a\}\ b)"_s});
    table.add("an empty value", none, tape + QStringList{o, u"job-billing="_s});
    table.add("letters of the world", none, tape + QStringList{o, u"job-billing=Größe\u00a0€"_s});
    table.add("options of the job's", none, tape + QStringList{o, u"number-up=2 fit-to-page"_s});
    table.add("another printer", none, {u"-d"_s, u"follow"_s, o, u"KvCutLabel=9"_s});
    table.add("no printer named", u"Default mark KvCutMark=ON"_s, {});
    table.add("saved choices", u"Dest tape KvHalfCut=ON KvChainPrint=ON"_s,
              tape + QStringList{o, u"KvHalfCut=OFF"_s});
    table.add("saved choices, and a preset", u"Dest tape KvHalfCut=ON KvRemoveBlkSpace=ON"_s,
              tape + QStringList{u"--preset"_s, u"AHCMOnOffOnOff"_s});
    table.add("saved paper", u"Dest tape PageSize=FL21x45"_s, tape);
    table.add("saved paper, and another asked for", u"Dest tape media=FL21x45"_s,
              tape + QStringList{o, u"media=T24x100"_s});
    table.add("saved options of other kinds", u"Dest tape number-up=2 job-billing=labels"_s, tape);
    table.add("an instance of a printer", u"Dest tape/draft KvHalfCut=ON number-up=2"_s,
              {u"-d"_s, u"tape/draft"_s, o, u"KvMirror=ON"_s});
    table.add("saved number of copies", u"Dest tape copies=3"_s, tape);
    table.add("saved number of copies, and one asked for", u"Dest tape copies=3"_s,
              tape + QStringList{u"-n"_s, u"1"_s});
}

void tst_dryrun::commandPrintsTheSameJob()
{
    QFETCH(const QString, saved);
    QFETCH(QStringList, arguments);
    QVERIFY(mSite.saveUserOptions(saved.toUtf8() + '\n'));
    // A job that is done has no documents any more.
    arguments << u"-o"_s << u"job-hold-until=indefinite"_s << mSite.document(u"a.txt"_s)
              << mSite.document(u"b.txt"_s);
    const ProgramRun told = runKvprint(QStringList{dryRun} + arguments);
    QVERIFY2(told.status == 0, qPrintable(told.errors));
    QCOMPARE(newJob(), 0);
    const ProgramRun lp = runInShell(commandIn(told));
    QVERIFY2(lp.status == 0, qPrintable(lp.errors));
    const int byLp = newJob();
    QVERIFY(byLp > 0);
    const ProgramRun printed = runKvprint(QStringList{u"--no-dialog"_s} + arguments);
    QVERIFY2(printed.status == 0, qPrintable(printed.errors));
    const int byKvprint = newJob();
    QVERIFY(byKvprint > 0);
    QCOMPARE(essence(mSite.job(byLp)), essence(mSite.job(byKvprint)));
    QVERIFY(essence(mSite.job(byLp)).contains(u"number-of-documents=2"_s));
}

void tst_dryrun::commandTakesAnyFileName_data()
{
    const TestTable<QString> table("name");
    table.add("spaces", u"two  words.txt"_s);
    table.add("quotes", u"it's \"quoted\".txt"_s);
    table.add("what a shell replaces", u"$HOME `id` \\ *.txt"_s);
    table.add("a variable", u"$HOME"_s);
    table.add("a pattern", u"*"_s);
    table.add("what ends a command", u"#;&|<>()"_s);
    table.add("the user's folder", u"~"_s);
    table.add("letters of the world", u"Größe €.txt"_s);
    table.add("like a variable", u"a=b"_s);
    table.add("like an option", u"-n"_s);
    table.add("like a long option", u"--help"_s);
    table.add("like standard input", u"-"_s);
    table.add("like the end of the options", u"--"_s);
    table.add("a line's end within", u"new\nline.txt"_s);
    table.add("a line's end behind", u"end.txt\n"_s);
}

void tst_dryrun::commandTakesAnyFileName()
{
    QFETCH(const QString, name);
    const ProgramInput inFolder{{}, {}, QFileInfo(mSite.document(name)).path()};
    const ProgramRun told = runKvprint({u"-d"_s, u"label"_s, dryRun, u"--"_s, name}, inFolder);
    QVERIFY2(told.status == 0, qPrintable(told.errors));
    QVERIFY2(!told.errors.contains(u"kvprint: "), qPrintable(told.errors));
    const ProgramRun lp = runInShell(commandIn(told), inFolder);
    QVERIFY2(lp.status == 0, qPrintable(lp.errors));
    const int job = newJob();
    QVERIFY2(job > 0, qPrintable(commandIn(told)));
    // A line's end is no part of a title.
    if (!name.contains(u'\n')) {
        QCOMPARE(mSite.job(job).value(u"job-name"_s), name);
    }
}

void tst_dryrun::savedOptionsAreLeftToTheCommand()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=ON number-up=2 PageSize=T24x100\n"));
    const ProgramRun run = runKvprint({u"-d"_s, u"tape"_s, dryRun, mSite.document()});
    // The panel's choices are told in any case, as they are what the summary says.
    QVERIFY2(commandIn(run).contains(u" -o KvHalfCut=ON "), qPrintable(run.output));
    QVERIFY2(!run.output.contains(u"number-up") && !run.output.contains(u"PageSize"),
             qPrintable(run.output));
}

void tst_dryrun::commandNamesTheInstance()
{
    QVERIFY(mSite.saveUserOptions("Dest tape/draft KvHalfCut=ON\n"));
    const ProgramRun run = runKvprint({u"-d"_s, u"tape/draft"_s, dryRun, mSite.document()});
    QVERIFY2(run.status == 0, qPrintable(run.errors));
    QVERIFY(run.lines().contains(u"Half Cut: Yes"_s));
    QVERIFY2(commandIn(run).startsWith(u"lp -d tape/draft "), qPrintable(run.output));
}

void tst_dryrun::nothingIsPrinted()
{
    const QString file = mSite.document();
    for (const QStringList &more :
         {QStringList{}, QStringList{u"--no-dialog"_s}, QStringList{u"-n"_s, u"5"_s}}) {
        const ProgramRun run =
            runKvprint(QStringList{u"-d"_s, u"tape"_s, dryRun} + more + QStringList{file});
        QCOMPARE(run.status, 0);
        QVERIFY(commandIn(run).startsWith(u"lp -d tape "));
        QCOMPARE(run.output.count(u"lp "), 1);
    }
    QCOMPARE(mSite.scheduler().jobIds().size(), mJobCount);
}

void tst_dryrun::fileThatIsNotThereYet()
{
    const ProgramRun run = runKvprint({u"-d"_s, u"tape"_s, dryRun, u"/nowhere/later.pdf"_s});
    QCOMPARE(run.status, 0);
    QVERIFY(commandIn(run).endsWith(u" -- /nowhere/later.pdf\n"));
    QVERIFY(run.tells(u"kvprint: /nowhere/later.pdf: No such file or directory"_s));
}

void tst_dryrun::printerWithoutAPPD()
{
    QVERIFY(addPrinter(u"bare"_s, {}));
    const QStringList bare{u"-d"_s, u"bare"_s, dryRun, u"-o"_s, u"KvMirror=ON"_s};
    const ProgramRun run = runKvprint(bare + QStringList{u"a.txt"_s});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output, u"lp -d bare -o KvMirror=ON -- a.txt\n"_s);
    const ProgramRun preset =
        runKvprint(bare + QStringList{u"--preset"_s, u"SPMROnOff"_s, u"a.txt"_s});
    QCOMPARE(preset.status, 2);
    QVERIFY(preset.tells(u"the printer bare has no PPD, and so no presets"_s));
}

void tst_dryrun::unknownOptionsOfAPPDAlone()
{
    const ProgramRun run =
        runKvprint({u"--ppd"_s, PrintingSite::ppdPath(u"plain"_s), dryRun, u"-o"_s,
                    u"KvHalfCut=ON"_s, u"-o"_s, u"fit-to-page"_s, u"a.txt"_s});
    QCOMPARE(run.status, 0);
    QCOMPARE(run.output, u"lp -o KvHalfCut=ON -o fit-to-page=true -- a.txt\n"_s);
}

void tst_dryrun::outputThatCannotBeWritten()
{
    // Whoever reads the command must not take silence for success.
    const QString line = u"exec '%1' --ppd '%2' --dry-run a.pdf > /dev/full"_s;
    const ProgramRun run =
        runInShell(line.arg(QStringLiteral(KV_PRINT_PROGRAM), PrintingSite::ppdPath(u"tape"_s)));
    QCOMPARE(run.status, 3);
    QVERIFY(run.tells(u"No space left on device"_s));
}

KV_TEST(tst_dryrun)
#include "tst_dryrun.moc"
