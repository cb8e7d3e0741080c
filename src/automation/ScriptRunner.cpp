#include "automation/ScriptRunner.h"

#include "automation/StandardOutput.h"

#include <QFile>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {
/// Reads a file line by line, each as soon as it is there.
class LineReader
{
public:
    /// @param file "-" for standard input.
    explicit LineReader(const QString &file)
        : mFile(file == QLatin1String("-") ? stdin : std::fopen(QFile::encodeName(file), "re"))
        , mError(mFile ? 0 : errno)
    {
    }
    ~LineReader()
    {
        std::free(mLine);
        if (mFile && mFile != stdin) {
            std::fclose(mFile);
        }
    }
    Q_DISABLE_COPY_MOVE(LineReader)

    /// The next line with its end; false when there is none.
    bool read(QByteArray *line)
    {
        errno = 0;
        const ssize_t length = mFile ? getline(&mLine, &mCapacity, mFile) : -1;
        if (length < 0) {
            mError = mFile && std::ferror(mFile) ? errno : mError;
            return false;
        }
        *line = QByteArray(mLine, length);
        return true;
    }

    /// Why reading has ended, as errno says; 0 at the end of the file.
    int error() const { return mError; }

private:
    FILE *mFile;
    int mError;
    char *mLine = nullptr;
    std::size_t mCapacity = 0;
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
    if (script.error() != 0) {
        *error = QStringLiteral("%1: %2").arg(
            file, QString::fromLocal8Bit(std::strerror(script.error())));
    }
    return script.error() == 0;
}
