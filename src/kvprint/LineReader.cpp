// SPDX-License-Identifier: Apache-2.0
#include "kvprint/LineReader.h"

#include <QFile>

#include <cerrno>
#include <cstring>

namespace {
QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}
} // namespace

LineReader::LineReader(const QString &file)
    : mFile(file == QLatin1String("-") ? stdin : std::fopen(QFile::encodeName(file), "re"))
    , mError(mFile ? QString() : QStringLiteral("%1: %2").arg(file, systemError()))
    , mName(file)
{
}

LineReader::~LineReader()
{
    if (mFile && mFile != stdin) {
        std::fclose(mFile);
    }
}

bool LineReader::read(QByteArray *line)
{
    line->clear();
    while (mFile && mError.isNull() && !line->endsWith('\n')) {
        const int byte = std::getc(mFile);
        if (byte == EOF) {
            mError =
                std::ferror(mFile) ? QStringLiteral("%1: %2").arg(mName, systemError()) : QString();
            break;
        }
        line->append(char(byte));
        if (line->size() > mostBytesOfLine) {
            mError = QStringLiteral("%1: a line is longer than %2 bytes")
                         .arg(mName)
                         .arg(mostBytesOfLine);
        }
    }
    return mError.isNull() && !line->isEmpty();
}
