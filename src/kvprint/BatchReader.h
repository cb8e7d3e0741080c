// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "automation/ScriptRequest.h"
#include "kvprint/BatchTable.h"
#include "kvprint/LineReader.h"

#include <QByteArray>
#include <QString>

#include <memory>

/// Reads a batch job by job, each as soon as it is there: JSON objects, or a table when the first
/// line does not begin with a brace.
class BatchReader
{
public:
    /// @param file "-" for standard input.
    explicit BatchReader(const QString &file);

    /// Goes on to the next job; false when there is none, or the batch cannot be read.
    bool read();

    /// The line of the file, from 1, that the job begins in.
    qint64 line() const { return mLine; }
    /// The job as it is in the file; with a table's head for its first job.
    const QByteArray &bytes() const { return mBytes; }
    /// The job's members.
    ScriptRequest request() const;

    /// Why reading has ended, with the file's name; null at the end of the file.
    QString error() const { return mError.isNull() ? mLines.error() : mError; }

private:
    bool readLine();
    bool readHead();
    bool readRow();
    bool fail(const QString &fault);

    const QString mName;
    LineReader mLines;
    /// Null for JSON, and before the first line.
    std::unique_ptr<BatchTable> mTable;
    /// How many lines have been read.
    qint64 mLinesRead = 0;
    qint64 mLine = 0;
    QByteArray mBytes;
    QString mError;
};
