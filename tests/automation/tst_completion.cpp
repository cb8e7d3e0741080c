// SPDX-License-Identifier: Apache-2.0
#include "PrintingTest.h"
#include "ProgramRun.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

namespace {
const QString completionFile = QStringLiteral(KV_SOURCE_FOLDER "/resources/completion/kvprint");
const QString manualPage = QStringLiteral(KV_SOURCE_FOLDER "/docs/man/kvprint.1");
const QString automationGuide = QStringLiteral(KV_SOURCE_FOLDER "/docs/automation.md");

/// What an interactive shell starts with. The function that the completion registers goes on to do
/// its work, and leaves behind what it offers; control-T leaves behind the line as it is.
constexpr char shellProfile[] = R"shell(
unset HISTFILE
source "$KV_COMPLETION"
eval "original$(declare -f _kvprint)"
_kvprint() {
    original_kvprint "$@"
    printf '%s\n' "${COMPREPLY[@]}" >"$KV_RESULT/offered"
}
leave() {
    printf '%s\n' "$READLINE_LINE" >"$KV_RESULT/line"
    READLINE_LINE=
}
bind -x '"\C-t": leave'
)shell";

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList linesOf(const QString &path)
{
    return textOf(path).split(u'\n', Qt::SkipEmptyParts);
}

QString withoutSpaces(QString text)
{
    return text.remove(QRegularExpression(u"\\s"_s));
}

/// The options that "kvprint --help" lists, each with its other name and its value
/// ("-dPRINTER", "-h,--help").
QStringList optionsOfHelp()
{
    const ProgramRun help = runKvprint({u"--help"_s});
    static const QRegularExpression option(u"^  (-.*?)  "_s, QRegularExpression::MultilineOption);
    QStringList options;
    for (const auto &match : option.globalMatch(help.output)) {
        options.append(withoutSpaces(match.captured(1)).remove(u'<').remove(u'>'));
    }
    return options;
}

/// The lines of a section of the manual page, with plain hyphens.
QStringList manualSection(const QString &title)
{
    const QString text = textOf(manualPage).replace(u"\\-"_s, u"-"_s);
    const QString heading = u"\n.SH "_s + title + u'\n';
    const qsizetype start = text.indexOf(heading);
    return start < 0 ? QStringList()
                     : text.mid(start + heading.size()).section(u"\n.SH "_s, 0, 0).split(u'\n');
}

/// The options that the manual page describes, as optionsOfHelp() writes them.
QStringList optionsOfManual()
{
    static const QRegularExpression macro(u"^\\.[A-Z]+ |\""_s);
    const QStringList lines = manualSection(u"OPTIONS"_s);
    QStringList options;
    for (qsizetype i = 1; i < lines.size(); ++i) {
        if (lines.at(i - 1) == u".TP") {
            options.append(withoutSpaces(QString(lines.at(i)).remove(macro)));
        }
    }
    return options;
}

/// The names of options in a text, sorted.
QStringList namesIn(const QString &text)
{
    static const QRegularExpression name(u"(?<![-\\w])--?[a-z][a-z-]*"_s);
    QStringList names;
    for (const auto &match : name.globalMatch(text)) {
        names.append(match.captured());
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

/// The names of all options of kvprint's, sorted.
QStringList allNames()
{
    QStringList names;
    for (const QString &option : optionsOfHelp()) {
        static const QRegularExpression value(u"[A-Z].*"_s);
        names += QString(option).remove(value).split(u',');
    }
    names.sort();
    return names;
}

/// Whether a text is the expected one, in which "…" stands for anything within a line.
bool isLike(const QString &text, const QString &expected)
{
    QStringList parts = expected.split(u'…');
    for (QString &part : parts) {
        part = QRegularExpression::escape(part);
    }
    return QRegularExpression(QRegularExpression::anchoredPattern(parts.join(u".*"_s)))
        .match(text)
        .hasMatch();
}

/// A block of code in a document.
struct Block
{
    QString language;
    QString text;
};

QList<Block> blocksOf(const QString &path)
{
    static const QRegularExpression block(u"^```(\\w*)\n(.*?)^```$"_s,
                                          QRegularExpression::MultilineOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    QList<Block> blocks;
    for (const auto &match : block.globalMatch(textOf(path))) {
        blocks.append({match.captured(1), match.captured(2)});
    }
    return blocks;
}

/// Those lines of a block that begin with the mark, without it.
QStringList linesWith(QChar mark, const Block &block)
{
    QStringList lines = block.text.split(u'\n');
    lines.removeIf([mark](const QString &line) { return !line.startsWith(mark + u" "_s); });
    for (QString &line : lines) {
        line.remove(0, 2);
    }
    return lines;
}
} // namespace

/// The completion, the manual page and the guide to automation: that each says what kvprint does.
class tst_completion : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void completionOffersEveryOption();
    void manualDescribesEveryOption();
    void manualIsOfThisVersion();
    void manualIsSound();

    void completes_data();
    void completes();
    void printersAreTheSchedulers();
    void withoutTheSchedulersProgramsNothingIsOffered();
    void withoutASchedulerNothingIsOffered();
    void defaultPrinterIsTheUsers();

    void exampleConversation();
    void examplesForOtherPrograms_data();
    void examplesForOtherPrograms();
    void exampleBatch();
    void examplesOfManual();

private: // NOLINT(readability-redundant-access-specifiers)
    /// What a tabulator key behind a line does in a shell.
    struct Completion
    {
        QStringList offered;
        /// The line as it is then.
        QString line;
    };

    Completion complete(const QString &line, const QStringList &variables = {}) const;
    QString folder() const { return QDir::cleanPath(mSite.path(u"."_s)); }
};

void tst_completion::initTestCase()
{
    PrintingTest::initTestCase();
    QVERIFY(!mSite.document(u"letter.txt"_s).isNull());
    QVERIFY(QFile::copy(PrintingSite::ppdPath(u"all"_s), mSite.path(u"all.ppd"_s)));
    QVERIFY(QFile::copy(PrintingSite::ppdPath(u"label"_s), mSite.path(u"my label.ppd"_s)));
    // The guide's examples are run from the sources' folder.
    const QString buildFolder = QDir::cleanPath(QStringLiteral(KV_PRINT_PROGRAM "/../.."));
    QVERIFY(QDir(folder()).mkpath(u"build"_s));
    QVERIFY(QFile::link(buildFolder, mSite.path(u"build/release"_s)));
}

tst_completion::Completion tst_completion::complete(const QString &line,
                                                    const QStringList &variables) const
{
    const QTemporaryDir result;
    const QString profilePath = mSite.file(u"profile"_s, shellProfile);
    const QString programs = QFileInfo(QStringLiteral(KV_PRINT_PROGRAM)).absolutePath();
    const QStringList environment{u"PATH="_s + programs + u':' + qEnvironmentVariable("PATH"),
                                  u"TERM=dumb"_s, u"INPUTRC=/dev/null"_s,
                                  u"KV_COMPLETION="_s + completionFile,
                                  u"KV_RESULT="_s + result.path()};
    // An interactive shell would take over the terminal that the test is run from.
    runProgram(u"setsid"_s,
               {u"--wait"_s, QStandardPaths::findExecutable(u"bash"_s), u"--noprofile"_s,
                u"--rcfile"_s, profilePath, u"-i"_s},
               {line.toUtf8() + "\t\x14", environment + variables, folder()});
    QString completed = textOf(result.filePath(u"line"_s));
    completed.chop(1);
    return {linesOf(result.filePath(u"offered"_s)), completed};
}

void tst_completion::completionOffersEveryOption()
{
    const QStringList names = allNames();
    QCOMPARE(names.size(), 25);
    QVERIFY(names.contains(u"--no-dialog"_s));
    QStringList offered = complete(u"kvprint -"_s).offered;
    offered.sort();
    QCOMPARE(offered, names);
}

void tst_completion::manualDescribesEveryOption()
{
    const QStringList options = optionsOfHelp();
    QVERIFY(options.contains(u"-oKEY=VALUE"_s));
    QCOMPARE(optionsOfManual(), options);
    QStringList synopsis = namesIn(manualSection(u"SYNOPSIS"_s).join(u'\n'));
    synopsis << u"-h"_s << u"-v"_s;
    synopsis.sort();
    QCOMPARE(synopsis, allNames());
}

void tst_completion::manualIsOfThisVersion()
{
    const QString title = linesOf(manualPage).constFirst();
    QVERIFY2(title.startsWith(u".TH KVPRINT 1 ") && title.contains(u"\"kvprint " KV_VERSION "\""),
             qPrintable(title));
}

void tst_completion::manualIsSound()
{
    const QString groff = QStandardPaths::findExecutable(u"groff"_s);
    if (groff.isEmpty()) {
        QSKIP("groff is not installed");
    }
    const ProgramRun check =
        runProgram(groff, {u"-man"_s, u"-Tutf8"_s, u"-ww"_s, u"-z"_s, manualPage});
    QCOMPARE(check.errors, QString());
    QCOMPARE(check.status, 0);
}

void tst_completion::completes_data()
{
    const TestTable<QString, QStringList, QString> table("typed", "offered", "completed");
    const QString all = u"kvprint --ppd all.ppd "_s;
    const QStringList half{u"AHCMOffOnOffOff"_s};
    const QStringList special{u"SPMROnOff"_s};
    const QStringList switches{u"OFF"_s, u"ON"_s};
    const QStringList none;

    table.add("option", u"kvprint --no"_s, {u"--no-dialog"_s}, u"kvprint --no-dialog "_s);
    table.add("preset", all + u"--preset AHCMOff"_s, half, all + u"--preset AHCMOffOnOffOff "_s);
    table.add("presets", all + u"--preset CTMRO"_s,
              {u"CTMROnOffOff"_s, u"CTMROnOnOff"_s, u"CTMROffOnOff"_s, u"CTMROffOffOff"_s},
              all + u"--preset CTMRO"_s);
    table.add("attached preset", all + u"--preset=SP"_s, special, all + u"--preset=SPMROnOff "_s);
    table.add("attached PPD", u"kvprint --ppd=all.ppd --preset SP"_s, special,
              u"kvprint --ppd=all.ppd --preset SPMROnOff "_s);
    table.add("PPD in quotes", u"kvprint --ppd 'my label.ppd' --preset EveryEndMirrorOffOf"_s,
              {u"EveryEndMirrorOffOffOff"_s},
              u"kvprint --ppd 'my label.ppd' --preset EveryEndMirrorOffOffOff "_s);
    table.add("PPD with a backslash", u"kvprint --ppd my\\ label.ppd -o KvM"_s, {u"KvMirror="_s},
              u"kvprint --ppd my\\ label.ppd -o KvMirror="_s);
    table.add("no such PPD", u"kvprint --ppd none.ppd --preset "_s, none,
              u"kvprint --ppd none.ppd --preset "_s);
    table.add("preset is no file", all + u"--preset le"_s, none, all + u"--preset le"_s);

    table.add("keys", u"kvprint --ppd my\\ label.ppd -o "_s,
              {u"KvAutoTapeCut="_s, u"KvCutAtEnd="_s, u"KvCutLabel="_s, u"KvMirror="_s,
               u"PageSize="_s, u"media="_s},
              u"kvprint --ppd my\\ label.ppd -o "_s);
    table.add("key", all + u"-o KvHalf"_s, {u"KvHalfCut="_s}, all + u"-o KvHalfCut="_s);
    table.add("choices", all + u"-o KvHalfCut="_s, switches, all + u"-o KvHalfCut=O"_s);
    table.add("choice", all + u"-o KvHalfCut=OF"_s, {u"OFF"_s}, all + u"-o KvHalfCut=OFF "_s);
    table.add("attached choice", all + u"-oKvHalfCut=OF"_s, {u"OFF"_s},
              all + u"-oKvHalfCut=OFF "_s);
    table.add("choice in quotes", all + u"-o 'KvHalfCut=OF"_s, {u"KvHalfCut=OFF"_s},
              all + u"-o 'KvHalfCut=OFF' "_s);
    table.add("paper", all + u"-o media=AV2"_s, {u"AV20x80"_s}, all + u"-o media=AV20x80 "_s);
    table.add("option of another panel", u"kvprint -d plain -o KvDensity=D"_s, {u"Dark"_s},
              u"kvprint -d plain -o KvDensity=Dark "_s);
    table.add("no such key", all + u"-o Kv="_s, none, all + u"-o Kv="_s);

    table.add("printer", u"kvprint -d fol"_s, {u"follow"_s}, u"kvprint -d follow "_s);
    table.add("attached printer", u"kvprint -dfol"_s, {u"-dfollow"_s}, u"kvprint -dfollow "_s);
    table.add("preset of a printer", u"kvprint -dtape --preset SP"_s, special,
              u"kvprint -dtape --preset SPMROnOff "_s);
    table.add("printer is no file", u"kvprint -d le"_s, none, u"kvprint -d le"_s);
    table.add("copies are no file", u"kvprint -n le"_s, none, u"kvprint -n le"_s);

    table.add("file", u"kvprint --dry-run le"_s, none, u"kvprint --dry-run letter.txt "_s);
    table.add("file of an option", u"kvprint --ppd al"_s, none, u"kvprint --ppd all.ppd "_s);
    table.add("map", u"kvprint --check-map le"_s, none, u"kvprint --check-map letter.txt "_s);
    table.add("attached file", u"kvprint --script=le"_s, none, u"kvprint --script=letter.txt "_s);
    table.add("no option behind the options", u"kvprint -- --no"_s, none, u"kvprint -- --no"_s);
}

void tst_completion::completes()
{
    QFETCH(const QString, typed);
    QFETCH(const QStringList, offered);
    const Completion completion = complete(typed);
    QCOMPARE(completion.offered, offered);
    QTEST(completion.line, "completed");
}

void tst_completion::printersAreTheSchedulers()
{
    QStringList printers = PrintingSite::printers();
    printers.append(u"tape/draft"_s);
    printers.sort();
    QVERIFY(mSite.saveUserOptions("Dest tape/draft KvHalfCut=ON\n"));
    const QStringList offered = complete(u"kvprint -d "_s).offered;
    QVERIFY(mSite.saveUserOptions(""));
    QCOMPARE(offered, printers);
}

void tst_completion::withoutTheSchedulersProgramsNothingIsOffered()
{
    const Completion completion = complete(u"kvprint -d fol"_s, {u"PATH=/nonexistent"_s});
    QCOMPARE(completion.offered, QStringList());
    QCOMPARE(completion.line, u"kvprint -d fol"_s);
}

void tst_completion::withoutASchedulerNothingIsOffered()
{
    const QStringList unreached{u"CUPS_SERVER=/nonexistent"_s};
    for (const QString &typed : {u"kvprint -d "_s, u"kvprint --preset "_s, u"kvprint -o "_s}) {
        const Completion completion = complete(typed, unreached);
        QCOMPARE(completion.offered, QStringList());
        QCOMPARE(completion.line, typed);
    }
    QCOMPARE(complete(u"kvprint --ppd all.ppd --preset SP"_s, unreached).offered,
             QStringList{u"SPMROnOff"_s});
}

void tst_completion::defaultPrinterIsTheUsers()
{
    const QString typed = u"kvprint --preset EveryEndMirrorOffOf"_s;
    QCOMPARE(complete(typed).offered, QStringList());
    QVERIFY(mSite.saveUserOptions("Default label\n"));
    const QStringList offered = complete(typed).offered;
    QVERIFY(mSite.saveUserOptions(""));
    QCOMPARE(offered, QStringList{u"EveryEndMirrorOffOffOff"_s});
}

void tst_completion::exampleConversation()
{
    const QList<Block> blocks = blocksOf(automationGuide);
    QVERIFY(!blocks.isEmpty());
    const QStringList asked = linesWith(u'>', blocks.constFirst());
    const QStringList answered = linesWith(u'<', blocks.constFirst());
    QCOMPARE(asked.size(), 13);
    const ProgramRun talk =
        runKvprint({u"--script"_s, u"-"_s}, {asked.join(u'\n').toUtf8(), {}, folder()});
    QCOMPARE(talk.status, 4);
    const QStringList answers = talk.lines();
    QCOMPARE(answers.size(), asked.size());
    QCOMPARE(answered.size(), asked.size());
    for (qsizetype i = 0; i < answers.size(); ++i) {
        QVERIFY2(isLike(answers.at(i), answered.at(i)), qPrintable(answers.at(i)));
    }
}

void tst_completion::examplesForOtherPrograms_data()
{
    const TestTable<QString, QString> table("language", "program");
    table.add("Python", u"python"_s, u"python3"_s);
    table.add("shell", u"sh"_s, u"sh"_s);
}

void tst_completion::examplesForOtherPrograms()
{
    QFETCH(const QString, language);
    QFETCH(const QString, program);
    const QList<Block> blocks = blocksOf(automationGuide);
    qsizetype example = 0;
    while (example < blocks.size() && blocks.at(example).language != language) {
        ++example;
    }
    QVERIFY(example + 1 < blocks.size());
    const ProgramRun result =
        runProgram(program, {u"-c"_s, blocks.at(example).text}, {{}, {}, folder()});
    QVERIFY2(isLike(result.output, blocks.at(example + 1).text),
             qPrintable(result.output + result.errors));
}

/// Each of the batch's examples works on what those before have left.
void tst_completion::exampleBatch()
{
    const QList<Block> blocks = blocksOf(automationGuide);
    QVERIFY(!mSite.document().isNull());
    const QString path = QFileInfo(QStringLiteral(KV_PRINT_PROGRAM)).path();
    const auto byLine = [](const QString &left, const QString &right) {
        return left.section(u"\"line\":"_s, 1) < right.section(u"\"line\":"_s, 1);
    };
    int examples = 0;
    for (const Block &block : blocks) {
        if (block.language == u"json" || block.language == u"csv") {
            const QString name = block.language == u"csv" ? u"batch.csv"_s : u"batch.jsonl"_s;
            QVERIFY(!mSite.file(name, block.text.toUtf8()).isNull());
        } else if (block.language == u"console") {
            const ProgramRun run = runInShell(u"PATH=%1:$PATH:/usr/sbin\n"_s.arg(path) +
                                                  linesWith(u'$', block).join(u'\n'),
                                              {{}, {}, folder()});
            QStringList expected = block.text.split(u'\n', Qt::SkipEmptyParts);
            expected.removeIf([](const QString &line) { return line.startsWith(u"$ "); });
            QStringList answers = run.lines();
            std::ranges::sort(expected, byLine);
            std::ranges::sort(answers, byLine);
            QVERIFY2(isLike(answers.join(u'\n'), expected.join(u'\n')),
                     qPrintable(run.output + run.errors));
            ++examples;
        }
    }
    QCOMPARE(examples, 4);
}

/// A user at the dialog accepts it.
void tst_completion::examplesOfManual()
{
    QVERIFY(QFile::copy(PrintingSite::ppdPath(u"tape"_s), mSite.path(u"tape.ppd"_s)));
    QVERIFY(!mSite.document(u"label.pdf"_s).isNull());
    QVERIFY(!mSite.file(u"labels.jsonl"_s, R"({"file":"label.pdf","printer":"tape"})").isNull());
    QVERIFY(!mSite.file(u"labels.csv"_s, "file;printer\nlabel.pdf;tape\n").isNull());
    QVERIFY(mSite.saveUserOptions("Default tape\n"));
    const QStringList variables = {
        u"PATH=%1:/usr/bin:/bin"_s.arg(QFileInfo(QStringLiteral(KV_PRINT_PROGRAM)).path()),
        QStringLiteral("QT_PLUGIN_PATH=" KV_TEST_PLUGIN_FOLDER),
        u"QT_QPA_GENERIC_PLUGINS=dialoguser:accept"_s};
    static const QRegularExpression block(u"^\\.EX\n(.*?)^\\.EE$"_s,
                                          QRegularExpression::MultilineOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    int examples = 0;
    for (const auto &match : block.globalMatch(textOf(manualPage))) {
        QString example = match.captured(1);
        example.replace(u"\\-"_s, u"-"_s).replace(u"\\(aq"_s, u"'"_s).replace(u"\\e"_s, u"\\"_s);
        example.replace(u"-d Tape"_s, u"-d tape"_s);
        const ProgramRun run =
            runProgram(u"/bin/sh"_s, {u"-ec"_s, example}, {{}, variables, folder()});
        QVERIFY2(run.status == 0, qPrintable(example + run.output + run.errors));
        ++examples;
    }
    QCOMPARE(examples, 7);
}

KV_TEST(tst_completion)
#include "tst_completion.moc"
