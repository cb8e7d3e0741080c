// SPDX-License-Identifier: Apache-2.0
#include "kvprint/BatchReader.h"

namespace {
constexpr char byteOrderMark[] = "\xEF\xBB\xBF";
} // namespace

BatchReader::BatchReader(const QString &file)
    : mName(file)
    , mLines(file)
{
}

bool BatchReader::fail(const QString &fault)
{
    mError = QStringLiteral("%1: line %2: %3").arg(mName).arg(mLine).arg(fault);
    return false;
}

bool BatchReader::read()
{
    mBytes.clear();
    if (mLinesRead == 0) {
        return readLine() && (mBytes.trimmed().startsWith('{') || readHead());
    }
    return mTable ? readRow() : readLine();
}

bool BatchReader::readLine()
{
    QByteArray line;
    if (!mLines.read(&line)) {
        return false;
    }
    if (mLinesRead == 0 && line.startsWith(byteOrderMark)) {
        line.remove(0, int(sizeof byteOrderMark) - 1);
    }
    mLine = ++mLinesRead;
    mBytes += line;
    return true;
}

bool BatchReader::readHead()
{
    mTable = std::make_unique<BatchTable>(mBytes);
    return mTable->fault().isNull() ? readRow() : fail(mTable->fault());
}

bool BatchReader::readRow()
{
    const auto start = mBytes.size();
    qint64 first = 0;
    for (auto row = BatchTable::Row::None; row != BatchTable::Row::Whole;) {
        const auto before = mBytes.size();
        const bool hasLine = readLine();
        row = error().isNull() ? mTable->add(hasLine ? mBytes.mid(before) : QByteArray())
                               : BatchTable::Row::None;
        if (!hasLine && row == BatchTable::Row::None) {
            return false;
        }
        if (row == BatchTable::Row::None) {
            mBytes.truncate(before);
            continue;
        }
        first = first == 0 ? mLine : first;
        if (mBytes.size() - start > LineReader::mostBytesOfLine) {
            mLine = first;
            return fail(QStringLiteral("a row is longer than %1 bytes")
                            .arg(int(LineReader::mostBytesOfLine)));
        }
    }
    mLine = first;
    return true;
}

ScriptRequest BatchReader::request() const
{
    return mTable ? ScriptRequest::withoutCommand(mTable->members(), mTable->fault())
                  : ScriptRequest::withoutCommand(mBytes);
}
