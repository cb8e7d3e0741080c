// SPDX-License-Identifier: Apache-2.0
#include "PrintingSite.h"
#include "SampleChoices.h"
#include "kvprint/CommandLine.h"
#include "kvprint/PrintCommand.h"

#include <QProcess>
#include <QTest>

using Action = CommandLine::Action;

Q_DECLARE_METATYPE(CommandLine::Action)

namespace {
constexpr int runTimeoutMs = 30'000;

/// "KEY=VALUE" of every option, in order.
QStringList pairsOf(const JobOptions &options)
{
    QStringList pairs;
    for (const auto &[key, value] : options.pairs()) {
        pairs.append(key + u'=' + value);
    }
    return pairs;
}

CommandLine parse(const QStringList &arguments)
{
    return CommandLine::parse(QStringList{QStringLiteral("kvprint")} + arguments,
                              QStringLiteral("1.2.3"));
}

/// How a kvprint process ended.
struct Run
{
    int status = -1;
    QString output;
    QString errors;
};

Run runProgram(const QStringList &arguments,
               const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
{
    QProcess kvprint;
    kvprint.setProcessEnvironment(environment);
    kvprint.start(QStringLiteral(KV_PRINT_PROGRAM), arguments);
    Run run;
    if (kvprint.waitForFinished(runTimeoutMs) && kvprint.exitStatus() == QProcess::NormalExit) {
        run.status = kvprint.exitCode();
    } else {
        kvprint.kill();
        kvprint.waitForFinished();
    }
    run.output = QString::fromLocal8Bit(kvprint.readAllStandardOutput());
    run.errors = QString::fromLocal8Bit(kvprint.readAllStandardError());
    return run;
}

/// The environment of a process whose print dialog is worked by the plug-in of that name.
QProcessEnvironment environmentWithUser(const QString &deed)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), QStringLiteral(KV_TEST_PLUGIN_FOLDER));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"),
                       QStringLiteral("dialoguser:") + deed);
    return environment;
}
} // namespace

class tst_commandline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void acceptedArguments_data();
    void acceptedArguments();
    void argumentsWithoutADialog_data();
    void argumentsWithoutADialog();
    void presetAndOptionsWithoutADialog();
    void refusedArguments_data();
    void refusedArguments();
    void refusedCombinations_data();
    void refusedCombinations();
    void help();
    void version();

    void options_data();
    void options();
    void optionsKeepTheirOrder();
    void valueOfAnOption();
    void optionsForCups();

    void programHelpAndVersion();
    void programStatus_data();
    void programStatus();
    void programWithoutScheduler();
    void programWithoutDisplay();
    void acceptedProgramPrints();
    void cancelledProgramPrintsNothing();
    void dialogSpeaksTheUsersLanguage_data();
    void dialogSpeaksTheUsersLanguage();

private: // NOLINT(readability-redundant-access-specifiers)
    PrintingSite mSite;
};

void tst_commandline::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
}

void tst_commandline::acceptedArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("printer");
    QTest::addColumn<int>("copies");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QStringList>("files");
    const QStringList file{u"a.pdf"_s};
    QTest::newRow("a file") << file << QString() << 0 << QStringList() << file;
    QTest::newRow("files") << QStringList{u"b"_s, u"a"_s, u"b"_s} << QString() << 0 << QStringList()
                           << QStringList{u"b"_s, u"a"_s, u"b"_s};
    QTest::newRow("printer") << QStringList{u"-d"_s, u"tape"_s, u"a.pdf"_s} << u"tape"_s << 0
                             << QStringList() << file;
    QTest::newRow("copies") << QStringList{u"-n"_s, u"3"_s, u"a.pdf"_s} << QString() << 3
                            << QStringList() << file;
    QTest::newRow("most copies") << QStringList{u"-n9999"_s, u"a.pdf"_s} << QString() << 9999
                                 << QStringList() << file;
    QTest::newRow("options") << QStringList{u"-o"_s,  u"B=1"_s,   u"-o"_s,
                                            u"A=2"_s, u"-oC=3"_s, u"a.pdf"_s}
                             << QString() << 0 << QStringList{u"B=1"_s, u"A=2"_s, u"C=3"_s} << file;
    QTest::newRow("options at once")
        << QStringList{u"-o"_s, u"A=1 B=2 fit nolandscape"_s, u"a.pdf"_s} << QString() << 0
        << QStringList{u"A=1"_s, u"B=2"_s, u"fit=true"_s, u"landscape=false"_s} << file;
    QTest::newRow("option twice") << QStringList{u"-o"_s, u"A=1"_s, u"-o"_s, u"A=2"_s, u"a.pdf"_s}
                                  << QString() << 0 << QStringList{u"A=2"_s} << file;
    QTest::newRow("options behind the file")
        << QStringList{u"a.pdf"_s, u"-d"_s, u"x"_s, u"-n"_s, u"2"_s} << u"x"_s << 2 << QStringList()
        << file;
    QTest::newRow("file that looks like an option")
        << QStringList{u"-d"_s, u"x"_s, u"--"_s, u"-n"_s} << u"x"_s << 0 << QStringList()
        << QStringList{u"-n"_s};
}

void tst_commandline::acceptedArguments()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, printer);
    QFETCH(const int, copies);
    QFETCH(const QStringList, options);
    QFETCH(const QStringList, files);
    const CommandLine line = parse(arguments);
    QCOMPARE(line.action, Action::Print);
    QCOMPARE(line.message, QString());
    QCOMPARE(line.printer, printer);
    QCOMPARE(line.copies, copies);
    QCOMPARE(pairsOf(line.options), options);
    QCOMPARE(line.files, files);
}

void tst_commandline::argumentsWithoutADialog_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<Action>("action");
    QTest::addColumn<QString>("about");
    QTest::addColumn<QString>("file");
    const auto add = [](const char *name, const QStringList &arguments, Action action,
                        const QString &about, const QString &file) {
        QTest::newRow(name) << arguments << action << about << file;
    };
    const QString a = QStringLiteral("a.pdf");
    const QString none;
    add("no dialog", {u"--no-dialog"_s, a}, Action::PrintDirectly, none, a);
    add("no dialog at a printer", {u"--no-dialog"_s, u"-d"_s, u"tape"_s, a}, Action::PrintDirectly,
        u"tape"_s, a);
    add("no dialog behind the file", {a, u"-dtape"_s, u"--no-dialog"_s}, Action::PrintDirectly,
        u"tape"_s, a);
    add("dry run", {u"--dry-run"_s, a}, Action::PrintDirectly, u"dry"_s, a);
    add("dry run without a dialog", {u"--no-dialog"_s, u"--dry-run"_s, u"-dtape"_s, a},
        Action::PrintDirectly, u"tape dry"_s, a);
    add("dry run on a PPD", {u"--ppd"_s, u"t.ppd"_s, u"--dry-run"_s, a}, Action::PrintDirectly,
        u"t.ppd dry"_s, a);
    add("PPD behind an equals sign", {u"--ppd=t.ppd"_s, u"--dry-run"_s, a}, Action::PrintDirectly,
        u"t.ppd dry"_s, a);
    add("list", {u"--list"_s}, Action::List, none, none);
    add("list as JSON", {u"--list"_s, u"--json"_s}, Action::List, u"json"_s, none);
    add("list of a printer", {u"-d"_s, u"tape"_s, u"--list"_s}, Action::List, u"tape"_s, none);
    add("list of a PPD", {u"--list"_s, u"--json"_s, u"--ppd"_s, u"t.ppd"_s}, Action::List,
        u"t.ppd json"_s, none);
    add("picture", {u"--screenshot"_s, u"a.png"_s}, Action::Screenshot, none, u"a.png"_s);
    add("picture of a PPD", {u"--ppd"_s, u"t.ppd"_s, u"--screenshot=a.png"_s}, Action::Screenshot,
        u"t.ppd"_s, u"a.png"_s);
    add("script", {u"--script"_s, u"a.jsonl"_s}, Action::RunScript, none, u"a.jsonl"_s);
    add("script from standard input", {u"--script"_s, u"-"_s}, Action::RunScript, none, u"-"_s);
    add("script on a printer", {u"-dtape"_s, u"--script"_s, u"-"_s}, Action::RunScript, u"tape"_s,
        u"-"_s);
    add("script on a PPD", {u"--script=-"_s, u"--ppd=t.ppd"_s}, Action::RunScript, u"t.ppd"_s,
        u"-"_s);
}

void tst_commandline::argumentsWithoutADialog()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const Action, action);
    QFETCH(const QString, about);
    QFETCH(const QString, file);
    const CommandLine line = parse(arguments);
    QCOMPARE(line.message, QString());
    QCOMPARE(line.action, action);
    QStringList said{line.printer, line.ppd, line.isDryRun ? u"dry"_s : QString(),
                     line.asJSON ? u"json"_s : QString()};
    said.removeAll(QString());
    QCOMPARE(said.join(u' '), about);
    QCOMPARE(line.actionFile + line.files.join(u' '), file);
    QVERIFY(line.actionFile.isEmpty() || line.files.isEmpty());
}

void tst_commandline::presetAndOptionsWithoutADialog()
{
    const QStringList rest{u"--preset"_s, u"SPMROnOff"_s, u"-o"_s, u"A=1 B=2"_s,
                           u"-o"_s,       u"A=3"_s,       u"-d"_s, u"tape"_s};
    const QStringList printing{u"-n"_s, u"7"_s, u"a"_s, u"b"_s};
    for (const QStringList &action :
         {QStringList{u"--no-dialog"_s} + printing, QStringList{u"--dry-run"_s} + printing,
          QStringList{u"--screenshot"_s, u"a.png"_s}}) {
        const CommandLine line = parse(action + rest);
        QCOMPARE(line.message, QString());
        QCOMPARE(line.preset, u"SPMROnOff"_s);
        QCOMPARE(pairsOf(line.options), QStringList({u"A=3"_s, u"B=2"_s}));
        QCOMPARE(line.copies, action.contains(u"7"_s) ? 7 : 0);
    }
    QVERIFY(parse({u"--no-dialog"_s, u"a"_s}).preset.isNull());
    QVERIFY(parse({u"--no-dialog"_s, u"a"_s}).ppd.isNull());
}

void tst_commandline::refusedArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const QString copies = QStringLiteral("-n %1: the number of copies is 1 to 9999.");
    const QString option = QStringLiteral("-o %1: an option is KEY=VALUE.");
    const QString a = QStringLiteral("a.pdf");
    QTest::newRow("nothing") << QStringList() << u"There is no file to print."_s;
    QTest::newRow("no file") << QStringList{u"-d"_s, u"tape"_s} << u"There is no file to print."_s;
    QTest::newRow("unknown option") << QStringList{u"-x"_s, a} << u"Unknown option 'x'."_s;
    QTest::newRow("unknown long option")
        << QStringList{u"--copies"_s, a} << u"Unknown option 'copies'."_s;
    QTest::newRow("no printer's name") << QStringList{u"-d"_s} << u"Missing value after '-d'."_s;
    QTest::newRow("empty printer's name")
        << QStringList{u"-d"_s, QString(), a} << u"-d needs a value: PRINTER."_s;
    QTest::newRow("no copies") << QStringList{u"-n"_s, u"0"_s, a} << copies.arg(u"0"_s);
    QTest::newRow("negative copies") << QStringList{u"-n"_s, u"-1"_s, a} << copies.arg(u"-1"_s);
    QTest::newRow("too many copies")
        << QStringList{u"-n"_s, u"10000"_s, a} << copies.arg(u"10000"_s);
    QTest::newRow("far too many copies")
        << QStringList{u"-n"_s, u"99999999999"_s, a} << copies.arg(u"99999999999"_s);
    QTest::newRow("copies that are no number")
        << QStringList{u"-n"_s, u"two"_s, a} << copies.arg(u"two"_s);
    QTest::newRow("a part of a copy") << QStringList{u"-n"_s, u"1.5"_s, a} << copies.arg(u"1.5"_s);
    QTest::newRow("empty option") << QStringList{u"-o"_s, QString(), a}
                                  << u"-o needs a value: KEY=VALUE."_s;
    QTest::newRow("blank option") << QStringList{u"-o"_s, u" "_s, a} << option.arg(u" "_s);
    QTest::newRow("blank option behind another")
        << QStringList{u"-o"_s, u"A=1"_s, u"-o"_s, u" "_s, a} << option.arg(u" "_s);
    QTest::newRow("option that would make up a line")
        << QStringList{u"-o"_s, u"=\nkvprint: all is well\x1b[2J"_s, a}
        << option.arg(u"=\\nkvprint: all is well\\x1b[2J"_s);
    QTest::newRow("option without a key")
        << QStringList{u"-o"_s, u"=ON"_s, a} << option.arg(u"=ON"_s);
}

void tst_commandline::refusedArguments()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, reason);
    const CommandLine line = parse(arguments);
    QCOMPARE(line.action, Action::Refuse);
    QCOMPARE(line.message, reason + QStringLiteral("\nTry 'kvprint --help'."));
}

void tst_commandline::refusedCombinations_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const auto add = [](const QString &arguments, const QString &reason) {
        QTest::newRow(qPrintable(arguments)) << arguments.split(u' ') << reason;
    };
    const QString ppdNeeds =
        QStringLiteral("--ppd needs --dry-run, --list, --screenshot or --script.");
    const QString presetNeeds =
        QStringLiteral("--preset needs --no-dialog, --dry-run or --screenshot.");
    add(u"--no-dialog"_s, u"There is no file to print."_s);
    add(u"--dry-run"_s, u"There is no file to print."_s);
    add(u"--dry-run --ppd t.ppd"_s, u"There is no file to print."_s);
    add(u"--ppd t.ppd a.pdf"_s, ppdNeeds);
    add(u"--ppd t.ppd"_s, ppdNeeds);
    add(u"--ppd t.ppd --no-dialog a.pdf"_s, ppdNeeds);
    add(u"--ppd t.ppd -d tape --dry-run a.pdf"_s, u"--ppd does not go with -d."_s);
    add(u"--ppd t.ppd -d tape --list"_s, u"--ppd does not go with -d."_s);
    add(u"--ppd t.ppd -d tape --script -"_s, u"--ppd does not go with -d."_s);
    add(u"--preset P a.pdf"_s, presetNeeds);
    add(u"--preset P --list"_s, u"--preset does not go with --list."_s);
    add(u"--preset P --script -"_s, u"--preset does not go with --script."_s);
    add(u"--json a.pdf"_s, u"--json needs --list."_s);
    add(u"--json --no-dialog a.pdf"_s, u"--json does not go with --no-dialog."_s);
    add(u"--json --dry-run a.pdf"_s, u"--json does not go with --dry-run."_s);
    add(u"--list a.pdf"_s, u"--list prints no file."_s);
    add(u"--list -n 2"_s, u"-n does not go with --list."_s);
    add(u"--list -o A=1"_s, u"-o does not go with --list."_s);
    add(u"--list --no-dialog"_s, u"--list does not go with --no-dialog."_s);
    add(u"--list --dry-run a.pdf"_s, u"--list does not go with --dry-run."_s);
    add(u"--list --screenshot a.png"_s, u"--screenshot does not go with --list."_s);
    add(u"--list --script -"_s, u"--script does not go with --list."_s);
    add(u"--screenshot a.png a.pdf"_s, u"--screenshot prints no file."_s);
    add(u"--screenshot a.png -n 2"_s, u"-n does not go with --screenshot."_s);
    add(u"--screenshot a.png --script -"_s, u"--script does not go with --screenshot."_s);
    add(u"--screenshot a.png --no-dialog a.pdf"_s, u"--screenshot does not go with --no-dialog."_s);
    add(u"--script - a.jsonl"_s, u"--script prints no file."_s);
    add(u"--script - -o A=1"_s, u"-o does not go with --script."_s);
    add(u"--script - -n 2"_s, u"-n does not go with --script."_s);
    add(u"--script - --dry-run a.pdf"_s, u"--script does not go with --dry-run."_s);
    add(u"--script"_s, u"Missing value after '--script'."_s);
    add(u"--screenshot"_s, u"Missing value after '--screenshot'."_s);
    add(u"--list --ppd"_s, u"Missing value after '--ppd'."_s);
    add(u"--script="_s, u"--script needs a value: FILE."_s);
    add(u"--screenshot="_s, u"--screenshot needs a value: FILE."_s);
    add(u"--ppd= --list"_s, u"--ppd needs a value: FILE."_s);
    add(u"--preset= --dry-run a.pdf"_s, u"--preset needs a value: NAME."_s);
    add(u"--no-dialog -n 0 a.pdf"_s, u"-n 0: the number of copies is 1 to 9999."_s);
    add(u"--no-dialog -o =1 a.pdf"_s, u"-o =1: an option is KEY=VALUE."_s);
    add(u"--list=all"_s, u"Unexpected value after '--list'."_s);
}

void tst_commandline::refusedCombinations()
{
    refusedArguments();
}

void tst_commandline::help()
{
    for (const char *argument : {"-h", "--help"}) {
        const CommandLine line = parse({QLatin1String(argument)});
        QCOMPARE(line.action, Action::ShowHelp);
        for (const char *part :
             {"FILE...", "-h, --help", "-v, --version", "-d <PRINTER>", "-n <COPIES>",
              "-o <KEY=VALUE>", "PDF", "--preset <NAME>", "--no-dialog", "--dry-run",
              "--ppd <FILE>", "--list", "--json", "--screenshot <FILE>", "--script <FILE>"}) {
            QVERIFY2(line.message.contains(QLatin1String(part)), part);
        }
    }
}

void tst_commandline::version()
{
    for (const char *argument : {"-v", "--version"}) {
        const CommandLine line = parse({QLatin1String(argument)});
        QCOMPARE(line.action, Action::ShowVersion);
        QCOMPARE(line.message, QStringLiteral("kvprint 1.2.3\n"));
    }
}

void tst_commandline::options_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QStringList>("pairs");
    QTest::newRow("nothing") << QString() << QStringList();
    QTest::newRow("a pair") << u"KvMirror=ON"_s << QStringList{u"KvMirror=ON"_s};
    QTest::newRow("pairs") << u"A=1  B=2"_s << QStringList{u"A=1"_s, u"B=2"_s};
    QTest::newRow("flags") << u"fit nolandscape"_s
                           << QStringList{u"fit=true"_s, u"landscape=false"_s};
    QTest::newRow("quotation marks")
        << u"A='b c' D=\"e f\""_s << QStringList{u"A=b c"_s, u"D=e f"_s};
    QTest::newRow("empty value") << u"A= B=1"_s << QStringList{u"A="_s, u"B=1"_s};
    QTest::newRow("an equals sign in a value") << u"A=b=c"_s << QStringList{u"A=b=c"_s};
    QTest::newRow("letters of all the world") << u"A=Größe"_s << QStringList{u"A=Größe"_s};
    QTest::newRow("the same key twice") << u"A=1 B=2 A=3"_s << QStringList{u"A=3"_s, u"B=2"_s};
}

void tst_commandline::options()
{
    QFETCH(const QString, argument);
    QFETCH(const QStringList, pairs);
    JobOptions options;
    options.parse(argument);
    QCOMPARE(pairsOf(options), pairs);
}

void tst_commandline::optionsKeepTheirOrder()
{
    JobOptions options;
    options.set(u"B"_s, u"1"_s);
    options.set(u"A"_s, u"2"_s);
    options.set(u"B"_s, u"3"_s);
    QCOMPARE(pairsOf(options), QStringList({u"B=3"_s, u"A=2"_s}));

    JobOptions others;
    others.set(u"C"_s, u"4"_s);
    others.set(u"A"_s, u"5"_s);
    options.merge(others);
    QCOMPARE(pairsOf(options), QStringList({u"B=3"_s, u"A=5"_s, u"C=4"_s}));
    QCOMPARE(pairsOf(others), QStringList({u"C=4"_s, u"A=5"_s}));

    options.remove(u"A"_s);
    options.remove(u"X"_s);
    QCOMPARE(pairsOf(options), QStringList({u"B=3"_s, u"C=4"_s}));
}

void tst_commandline::valueOfAnOption()
{
    JobOptions options;
    options.set(u"A"_s, u"1"_s);
    options.set(u"Empty"_s, u""_s);
    QCOMPARE(options.value(u"A"_s), u"1"_s);
    QVERIFY(options.value(u"a"_s).isNull());
    QVERIFY(options.value(u"B"_s).isNull());
    QVERIFY(options.contains(u"A"_s));
    QVERIFY(options.contains(u"Empty"_s));
    QVERIFY(!options.contains(u"B"_s));
}

void tst_commandline::optionsForCups()
{
    JobOptions options;
    QCOMPARE(CupsOptions(options).count(), 0);
    options.set(u"KvMirror"_s, u"ON"_s);
    options.set(u"title"_s, u"Größe 1"_s);
    const CupsOptions cups(options);
    QCOMPARE(cups.count(), 2);
    QCOMPARE(cupsGetOption("KvMirror", cups.count(), cups.data()), "ON");
    QCOMPARE(cupsGetOption("title", cups.count(), cups.data()), "Gr\xc3\xb6\xc3\x9f"
                                                                "e 1");
    QVERIFY(!cupsGetOption("KvHalfCut", cups.count(), cups.data()));
}

void tst_commandline::programHelpAndVersion()
{
    const Run help = runProgram({QStringLiteral("--help")});
    QCOMPARE(help.status, 0);
    QVERIFY(help.output.startsWith(u"Usage: kvprint [options] FILE...\n"));
    QCOMPARE(help.errors, QString());

    const Run version = runProgram({QStringLiteral("--version")});
    QCOMPARE(version.status, 0);
    QCOMPARE(version.output, QStringLiteral("kvprint " KV_VERSION "\n"));
    QCOMPARE(version.errors, QString());
}

void tst_commandline::programStatus_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("error");
    const QString file = mSite.document();
    const QString folder = QFileInfo(file).path();
    const QString empty = mSite.file(QStringLiteral("empty.txt"), {});
    const auto add = [](const char *name, const QStringList &arguments, int status,
                        const QString &error) {
        QTest::newRow(name) << arguments << status << error;
    };
    add("no file", {}, 2, u"There is no file to print."_s);
    add("no copies", {u"-n"_s, u"0"_s, file}, 2, u"-n 0: the number of copies is 1 to 9999."_s);
    add("unknown option", {u"--frobnicate"_s, file}, 2, u"Unknown option 'frobnicate'."_s);
    add("missing file", {u"/nowhere/a.pdf"_s}, 3, u"/nowhere/a.pdf: No such file or directory"_s);
    add("second file missing", {file, u"/nowhere/a.pdf"_s}, 3,
        u"/nowhere/a.pdf: No such file or directory"_s);
    add("empty file", {empty}, 3, empty + u": is empty"_s);
    add("folder", {folder}, 3, folder + u": is a folder"_s);
    add("unknown printer", {u"-d"_s, u"nowhere"_s, file}, 3,
        u"there is no printer nowhere; the printers are: all, follow, label, mark, plain, tape"_s);
    add("choice that the printer lacks", {u"-d"_s, u"tape"_s, u"-o"_s, u"KvHalfCut=MAYBE"_s, file},
        2, u"-o KvHalfCut=MAYBE: the choices of KvHalfCut are: OFF, ON"_s);
    add("paper that the printer lacks", {u"-d"_s, u"mark"_s, u"-o"_s, u"media=A4"_s, file}, 2,
        u"-o media=A4: the choices of media are: T12x100, T6x100, T9x100, T18x100, T24x100, "
        "FL21x45, FL24x60"_s);
    add("own paper size at a printer with fixed ones",
        {u"-d"_s, u"mark"_s, u"-o"_s, u"PageSize=Custom.20x50mm"_s, file}, 2,
        u"-o PageSize=Custom.20x50mm: the choices of PageSize are: T12x100, "_s);
}

void tst_commandline::programStatus()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    QFETCH(const QString, error);
    const QList<int> before = mSite.scheduler().jobIds();
    const Run run = runProgram(arguments);
    QCOMPARE(run.status, status);
    QVERIFY2(run.errors.contains(QStringLiteral("kvprint: ") + error), qPrintable(run.errors));
    QCOMPARE(run.errors.count(u"kvprint: "), 1);
    QCOMPARE(run.output, QString());
    QCOMPARE(mSite.scheduler().jobIds(), before);
}

void tst_commandline::programWithoutScheduler()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CUPS_SERVER"), QStringLiteral("127.0.0.1:9"));
    const Run run = runProgram({mSite.document()}, environment);
    QCOMPARE(run.status, 3);
    QVERIFY2(run.errors.contains(u"kvprint: no print scheduler answers at 127.0.0.1 (port 9): "),
             qPrintable(run.errors));
}

void tst_commandline::programWithoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(QLatin1String(variable));
    }
    const Run run = runProgram({mSite.document()}, environment);
    QCOMPARE(run.status, 3);
    QVERIFY2(run.errors.contains(u"kvprint: there is no display to open the dialog on\n"),
             qPrintable(run.errors));
    // Neither help nor a refusal needs one.
    QCOMPARE(runProgram({QStringLiteral("--help")}, environment).status, 0);
    QCOMPARE(runProgram({}, environment).status, 2);
}

void tst_commandline::acceptedProgramPrints()
{
    const qsizetype before = mSite.scheduler().jobIds().size();
    const Run run = runProgram(
        {u"-d"_s, u"tape"_s, u"-n"_s, u"2"_s, u"-o"_s, u"KvChainPrint=ON"_s, mSite.document()},
        environmentWithUser(QStringLiteral("accept")));
    QVERIFY2(run.status == 0, qPrintable(run.errors));
    const QList<int> jobs = mSite.scheduler().jobIds();
    QCOMPARE(jobs.size(), before + 1);
    QCOMPARE(mSite.choices(jobs.last()),
             SampleChoices::replaced(SampleChoices::defaults(QStringLiteral("tape")),
                                     QStringLiteral("KvHalfCut=ON KvChainPrint=ON")));
    QCOMPARE(mSite.job(jobs.last()).value(QStringLiteral("copies")), QStringLiteral("2"));
}

void tst_commandline::cancelledProgramPrintsNothing()
{
    const QList<int> before = mSite.scheduler().jobIds();
    const Run run = runProgram({u"-d"_s, u"tape"_s, mSite.document()},
                               environmentWithUser(QStringLiteral("cancel")));
    QVERIFY2(run.status == 1, qPrintable(run.errors));
    QCOMPARE(mSite.scheduler().jobIds(), before);
}

void tst_commandline::dialogSpeaksTheUsersLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("cancel");
    QTest::newRow("English") << u"en_GB.UTF-8"_s << u"Cancel"_s;
    QTest::newRow("German") << u"de_DE.UTF-8"_s << u"Abbrechen"_s;
    QTest::newRow("no texts of Qt's") << u"sw_KE.UTF-8"_s << u"Cancel"_s;
}

void tst_commandline::dialogSpeaksTheUsersLanguage()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, cancel);
    QProcessEnvironment environment = environmentWithUser(QStringLiteral("tell"));
    environment.insert(QStringLiteral("LC_ALL"), locale);
    const Run run = runProgram({u"-d"_s, u"tape"_s, mSite.document()}, environment);
    QVERIFY2(run.status == 1, qPrintable(run.errors));
    const QStringList buttons = run.output.split(u'\n');
    QVERIFY2(buttons.contains(cancel), qPrintable(run.output));
}

KV_TEST(tst_commandline)
#include "tst_commandline.moc"
