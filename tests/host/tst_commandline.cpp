// SPDX-License-Identifier: Apache-2.0
#include "PrintingTest.h"
#include "ProgramRun.h"
#include "SampleChoices.h"
#include "kvprint/CommandLine.h"
#include "kvprint/PrintCommand.h"

#include <QTest>

using Action = CommandLine::Action;

Q_DECLARE_METATYPE(CommandLine::Action)

namespace {
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
    return CommandLine::parse(QStringList{u"kvprint"_s} + arguments, u"1.2.3"_s);
}

/// The variables of a process whose print dialog is worked by the plug-in of that name.
QStringList variablesWithUser(const QString &deed)
{
    return {QStringLiteral("QT_PLUGIN_PATH=" KV_TEST_PLUGIN_FOLDER),
            u"QT_QPA_GENERIC_PLUGINS=dialoguser:"_s + deed};
}
} // namespace

class tst_commandline : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
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
};

void tst_commandline::acceptedArguments_data()
{
    const TestTable<QStringList, QString, int, QStringList, QStringList> table(
        "arguments", "printer", "copies", "options", "files");
    const QStringList file{u"a.pdf"_s};
    table.add("a file", file, QString(), 0, {}, file);
    table.add("files", {u"b"_s, u"a"_s, u"b"_s}, QString(), 0, {}, {u"b"_s, u"a"_s, u"b"_s});
    table.add("printer", {u"-d"_s, u"tape"_s, u"a.pdf"_s}, u"tape"_s, 0, {}, file);
    table.add("copies", {u"-n"_s, u"3"_s, u"a.pdf"_s}, QString(), 3, {}, file);
    table.add("most copies", {u"-n9999"_s, u"a.pdf"_s}, QString(), 9999, {}, file);
    table.add("options", {u"-o"_s, u"B=1"_s, u"-o"_s, u"A=2"_s, u"-oC=3"_s, u"a.pdf"_s}, QString(),
              0, {u"B=1"_s, u"A=2"_s, u"C=3"_s}, file);
    table.add("options at once", {u"-o"_s, u"A=1 B=2 fit nolandscape"_s, u"a.pdf"_s}, QString(), 0,
              {u"A=1"_s, u"B=2"_s, u"fit=true"_s, u"landscape=false"_s}, file);
    table.add("option twice", {u"-o"_s, u"A=1"_s, u"-o"_s, u"A=2"_s, u"a.pdf"_s}, QString(), 0,
              {u"A=2"_s}, file);
    table.add("options behind the file", {u"a.pdf"_s, u"-d"_s, u"x"_s, u"-n"_s, u"2"_s}, u"x"_s, 2,
              {}, file);
    table.add("file that looks like an option", {u"-d"_s, u"x"_s, u"--"_s, u"-n"_s}, u"x"_s, 0, {},
              {u"-n"_s});
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
    const TestTable<QStringList, Action, QString, QString> table("arguments", "action", "about",
                                                                 "file");
    const QString a = u"a.pdf"_s;
    const QString none;
    table.add("no dialog", {u"--no-dialog"_s, a}, Action::PrintDirectly, none, a);
    table.add("no dialog at a printer", {u"--no-dialog"_s, u"-d"_s, u"tape"_s, a},
              Action::PrintDirectly, u"tape"_s, a);
    table.add("no dialog behind the file", {a, u"-dtape"_s, u"--no-dialog"_s},
              Action::PrintDirectly, u"tape"_s, a);
    table.add("dry run", {u"--dry-run"_s, a}, Action::PrintDirectly, u"dry"_s, a);
    table.add("dry run without a dialog", {u"--no-dialog"_s, u"--dry-run"_s, u"-dtape"_s, a},
              Action::PrintDirectly, u"tape dry"_s, a);
    table.add("dry run on a PPD", {u"--ppd"_s, u"t.ppd"_s, u"--dry-run"_s, a},
              Action::PrintDirectly, u"t.ppd dry"_s, a);
    table.add("PPD behind an equals sign", {u"--ppd=t.ppd"_s, u"--dry-run"_s, a},
              Action::PrintDirectly, u"t.ppd dry"_s, a);
    table.add("list", {u"--list"_s}, Action::List, none, none);
    table.add("list as JSON", {u"--list"_s, u"--json"_s}, Action::List, u"json"_s, none);
    table.add("list of a printer", {u"-d"_s, u"tape"_s, u"--list"_s}, Action::List, u"tape"_s,
              none);
    table.add("list of a PPD", {u"--list"_s, u"--json"_s, u"--ppd"_s, u"t.ppd"_s}, Action::List,
              u"t.ppd json"_s, none);
    table.add("check", {u"--check"_s}, Action::Check, none, none);
    table.add("check of a printer", {u"--check"_s, u"--json"_s, u"-d"_s, u"tape"_s}, Action::Check,
              u"tape json"_s, none);
    table.add("check of PPDs", {u"a.ppd"_s, u"--check"_s, u"b.ppd"_s}, Action::Check, none,
              u"a.ppd b.ppd"_s);
    table.add("check of a map", {u"--check-map"_s, u"a.json"_s}, Action::CheckMap, none,
              u"a.json"_s);
    table.add("picture", {u"--screenshot"_s, u"a.png"_s}, Action::Screenshot, none, u"a.png"_s);
    table.add("picture of a PPD", {u"--ppd"_s, u"t.ppd"_s, u"--screenshot=a.png"_s},
              Action::Screenshot, u"t.ppd"_s, u"a.png"_s);
    table.add("script", {u"--script"_s, u"a.jsonl"_s}, Action::RunScript, none, u"a.jsonl"_s);
    table.add("script from standard input", {u"--script"_s, u"-"_s}, Action::RunScript, none,
              u"-"_s);
    table.add("script on a printer", {u"-dtape"_s, u"--script"_s, u"-"_s}, Action::RunScript,
              u"tape"_s, u"-"_s);
    table.add("script on a PPD", {u"--script=-"_s, u"--ppd=t.ppd"_s}, Action::RunScript, u"t.ppd"_s,
              u"-"_s);
}

void tst_commandline::argumentsWithoutADialog()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const Action, action);
    const CommandLine line = parse(arguments);
    QCOMPARE(line.message, QString());
    QCOMPARE(line.action, action);
    QStringList said{line.printer, line.ppd, line.isDryRun ? u"dry"_s : QString(),
                     line.asJSON ? u"json"_s : QString()};
    said.removeAll(QString());
    QTEST(said.join(u' '), "about");
    QTEST(line.actionFile + line.files.join(u' '), "file");
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
    const TestTable<QStringList, QString> table("arguments", "reason");
    const QString copies = u"-n %1: the number of copies is 1 to 9999."_s;
    const QString option = u"-o %1: an option is KEY=VALUE."_s;
    const QString a = u"a.pdf"_s;
    table.add("nothing", {}, u"There is no file to print."_s);
    table.add("no file", {u"-d"_s, u"tape"_s}, u"There is no file to print."_s);
    table.add("unknown option", {u"-x"_s, a}, u"Unknown option 'x'."_s);
    table.add("unknown long option", {u"--copies"_s, a}, u"Unknown option 'copies'."_s);
    table.add("no printer's name", {u"-d"_s}, u"Missing value after '-d'."_s);
    table.add("empty printer's name", {u"-d"_s, QString(), a}, u"-d needs a value: PRINTER."_s);
    table.add("no copies", {u"-n"_s, u"0"_s, a}, copies.arg(u"0"_s));
    table.add("negative copies", {u"-n"_s, u"-1"_s, a}, copies.arg(u"-1"_s));
    table.add("too many copies", {u"-n"_s, u"10000"_s, a}, copies.arg(u"10000"_s));
    table.add("far too many copies", {u"-n"_s, u"99999999999"_s, a}, copies.arg(u"99999999999"_s));
    table.add("copies that are no number", {u"-n"_s, u"two"_s, a}, copies.arg(u"two"_s));
    table.add("a part of a copy", {u"-n"_s, u"1.5"_s, a}, copies.arg(u"1.5"_s));
    table.add("empty option", {u"-o"_s, QString(), a}, u"-o needs a value: KEY=VALUE."_s);
    table.add("blank option", {u"-o"_s, u" "_s, a}, option.arg(u" "_s));
    table.add("blank option behind another", {u"-o"_s, u"A=1"_s, u"-o"_s, u" "_s, a},
              option.arg(u" "_s));
    table.add("option that would make up a line", {u"-o"_s, u"=\nkvprint: all is well\x1b[2J"_s, a},
              option.arg(u"=\\nkvprint: all is well\\x1b[2J"_s));
    table.add("option without a key", {u"-o"_s, u"=ON"_s, a}, option.arg(u"=ON"_s));
}

void tst_commandline::refusedArguments()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, reason);
    const CommandLine line = parse(arguments);
    QCOMPARE(line.action, Action::Refuse);
    QCOMPARE(line.message, reason + u"\nTry 'kvprint --help'."_s);
}

void tst_commandline::refusedCombinations_data()
{
    const TestTable<QStringList, QString> table("arguments", "reason");
    const auto add = [&table](const QString &arguments, const QString &reason) {
        table.add(qPrintable(arguments), arguments.split(u' '), reason);
    };
    const QString ppdNeeds = u"--ppd needs --dry-run, --list, --screenshot or --script."_s;
    const QString presetNeeds = u"--preset needs --no-dialog, --dry-run or --screenshot."_s;
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
    add(u"--json a.pdf"_s, u"--json needs --list, --check or --check-map."_s);
    add(u"--json --no-dialog a.pdf"_s, u"--json does not go with --no-dialog."_s);
    add(u"--json --dry-run a.pdf"_s, u"--json does not go with --dry-run."_s);
    add(u"--list a.pdf"_s, u"--list takes no file."_s);
    add(u"--list -n 2"_s, u"-n does not go with --list."_s);
    add(u"--list -o A=1"_s, u"-o does not go with --list."_s);
    add(u"--list --no-dialog"_s, u"--list does not go with --no-dialog."_s);
    add(u"--list --dry-run a.pdf"_s, u"--list does not go with --dry-run."_s);
    add(u"--list --screenshot a.png"_s, u"--screenshot does not go with --list."_s);
    add(u"--list --script -"_s, u"--script does not go with --list."_s);
    add(u"--check --list"_s, u"--check does not go with --list."_s);
    add(u"--check --ppd t.ppd"_s, u"--ppd does not go with --check."_s);
    add(u"--check --check-map a.json"_s, u"--check-map does not go with --check."_s);
    add(u"--check-map a.json -d tape"_s, u"-d does not go with --check-map."_s);
    add(u"--check-map= t.ppd"_s, u"--check-map needs a value: FILE."_s);
    add(u"--screenshot a.png a.pdf"_s, u"--screenshot takes no file."_s);
    add(u"--screenshot a.png -n 2"_s, u"-n does not go with --screenshot."_s);
    add(u"--screenshot a.png --script -"_s, u"--script does not go with --screenshot."_s);
    add(u"--screenshot a.png --no-dialog a.pdf"_s, u"--screenshot does not go with --no-dialog."_s);
    add(u"--script - a.jsonl"_s, u"--script takes no file."_s);
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
    add(u"--batch b.jsonl a.pdf"_s, u"--batch takes no file."_s);
    add(u"--batch b.jsonl --no-dialog"_s, u"--batch does not go with --no-dialog."_s);
    add(u"--batch b.jsonl -n 2"_s, u"-n does not go with --batch."_s);
    add(u"--batch b.jsonl -o A=1"_s, u"-o does not go with --batch."_s);
    add(u"--batch b.jsonl --wait"_s, u"--wait does not go with --batch."_s);
    add(u"--batch b.jsonl --continue-from 0"_s,
        u"--continue-from 0: the number of lines is 1 to 2147483647."_s);
    add(u"--batch b.jsonl --pending 0"_s, u"--pending 0: the number of jobs is 1 to 1000000."_s);
    add(u"--batch b.jsonl --retry x"_s, u"--retry x: the number of seconds is 1 to 604800."_s);
    add(u"--journal j a.pdf"_s, u"--journal needs --batch."_s);
    add(u"--continue-from 2 --no-dialog a.pdf"_s,
        u"--continue-from does not go with --no-dialog."_s);
    add(u"--wait --dry-run a.pdf"_s, u"--wait does not go with --dry-run."_s);
    add(u"--wait --list"_s, u"--wait does not go with --list."_s);
    add(u"--alert --no-dialog a.pdf"_s, u"--alert does not go with --no-dialog."_s);
    add(u"--retry 5 --no-dialog a.pdf"_s, u"--retry needs --batch or --wait."_s);
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
        QCOMPARE(line.message, u"kvprint 1.2.3\n"_s);
    }
}

void tst_commandline::options_data()
{
    const TestTable<QString, QStringList> table("argument", "pairs");
    table.add("nothing", QString(), {});
    table.add("a pair", u"KvMirror=ON"_s, {u"KvMirror=ON"_s});
    table.add("pairs", u"A=1  B=2"_s, {u"A=1"_s, u"B=2"_s});
    table.add("flags", u"fit nolandscape"_s, {u"fit=true"_s, u"landscape=false"_s});
    table.add("quotation marks", u"A='b c' D=\"e f\""_s, {u"A=b c"_s, u"D=e f"_s});
    table.add("empty value", u"A= B=1"_s, {u"A="_s, u"B=1"_s});
    table.add("an equals sign in a value", u"A=b=c"_s, {u"A=b=c"_s});
    table.add("letters of all the world", u"A=Größe"_s, {u"A=Größe"_s});
    table.add("the same key twice", u"A=1 B=2 A=3"_s, {u"A=3"_s, u"B=2"_s});
}

void tst_commandline::options()
{
    QFETCH(const QString, argument);
    JobOptions options;
    options.parse(argument);
    QTEST(pairsOf(options), "pairs");
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
    const ProgramRun help = runKvprint({u"--help"_s});
    QCOMPARE(help.status, 0);
    QVERIFY(help.output.startsWith(u"Usage: kvprint [options] FILE...\n"));
    QCOMPARE(help.errors, QString());

    const ProgramRun version = runKvprint({u"--version"_s});
    QCOMPARE(version.status, 0);
    QCOMPARE(version.output, QStringLiteral("kvprint " KV_VERSION "\n"));
    QCOMPARE(version.errors, QString());
}

void tst_commandline::programStatus_data()
{
    const TestTable<QStringList, int, QString> table("arguments", "status", "error");
    const QString file = mSite.document();
    const QString folder = QFileInfo(file).path();
    const QString empty = mSite.file(u"empty.txt"_s, {});
    table.add("no file", {}, 2, u"There is no file to print."_s);
    table.add("no copies", {u"-n"_s, u"0"_s, file}, 2,
              u"-n 0: the number of copies is 1 to 9999."_s);
    table.add("unknown option", {u"--frobnicate"_s, file}, 2, u"Unknown option 'frobnicate'."_s);
    table.add("missing file", {u"/nowhere/a.pdf"_s}, 3,
              u"/nowhere/a.pdf: No such file or directory"_s);
    table.add("second file missing", {file, u"/nowhere/a.pdf"_s}, 3,
              u"/nowhere/a.pdf: No such file or directory"_s);
    table.add("empty file", {empty}, 3, empty + u": is empty"_s);
    table.add("folder", {folder}, 3, folder + u": is a folder"_s);
    table.add(
        "unknown printer", {u"-d"_s, u"nowhere"_s, file}, 3,
        u"there is no printer nowhere; the printers are: all, follow, label, mark, plain, tape"_s);
    table.add("choice that the printer lacks",
              {u"-d"_s, u"tape"_s, u"-o"_s, u"KvHalfCut=MAYBE"_s, file}, 2,
              u"-o KvHalfCut=MAYBE: the choices of KvHalfCut are: OFF, ON"_s);
    table.add("paper that the printer lacks", {u"-d"_s, u"mark"_s, u"-o"_s, u"media=A4"_s, file}, 2,
              u"-o media=A4: the choices of media are: T12x100, T6x100, T9x100, T18x100, T24x100, "
              "FL21x45, FL24x60"_s);
    table.add("own paper size at a printer with fixed ones",
              {u"-d"_s, u"mark"_s, u"-o"_s, u"PageSize=Custom.20x50mm"_s, file}, 2,
              u"-o PageSize=Custom.20x50mm: the choices of PageSize are: T12x100, "_s);
}

void tst_commandline::programStatus()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, status);
    QFETCH(const QString, error);
    const QList<int> before = mSite.scheduler().jobIds();
    const ProgramRun run = runKvprint(arguments);
    QCOMPARE(run.status, status);
    QVERIFY(run.tells(u"kvprint: "_s + error));
    QCOMPARE(run.errors.count(u"kvprint: "), 1);
    QCOMPARE(run.output, QString());
    QCOMPARE(mSite.scheduler().jobIds(), before);
}

void tst_commandline::programWithoutScheduler()
{
    const ProgramRun run = runKvprint({mSite.document()}, {{}, {noScheduler}});
    QCOMPARE(run.status, 3);
    QVERIFY(run.tells(u"kvprint: no print scheduler answers at 127.0.0.1 (port 9): "_s));
}

void tst_commandline::programWithoutDisplay()
{
    const ProgramInput input{{}, {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s}};
    const ProgramRun run = runKvprint({mSite.document()}, input);
    QCOMPARE(run.status, 3);
    QVERIFY(run.tells(u"kvprint: there is no display to open the dialog on\n"_s));
    // Neither help nor a refusal needs one.
    QCOMPARE(runKvprint({u"--help"_s}, input).status, 0);
    QCOMPARE(runKvprint({}, input).status, 2);
}

void tst_commandline::acceptedProgramPrints()
{
    const qsizetype before = mSite.scheduler().jobIds().size();
    const ProgramRun run = runKvprint(
        {u"-d"_s, u"tape"_s, u"-n"_s, u"2"_s, u"-o"_s, u"KvChainPrint=ON"_s, mSite.document()},
        {{}, variablesWithUser(u"accept"_s)});
    QVERIFY2(run.status == 0, qPrintable(run.errors));
    const QList<int> jobs = mSite.scheduler().jobIds();
    QCOMPARE(jobs.size(), before + 1);
    QCOMPARE(mSite.choices(jobs.last()),
             SampleChoices::replaced(SampleChoices::defaults(u"tape"_s),
                                     u"KvHalfCut=ON KvChainPrint=ON"_s));
    QCOMPARE(mSite.job(jobs.last()).value(u"copies"_s), u"2"_s);
}

void tst_commandline::cancelledProgramPrintsNothing()
{
    const QList<int> before = mSite.scheduler().jobIds();
    const ProgramRun run =
        runKvprint({u"-d"_s, u"tape"_s, mSite.document()}, {{}, variablesWithUser(u"cancel"_s)});
    QVERIFY2(run.status == 1, qPrintable(run.errors));
    QCOMPARE(mSite.scheduler().jobIds(), before);
}

void tst_commandline::dialogSpeaksTheUsersLanguage_data()
{
    const TestTable<QString, QString> table("locale", "cancel");
    table.add("English", u"en_GB.UTF-8"_s, u"Cancel"_s);
    table.add("German", u"de_DE.UTF-8"_s, u"Abbrechen"_s);
    table.add("no texts of Qt's", u"sw_KE.UTF-8"_s, u"Cancel"_s);
}

void tst_commandline::dialogSpeaksTheUsersLanguage()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, cancel);
    const QStringList variables = variablesWithUser(u"tell"_s) + QStringList{u"LC_ALL="_s + locale};
    const ProgramRun run = runKvprint({u"-d"_s, u"tape"_s, mSite.document()}, {{}, variables});
    QVERIFY2(run.status == 1, qPrintable(run.errors));
    const QStringList buttons = run.output.split(u'\n');
    QVERIFY2(buttons.contains(cancel), qPrintable(run.output));
}

KV_TEST(tst_commandline)
#include "tst_commandline.moc"
