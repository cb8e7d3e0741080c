#include "host/CommandLine.h"

#include <QCommandLineParser>

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
} // namespace

CommandLine CommandLine::parse(const QStringList &arguments, const QString &version)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Opens the print dialog, with the finishing options of tape and label "
                       "printers, and prints the files."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help."));
    const QCommandLineOption showVersion({QStringLiteral("v"), QStringLiteral("version")},
                                         QStringLiteral("Show the version."));
    const QCommandLineOption printer(
        QStringLiteral("d"), QStringLiteral("Start with this printer."), QStringLiteral("PRINTER"));
    const QCommandLineOption copies(QStringLiteral("n"),
                                    QStringLiteral("Start with that many copies."),
                                    QStringLiteral("COPIES"));
    const QCommandLineOption option(QStringLiteral("o"),
                                    QStringLiteral("Start with this option; may be repeated."),
                                    QStringLiteral("KEY=VALUE"));
    parser.addOptions({help, showVersion, printer, copies, option});
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("What to print: PDF, a picture or text."),
                                 QStringLiteral("FILE..."));
    if (!parser.parse(arguments)) {
        return refuse(parser.errorText());
    }
    if (parser.isSet(help)) {
        // Without an application object Qt does not know the program's name.
        return answer(Action::ShowHelp,
                      parser.helpText().replace(QLatin1String("<executable_name>"),
                                                QLatin1String("kvprint")));
    }
    if (parser.isSet(showVersion)) {
        return answer(Action::ShowVersion, QStringLiteral("kvprint %1\n").arg(version));
    }

    CommandLine line;
    line.printer = parser.value(printer);
    line.files = parser.positionalArguments();
    if (line.files.isEmpty()) {
        return refuse(QStringLiteral("There is no file to print."));
    }
    if (parser.isSet(printer) && line.printer.isEmpty()) {
        return refuse(QStringLiteral("-d needs the name of a printer."));
    }
    if (parser.isSet(copies)) {
        bool isNumber = false;
        line.copies = parser.value(copies).toInt(&isNumber);
        if (!isNumber || line.copies < 1 || line.copies > mostCopies) {
            return refuse(QStringLiteral("-n %1: the number of copies is 1 to %2.")
                              .arg(parser.value(copies))
                              .arg(mostCopies));
        }
    }
    const QStringList given = parser.values(option);
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
