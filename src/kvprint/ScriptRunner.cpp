// SPDX-License-Identifier: Apache-2.0
#include "kvprint/ScriptRunner.h"

#include "kvprint/StandardOutput.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {
/// Reads a file line by line, each as soon as it is there.
class LineReader
{
public:
    /// @param file "-" for standard input.
    explicit LineReader(const QString &file)
        : mFile(file == QLatin1String("-") ? stdin : std::fopen(QFile::encodeName(file), "re"))
        , mError(mFile ? QString() : textOf(errno))
    {
    }
    ~LineReader()
    {
        if (mFile && mFile != stdin) {
            std::fclose(mFile);
        }
    }
    Q_DISABLE_COPY_MOVE(LineReader)

    /// The next line with its end; false when there is none.
    bool read(QByteArray *line)
    {
        line->clear();
        while (mFile && mError.isNull() && !line->endsWith('\n')) {
            const int byte = std::getc(mFile);
            if (byte == EOF) {
                mError = std::ferror(mFile) ? textOf(errno) : QString();
                break;
            }
            line->append(char(byte));
            if (line->size() > mostBytes) {
                mError = QStringLiteral("a line is longer than %1 bytes").arg(mostBytes);
            }
        }
        return mError.isNull() && !line->isEmpty();
    }

    /// Why reading has ended; null at the end of the file.
    const QString &error() const { return mError; }

private:
    static constexpr int mostBytes = 4 << 20;

    static QString textOf(int error) { return QString::fromLocal8Bit(std::strerror(error)); }

    FILE *mFile;
    QString mError;
};
} // namespace

ScriptRunner::ScriptRunner(ScriptSession::Setup setup)
    : mSession(std::move(setup))
{
}

bool ScriptRunner::run(const QString &file, QString *error)
{
    LineReader script(file);
    QByteArray line;
    while (script.read(&line)) {
        *error = writeToStandardOutput(mSession.answer(line) + '\n');
        if (!error->isNull()) {
            return false;
        }
    }
    if (!script.error().isNull()) {
        *error = QStringLiteral("%1: %2").arg(file, script.error());
    }
    return script.error().isNull();
}
