// SPDX-License-Identifier: Apache-2.0
#include "printcore/SystemLog.h"

#include "printcore/QtVersions.h"

#include <QByteArrayList>

#include <syslog.h>

#include <utility>

namespace {
// The longest mark of a piece, "(999999/999999) ", leaves room for lines of some gigabytes.
constexpr QtSize kPieceMarkSize = 16;

LogSink &processLogSink()
{
    static LogSink sink;
    return sink;
}

void logRecord(const QByteArray &record)
{
    // A copy: the sink may be replaced while it takes the record.
    if (const LogSink sink = processLogSink()) {
        sink(record);
    } else {
        // Without openlog(), which would change the log of the application that we are a guest of.
        syslog(LOG_USER | LOG_NOTICE, "%s", record.constData());
    }
}

/// The bytes in pieces that cut no character.
QByteArrayList piecesOf(const QByteArray &text, QtSize size)
{
    QByteArrayList pieces;
    QtSize start = 0;
    while (text.size() - start > size) {
        QtSize end = start + size;
        while ((text[end] & 0xc0) == 0x80) {
            --end;
        }
        pieces += text.mid(start, end - start);
        start = end;
    }
    return pieces << text.mid(start);
}
} // namespace

void logToSystem(const QString &line)
{
    const QByteArray text = QString(line).replace(QChar::Null, QChar(u'␀')).toUtf8();
    if (text.size() <= kLogRecordSize) {
        logRecord(text);
        return;
    }
    const QByteArrayList pieces = piecesOf(text, kLogRecordSize - kPieceMarkSize);
    const QByteArray count = QByteArray::number(pieces.size());
    for (int i = 0; i < pieces.size(); ++i) {
        logRecord('(' + QByteArray::number(i + 1) + '/' + count + ") " + pieces[i]);
    }
}

LogSink setLogSink(LogSink sink)
{
    return std::exchange(processLogSink(), std::move(sink));
}
