// SPDX-License-Identifier: Apache-2.0
#include "kvprint/BatchJournal.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {
const QString batchMember = QStringLiteral("batch");
const QString firstLineMember = QStringLiteral("firstLine");
const QString begunMember = QStringLiteral("begun");
const QString sentMember = QStringLiteral("sent");
const QString jobMember = QStringLiteral("job");
constexpr int mostBytesOfRecord = 4096;

QString digestOf(const QByteArray &line)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(line.trimmed(), QCryptographicHash::Sha256).toHex());
}

QString newName()
{
    return QStringLiteral("%1").arg(QRandomGenerator::system()->generate64(), 16, 16,
                                    QLatin1Char('0'));
}

/// Has the folder know its new file after a loss of power.
void keepNameOf(const QString &path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const int handle = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle >= 0) {
        fsync(handle);
        close(handle);
    }
}

/// Goes on where a write has been cut short, which tells the reason.
bool writeWhole(QFile &file, const QByteArray &bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 more = file.write(bytes.constData() + done, bytes.size() - done);
        if (more <= 0) {
            return false;
        }
        done += more;
    }
    return true;
}

qint64 numberIn(const QJsonObject &record, const QString &member)
{
    return record.value(member).toInteger();
}
} // namespace

BatchJournal::BatchJournal(const QString &path)
    : mFile(path.isNull() ? nullptr : std::make_unique<QFile>(path))
{
}

QString BatchJournal::open(QIODevice::OpenMode mode)
{
    if (!mFile->open(mode | QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        return QStringLiteral("%1: %2").arg(mFile->fileName(), mFile->errorString());
    }
    if (flock(mFile->handle(), LOCK_EX | LOCK_NB) != 0) {
        return QStringLiteral("%1: another process writes this journal").arg(mFile->fileName());
    }
    return {};
}

QString BatchJournal::begin(const QByteArray &firstLine)
{
    mBatch = newName();
    if (!mFile) {
        return {};
    }
    if (mFile->exists()) {
        return QStringLiteral("%1: there is a journal already; go on with --continue-from, or "
                              "remove it to print everything anew")
            .arg(mFile->fileName());
    }
    QString fault = open(QIODevice::NewOnly);
    if (fault.isNull()) {
        fault = write({{batchMember, mBatch}, {firstLineMember, digestOf(firstLine)}});
        keepNameOf(mFile->fileName());
    }
    return fault;
}

QString BatchJournal::resume(const QByteArray &firstLine)
{
    if (!mFile) {
        return QStringLiteral("there is no journal to go on with");
    }
    QString fault = open(QIODevice::ExistingOnly);
    return fault.isNull() ? readRecords(firstLine) : fault;
}

QString BatchJournal::readRecords(const QByteArray &firstLine)
{
    QString fault;
    qint64 whole = 0;
    for (int number = 1; fault.isNull(); ++number) {
        const QByteArray record = mFile->readLine(mostBytesOfRecord);
        if (!record.endsWith('\n') && mFile->atEnd()) {
            break;
        }
        fault = take(record, firstLine);
        if (!fault.isNull()) {
            fault = QStringLiteral("%1: line %2: %3").arg(mFile->fileName()).arg(number).arg(fault);
        }
        whole = mFile->pos();
    }
    if (fault.isNull() && mBatch.isNull()) {
        // The run before was cut off before it had anything to send.
        mFile->resize(0);
        mFile->seek(0);
        mBatch = newName();
        return write({{batchMember, mBatch}, {firstLineMember, digestOf(firstLine)}});
    }
    if (fault.isNull() && (!mFile->resize(whole) || !mFile->seek(whole))) {
        fault = QStringLiteral("%1: %2").arg(mFile->fileName(), mFile->errorString());
    }
    return fault;
}

QString BatchJournal::take(const QByteArray &record, const QByteArray &firstLine)
{
    const QJsonObject object = QJsonDocument::fromJson(record).object();
    if (mBatch.isNull()) {
        mBatch = object.value(batchMember).toString();
        if (mBatch.isEmpty()) {
            return QStringLiteral("is no journal of a batch");
        }
        return object.value(firstLineMember).toString() == digestOf(firstLine)
                   ? QString()
                   : QStringLiteral("is the journal of another batch, which begins with another "
                                    "line");
    }
    if (const qint64 begun = numberIn(object, begunMember); begun > 0) {
        mBegun.insert(begun);
    } else if (const qint64 sent = numberIn(object, sentMember); sent > 0) {
        markSent(sent);
    } else {
        return QStringLiteral("is no record of a journal");
    }
    return {};
}

void BatchJournal::markSent(qint64 line)
{
    mBegun.remove(line);
    if (this->line(line) == Line::Sent) {
        return;
    }
    qint64 first = line;
    qint64 last = line;
    auto next = mSent.upperBound(line);
    if (next != mSent.end() && next.key() == line + 1) {
        last = next.value();
        next = mSent.erase(next);
    }
    if (next != mSent.begin() && std::prev(next).value() == line - 1) {
        first = std::prev(next).key();
    }
    mSent.insert(first, last);
}

QString BatchJournal::jobName(qint64 line) const
{
    return QStringLiteral("%1-%2").arg(mBatch).arg(line);
}

BatchJournal::Line BatchJournal::line(qint64 number) const
{
    const auto next = mSent.upperBound(number);
    const bool isSent = next != mSent.begin() && std::prev(next).value() >= number;
    return isSent ? Line::Sent : mBegun.contains(number) ? Line::Begun : Line::Unknown;
}

QString BatchJournal::addBegun(qint64 line)
{
    return write({{begunMember, line}});
}

QString BatchJournal::addSent(qint64 line, int job)
{
    return write({{sentMember, line}, {jobMember, job}});
}

QString BatchJournal::write(const QJsonObject &record)
{
    if (!mFile) {
        return {};
    }
    const QByteArray bytes = QJsonDocument(record).toJson(QJsonDocument::Compact) + '\n';
    const qint64 whole = mFile->pos();
    if (!writeWhole(*mFile, bytes)) {
        const QString fault = QStringLiteral("%1: %2").arg(mFile->fileName(), mFile->errorString());
        // The next record must not follow half of this one.
        mFile->resize(whole);
        mFile->seek(whole);
        return fault;
    }
    if (fdatasync(mFile->handle()) != 0) {
        return QStringLiteral("%1: %2").arg(mFile->fileName(),
                                            QString::fromLocal8Bit(std::strerror(errno)));
    }
    return {};
}
