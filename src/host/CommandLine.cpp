#include "host/CommandLine.h"

#include <QCommandLineParser>

#include <optional>

namespace {
constexpr int mostCopies = 9999;

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
                  QStringLiteral("%1\nTry 'kvprint --help'.").arg(reason));
}
/// The options that kvprint knows.
struct KnownOptions
{
    explicit KnownOptions(QCommandLineParser &parser)
    {
        parser.setApplicationDescription(
            QStringLiteral("Opens the print dialog, with the finishing options of tape and label "
                           "printers, and prints the files."));
        parser.addOptions({help, version, printer, copies, option});
        parser.addPositionalArgument(QStringLiteral("FILE"),
                                     QStringLiteral("What to print: PDF, a picture or text."),
                                     QStringLiteral("FILE..."));
    }

    const QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help.")};
    const QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Show the version.")};
    const QCommandLineOption printer{
        QStringLiteral("d"), QStringLiteral("Start with this printer."), QStringLiteral("PRINTER")};
    const QCommandLineOption copies{QStringLiteral("n"),
                                    QStringLiteral("Start with that many copies."),
                                    QStringLiteral("COPIES")};
    const QCommandLineOption option{QStringLiteral("o"),
                                    QStringLiteral("Start with this option; may be repeated."),
                                    QStringLiteral("KEY=VALUE")};
};

/// The number of copies; nothing when it is none.
std::optional<int> copiesIn(const QString &text)
{
    bool isNumber = false;
    const int copies = text.toInt(&isNumber);
    return isNumber && copies >= 1 && copies <= mostCopies ? std::optional(copies) : std::nullopt;
}
} // namespace

CommandLine CommandLine::parse(const QStringList &arguments, const QString &version)
{
    QCommandLineParser parser;
    const KnownOptions known(parser);
    if (!parser.parse(arguments)) {
        return refuse(parser.errorText());
    }
    if (parser.isSet(known.help)) {
        // Without an application object Qt does not know the program's name.
        return answer(Action::ShowHelp,
                      parser.helpText().replace(QLatin1String("<executable_name>"),
                                                QLatin1String("kvprint")));
    }
    if (parser.isSet(known.version)) {
        return answer(Action::ShowVersion, QStringLiteral("kvprint %1\n").arg(version));
    }

    CommandLine line;
    line.printer = parser.value(known.printer);
    line.files = parser.positionalArguments();
    if (line.files.isEmpty()) {
        return refuse(QStringLiteral("There is no file to print."));
    }
    if (parser.isSet(known.printer) && line.printer.isEmpty()) {
        return refuse(QStringLiteral("-d needs the name of a printer."));
    }
    if (parser.isSet(known.copies)) {
        const auto copies = copiesIn(parser.value(known.copies));
        if (!copies) {
            return refuse(QStringLiteral("-n %1: the number of copies is 1 to %2.")
                              .arg(parser.value(known.copies))
                              .arg(mostCopies));
        }
        line.copies = *copies;
    }
    const QStringList given = parser.values(known.option);
    for (const QString &argument : given) {
        JobOptions parsed;
        parsed.parse(argument);
        if (parsed.pairs().isEmpty()) {
            return refuse(QStringLiteral("-o %1: an option is KEY=VALUE.").arg(argument));
        }
        line.options.merge(parsed);
    }
    return line;
}
