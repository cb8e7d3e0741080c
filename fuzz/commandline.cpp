// SPDX-License-Identifier: Apache-2.0

// Command lines: the options of a job become the words of a command, and the same options again.

#include "kvprint/CommandLine.h"
#include "FuzzTarget.h"
#include "cups/JobOptions.h"
#include "kvprint/LpCommand.h"

namespace {
/// The words of a command that is quoted for a shell.
QStringList wordsOf(const QString &command)
{
    QStringList words{QString()};
    bool isQuoted = false;
    for (qsizetype i = 0; i < command.size(); ++i) {
        const QChar letter = command.at(i);
        if (letter == u'\'') {
            isQuoted = !isQuoted;
        } else if (letter == u' ' && !isQuoted) {
            words.append(QString());
        } else {
            const bool isEscaped = letter == u'\\' && !isQuoted && i + 1 < command.size();
            words.last() += isEscaped ? command.at(++i) : letter;
        }
    }
    expectRule(!isQuoted, "every quotation has its end");
    return words;
}

class CommandLineFuzzer : public FuzzTarget
{
public:
    /// @param input the arguments, each behind a line's end.
    void run(const QByteArray &input) override
    {
        QStringList arguments{QStringLiteral("kvprint")};
        arguments += QString::fromUtf8(input).split(u'\n');
        const CommandLine line = CommandLine::parse(arguments, QStringLiteral("1"));
        const bool hasMessage = line.action == CommandLine::Action::Refuse ||
                                line.action == CommandLine::Action::ShowHelp ||
                                line.action == CommandLine::Action::ShowVersion;
        expectRule(hasMessage || line.message.isEmpty(), "only what is refused or shown is told");
        expectRule(!hasMessage || !line.message.isEmpty(), "what is refused is told");
        JobOptions options;
        for (const QString &argument : std::as_const(arguments)) {
            options.parse(argument);
        }
        checkCommand(options);
        checkCommand(line.options);
        const CupsOptions given(options);
        expectRule(given.count() <= options.pairs().size(), "libcups gets no more options");
    }

private:
    static void checkCommand(const JobOptions &options)
    {
        const QStringList files{QStringLiteral("a file"), QStringLiteral("it's")};
        QStringList words = wordsOf(lpCommand(QStringLiteral("a'b"), 2, options, files));
        expectRule(words.mid(0, 5) == QStringList({QStringLiteral("lp"), QStringLiteral("-d"),
                                                   QStringLiteral("a'b"), QStringLiteral("-n"),
                                                   QStringLiteral("2")}),
                   "the command begins with the queue and the copies");
        words = words.mid(5);
        JobOptions again;
        while (words.size() > 1 && words.first() == u"-o") {
            again.parse(words.at(1));
            words = words.mid(2);
        }
        expectRule(words == QStringList{QStringLiteral("--")} + files, "the files come last");
        expectRule(again.pairs() == options.pairs(), "lp reads the options that are meant");
    }
};
} // namespace

KV_FUZZ_TARGET("commandline", CommandLineFuzzer)
