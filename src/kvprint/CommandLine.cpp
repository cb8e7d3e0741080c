// SPDX-License-Identifier: Apache-2.0
#include "kvprint/CommandLine.h"

#include "printcore/ProblemLine.h"

#include <QCommandLineParser>

#include <algorithm>
#include <limits>
#include <optional>

namespace {
constexpr int longestTimeout = 3600;
constexpr int longestRetry = 604'800;
constexpr int mostPending = 1'000'000;
constexpr int mostLines = std::numeric_limits<int>::max();

CommandLine answer(CommandLine::Action action, const QString &message)
{
    CommandLine line;
    line.action = action;
    line.message = message;
    return line;
}

CommandLine refuse(const QString &reason)
{
    return answer(CommandLine::Action::Refuse,
                  QStringLiteral("%1\nTry 'kvprint --help'.").arg(asOneLine(reason)));
}

constexpr char batchNeeds[] = "--batch";
constexpr char retryNeeds[] = "--batch or --wait";
constexpr char ppdNeeds[] = "--dry-run, --list, --screenshot or --script";

/// An option of kvprint's.
struct KnownOption
{
    const char *name;
    const char *description;
    /// What its value is called; null when it takes none.
    const char *value;
    /// What it needs besides, when the dialog does not know it; null when it does.
    const char *needs;
};

constexpr KnownOption knownOptions[] = {
    {"d", "Use this printer.", "PRINTER", nullptr},
    {"n", "Print this number of copies.", "COPIES", nullptr},
    {"o", "Set this job option; may be repeated.", "KEY=VALUE", nullptr},
    {"preset", "Start from this preset of the panel.", "NAME",
     "--no-dialog, --dry-run or --screenshot"},
    {"no-dialog", "Print without a dialog.", nullptr, nullptr},
    {"wait", "Wait until the job has ended.", nullptr, nullptr},
    {"alert", "Show errors in a window as well.", nullptr, nullptr},
    {"dry-run", "Do not print; show the summary and the lp command.", nullptr, nullptr},
    {"ppd", "Use this PPD file, without a print scheduler.", "FILE", ppdNeeds},
    {"list", "List printers, options and presets.", nullptr, nullptr},
    {"check", "Check a printer or PPD files: which panel and options, and what is wrong.", nullptr,
     nullptr},
    {"check-map", "Check this keyword map, also with PPD files.", "FILE", nullptr},
    {"json", "Write the list or the check as JSON.", nullptr, "--list, --check or --check-map"},
    {"screenshot", "Write a picture of the panel to this PNG file.", "FILE", nullptr},
    {"timeout", "Give up if the print scheduler does not respond for this time.", "SECONDS",
     nullptr},
    {"script", "Run the script in this file; - for standard input.", "FILE", nullptr},
    {"batch", "Print the jobs in this file, one in a line; - for standard input.", "FILE", nullptr},
    {"continue-from", "Go on with an interrupted batch from this line.", "LINE", batchNeeds},
    {"journal", "Keep the batch's journal in this file.", "FILE", batchNeeds},
    {"pending", "Let this number of jobs wait for each printer.", "JOBS", batchNeeds},
    {"retry", "Try again for this time what may work later.", "SECONDS", retryNeeds},
    {"help", "Show this help.", nullptr, nullptr},
    {"version", "Show the version.", nullptr, nullptr},
};

QCommandLineOption optionFor(const KnownOption &known)
{
    QStringList names(QString::fromLatin1(known.name));
    if (names.first() == QLatin1String("help") || names.first() == QLatin1String("version")) {
        names.prepend(names.first().left(1));
    }
    return QCommandLineOption(names, QString::fromLatin1(known.description),
                              QString::fromLatin1(known.value));
}

/// Whether an action takes files.
enum class FileRule {
    None,
    Any,
    Needed,
};

/// What goes with an action.
struct ActionRule
{
    CommandLine::Action action;
    /// The options that ask for the action; it is the default one without any.
    QStringList askedBy;
    QStringList goesWith;
    FileRule files;
};

const ActionRule actionRules[] = {
    {CommandLine::Action::PrintDirectly,
     {QStringLiteral("no-dialog"), QStringLiteral("dry-run")},
     {QStringLiteral("d"), QStringLiteral("ppd"), QStringLiteral("n"), QStringLiteral("o"),
      QStringLiteral("preset"), QStringLiteral("timeout"), QStringLiteral("wait"),
      QStringLiteral("retry")},
     FileRule::Needed},
    {CommandLine::Action::List,
     {QStringLiteral("list")},
     {QStringLiteral("d"), QStringLiteral("ppd"), QStringLiteral("json"),
      QStringLiteral("timeout")},
     FileRule::None},
    {CommandLine::Action::Check,
     {QStringLiteral("check")},
     {QStringLiteral("d"), QStringLiteral("json"), QStringLiteral("timeout")},
     FileRule::Any},
    {CommandLine::Action::CheckMap,
     {QStringLiteral("check-map")},
     {QStringLiteral("json")},
     FileRule::Any},
    {CommandLine::Action::Screenshot,
     {QStringLiteral("screenshot")},
     {QStringLiteral("d"), QStringLiteral("ppd"), QStringLiteral("o"), QStringLiteral("preset"),
      QStringLiteral("timeout")},
     FileRule::None},
    {CommandLine::Action::RunScript,
     {QStringLiteral("script")},
     {QStringLiteral("d"), QStringLiteral("ppd"), QStringLiteral("timeout")},
     FileRule::None},
    {CommandLine::Action::PrintBatch,
     {QStringLiteral("batch")},
     {QStringLiteral("d"), QStringLiteral("timeout"), QStringLiteral("continue-from"),
      QStringLiteral("journal"), QStringLiteral("pending"), QStringLiteral("retry")},
     FileRule::None},
    {CommandLine::Action::Print,
     {},
     {QStringLiteral("d"), QStringLiteral("n"), QStringLiteral("o"), QStringLiteral("timeout"),
      QStringLiteral("wait"), QStringLiteral("retry"), QStringLiteral("alert")},
     FileRule::Needed},
};

/// An option as the user types it.
QString typed(const QString &name)
{
    return (name.size() > 1 ? QStringLiteral("--") : QStringLiteral("-")) + name;
}

QString faultOfNeed(const QString &name, const char *needs)
{
    return QStringLiteral("%1 needs %2.").arg(typed(name), QString::fromLatin1(needs));
}

/// The option that asks for the rule's action; null when none does.
QString askedOption(const QCommandLineParser &parser, const ActionRule &rule)
{
    for (const QString &name : rule.askedBy) {
        if (parser.isSet(name)) {
            return name;
        }
    }
    return {};
}

/// The value of an option; null for one that takes none.
QString valueOf(const QCommandLineParser &parser, const QString &name)
{
    const bool hasValue = std::ranges::any_of(knownOptions, [&name](const KnownOption &known) {
        return known.value && name == QLatin1String(known.name);
    });
    return hasValue ? parser.value(name) : QString();
}

const ActionRule &ruleFor(const QCommandLineParser &parser)
{
    return *std::ranges::find_if(actionRules, [&parser](const ActionRule &rule) {
        return rule.askedBy.isEmpty() || !askedOption(parser, rule).isNull();
    });
}

/// What is wrong with an option that has been given; null when nothing is.
QString faultOfOption(const QCommandLineParser &parser, const ActionRule &rule,
                      const KnownOption &known)
{
    const QString name = QString::fromLatin1(known.name);
    const QString asked = askedOption(parser, rule);
    if (known.value && parser.value(name).isEmpty()) {
        return QStringLiteral("%1 needs a value: %2.")
            .arg(typed(name), QString::fromLatin1(known.value));
    }
    if (rule.askedBy.contains(name) || rule.goesWith.contains(name)) {
        return {};
    }
    return known.needs && asked.isNull()
               ? faultOfNeed(name, known.needs)
               : QStringLiteral("%1 does not go with %2.").arg(typed(name), typed(asked));
}

/// What is wrong with the combination of arguments; null when nothing is.
QString faultOfCombination(const QCommandLineParser &parser, const ActionRule &rule)
{
    for (const KnownOption &known : knownOptions) {
        if (parser.isSet(QString::fromLatin1(known.name))) {
            if (QString fault = faultOfOption(parser, rule, known); !fault.isNull()) {
                return fault;
            }
        }
    }
    const bool hasPPD = parser.isSet(QStringLiteral("ppd"));
    if (hasPPD && parser.isSet(QStringLiteral("d"))) {
        return QStringLiteral("--ppd does not go with -d.");
    }
    if (hasPPD && rule.files == FileRule::Needed && !parser.isSet(QStringLiteral("dry-run"))) {
        return faultOfNeed(QStringLiteral("ppd"), ppdNeeds);
    }
    const bool waits = parser.isSet(QStringLiteral("wait"));
    if (waits && parser.isSet(QStringLiteral("dry-run"))) {
        return QStringLiteral("--wait does not go with --dry-run.");
    }
    if (parser.isSet(QStringLiteral("retry")) && rule.files == FileRule::Needed && !waits) {
        return faultOfNeed(QStringLiteral("retry"), retryNeeds);
    }
    const bool hasFiles = !parser.positionalArguments().isEmpty();
    if (rule.files == FileRule::Needed && !hasFiles) {
        return QStringLiteral("There is no file to print.");
    }
    return rule.files != FileRule::None || !hasFiles
               ? QString()
               : QStringLiteral("%1 takes no file.").arg(typed(askedOption(parser, rule)));
}

/// An option whose value is a number from 1 to the most.
struct KnownNumber
{
    const char *name;
    /// What it counts.
    const char *what;
    int most;
    int CommandLine::*member;
};

constexpr KnownNumber knownNumbers[] = {
    {"n", "copies", JobOptions::mostCopies, &CommandLine::copies},
    {"timeout", "seconds", longestTimeout, &CommandLine::timeout},
    {"retry", "seconds", longestRetry, &CommandLine::retry},
    {"pending", "jobs", mostPending, &CommandLine::pending},
    {"continue-from", "lines", mostLines, &CommandLine::continueFrom},
};

/// Reads the options that are numbers; what is wrong with them, null when nothing is.
QString readNumbers(const QCommandLineParser &parser, CommandLine &line)
{
    for (const KnownNumber &known : knownNumbers) {
        const QString name = QString::fromLatin1(known.name);
        if (!parser.isSet(name)) {
            continue;
        }
        bool isNumber = false;
        const QString value = parser.value(name);
        const int read = value.toInt(&isNumber);
        if (!isNumber || read < 1 || read > known.most) {
            return QStringLiteral("%1 %2: the number of %3 is 1 to %4.")
                .arg(typed(name), value, QLatin1String(known.what))
                .arg(known.most);
        }
        line.*known.member = read;
    }
    return {};
}

/// Reads the values of the options; what is wrong with them, null when nothing is.
QString readValues(const QCommandLineParser &parser, CommandLine &line)
{
    line.printer = parser.value(QStringLiteral("d"));
    line.ppd = parser.value(QStringLiteral("ppd"));
    line.preset = parser.value(QStringLiteral("preset"));
    line.isDryRun = parser.isSet(QStringLiteral("dry-run"));
    line.wait = parser.isSet(QStringLiteral("wait"));
    line.alerts = parser.isSet(QStringLiteral("alert"));
    line.journal = parser.value(QStringLiteral("journal"));
    line.asJSON = parser.isSet(QStringLiteral("json"));
    line.files = parser.positionalArguments();
    if (QString fault = readNumbers(parser, line); !fault.isNull()) {
        return fault;
    }
    const QStringList given = parser.values(QStringLiteral("o"));
    for (const QString &argument : given) {
        JobOptions parsed;
        parsed.parse(argument);
        if (parsed.pairs().isEmpty()) {
            return QStringLiteral("-o %1: an option is KEY=VALUE.").arg(argument);
        }
        line.options.merge(parsed);
    }
    return {};
}
} // namespace

CommandLine CommandLine::parse(const QStringList &arguments, const QString &version)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Prints files on tape and label printers: opens the print dialog with the "
                       "printers' finishing options, or works without one."));
    for (const KnownOption &known : knownOptions) {
        parser.addOption(optionFor(known));
    }
    parser.addPositionalArgument(
        QStringLiteral("FILE"),
        QStringLiteral("What to print: PDF, a picture or text; the PPD files "
                       "of a check."),
        QStringLiteral("FILE..."));
    if (!parser.parse(arguments)) {
        return refuse(parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help"))) {
        // Without an application object Qt does not know the program's name.
        return answer(Action::ShowHelp,
                      parser.helpText().replace(QLatin1String("<executable_name>"),
                                                QLatin1String("kvprint")));
    }
    if (parser.isSet(QStringLiteral("version"))) {
        return answer(Action::ShowVersion, QStringLiteral("kvprint %1\n").arg(version));
    }
    const ActionRule &rule = ruleFor(parser);
    CommandLine line;
    line.action = rule.action;
    QString fault = faultOfCombination(parser, rule);
    if (fault.isNull()) {
        fault = readValues(parser, line);
    }
    if (!fault.isNull()) {
        return refuse(fault);
    }
    line.actionFile = valueOf(parser, askedOption(parser, rule));
    return line;
}
