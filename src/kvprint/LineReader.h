// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>

/// Reads a file line by line, each as soon as it is there.
class LineReader
{
public:
    /// @param file "-" for standard input.
    explicit LineReader(const QString &file);
    ~LineReader();
    Q_DISABLE_COPY_MOVE(LineReader)

    /// The longest line in bytes, with its end; a longer one is an error.
    static constexpr int mostBytesOfLine = 4 << 20;

    /// The next line with its end; false when there is none.
    bool read(QByteArray *line);

    /// Why reading has ended, with the file's name; null at the end of the file.
    const QString &error() const { return mError; }

private:
    FILE *mFile;
    QString mError;
    const QString mName;
};
