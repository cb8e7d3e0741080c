// SPDX-License-Identifier: Apache-2.0
#include "kvprint/BatchReport.h"

#include "kvprint/StandardOutput.h"

#include <QJsonArray>
#include <QJsonDocument>

BatchReport::BatchReport(BatchJournal &journal)
    : mJournal(journal)
{
}

bool BatchReport::begin(qint64 line)
{
    const std::scoped_lock lock(mMutex);
    if (!mIsBroken && mJournal.line(line) != BatchJournal::Line::Begun) {
        breakWith(mJournal.addBegun(line));
    }
    return !mIsBroken;
}

void BatchReport::sent(qint64 line, const QString &printer, int job, const QStringList &warnings)
{
    const std::scoped_lock lock(mMutex);
    breakWith(mJournal.addSent(line, job));
    QJsonObject told{{QStringLiteral("line"), line},
                     {QStringLiteral("printer"), printer},
                     {QStringLiteral("job"), job}};
    if (!warnings.isEmpty()) {
        told.insert(QStringLiteral("warnings"), QJsonArray::fromStringList(warnings));
    }
    answer(told);
}

void BatchReport::failed(qint64 line, const QString &fault)
{
    const std::scoped_lock lock(mMutex);
    mHasFailed = true;
    answer({{QStringLiteral("line"), line}, {QStringLiteral("error"), fault}});
}

void BatchReport::tell(const QString &problem)
{
    const std::scoped_lock lock(mMutex);
    mReporter.report(problem);
}

bool BatchReport::isBroken() const
{
    const std::scoped_lock lock(mMutex);
    return mIsBroken;
}

bool BatchReport::hasFailed() const
{
    const std::scoped_lock lock(mMutex);
    return mHasFailed;
}

void BatchReport::breakWith(const QString &fault)
{
    mIsBroken = mIsBroken || !fault.isNull();
    mReporter.report(fault);
}

void BatchReport::answer(const QJsonObject &line)
{
    breakWith(writeToStandardOutput(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n'));
}
