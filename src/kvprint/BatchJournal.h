// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QFile>
#include <QMap>
#include <QSet>
#include <QString>

#include <memory>

class QJsonObject;

/**
 * What a batch has sent, in a file that a later run continues from.
 *
 * Each record is on the disk before the function that writes it returns: the name of the batch and
 * a digest of its first line, then, for each line, that it is about to be sent, and the number of
 * its job. A record that is cut at the end of the file counts as not written.
 *
 * A line that has no job yet is Unknown even if an earlier run has answered it with an error.
 */
class BatchJournal
{
public:
    /// What the journal knows of a line.
    enum class Line {
        Unknown,
        /// It was about to be sent: whether there is a job is for the scheduler to tell.
        Begun,
        /// It has a job.
        Sent,
    };

    /// @param path null for a journal that nobody keeps.
    explicit BatchJournal(const QString &path);

    /// Begins a new journal; what is wrong, null when nothing is: a journal of that name is there.
    ///
    /// @param firstLine of the batch.
    QString begin(const QByteArray &firstLine);
    /// Reads the journal that an earlier run has written, to add to it; what is wrong, null when
    /// nothing is: it is not there, damaged, that of another batch, or another process writes it.
    QString resume(const QByteArray &firstLine);

    /// The batch's name, unique and without spaces; set by begin() and resume().
    const QString &batch() const { return mBatch; }
    /// The name of a line's job.
    QString jobName(qint64 line) const;

    /// What earlier runs have left of a line.
    Line line(qint64 number) const;

    /// Notes that a line is about to be sent; what is wrong, null when nothing is.
    QString addBegun(qint64 line);
    /// Notes the number of a line's job; what is wrong, null when nothing is.
    QString addSent(qint64 line, int job);

private:
    QString open(QIODevice::OpenMode mode);
    QString readRecords(const QByteArray &firstLine);
    /// What is wrong with a record, null when nothing is.
    QString take(const QByteArray &record, const QByteArray &firstLine);
    void markSent(qint64 line);
    QString write(const QJsonObject &record);

    std::unique_ptr<QFile> mFile;
    QString mBatch;
    /// The lines that were about to be sent by earlier runs and have no job.
    QSet<qint64> mBegun;
    /// The lines that earlier runs have sent, as ranges: the first line of each with the last one.
    QMap<qint64, qint64> mSent;
};
