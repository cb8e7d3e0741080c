// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/MemoryCheck.h"

#include "Levels.h"
#include "ReadPipe.h"
#include "StandardErrorCapture.h"
#include "support/Limits.h"

#include <QTest>

#include <limits>
#include <memory>

namespace {
/// So many bytes that differ from their neighbours.
QByteArray bytesOf(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(i * 7 + i / 256);
    }
    return bytes;
}

QByteArray onStandardError(qint32 level, const void *bytes, qint32 count)
{
    const StandardErrorCapture capture;
    memoryCheck(level, bytes, count);
    return capture.text();
}

QByteArray onDescriptor(qint32 level, const void *bytes, qint32 count)
{
    ReadPipe pipe;
    memoryCheckFd(level, pipe.descriptor(), bytes, count);
    return pipe.finish();
}

/// What is printed for each size, by way of a buffer that is filled and printed group by group.
QByteArray expectedOnStandardError(const QByteArray &bytes)
{
    QByteArray text;
    QByteArray buffer;
    for (int i = 0; i < bytes.size(); ++i) {
        buffer += QByteArray(1, bytes[i]).toHex();
        if (i % 16 == 15) {
            text += "DEBUG:" + buffer;
            buffer.clear();
        }
    }
    return text + "DEBUG:" + buffer;
}

QByteArray expectedOnDescriptor(const QByteArray &bytes)
{
    QByteArray text;
    for (int i = 0; i < bytes.size(); ++i) {
        text += QByteArray(1, bytes[i]).toHex();
        if (i % 16 == 15 || i == bytes.size() - 1) {
            text += '\n';
        }
    }
    return text;
}
} // namespace

/// Bytes as hexadecimal digits.
class MemoryCheckTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsAFullGroupAndAnEmptyOne();
    void printsLinesOnADescriptor();
    void printsEverySize_data();
    void printsEverySize();
    void printsFromLevelZeroDown_data();
    void printsFromLevelZeroDown();
    void printsNothingWithoutBytes_data();
    void printsNothingWithoutBytes();
    void readsNoByteMore();
    void ignoresAClosedDescriptor();
};

void MemoryCheckTest::printsAFullGroupAndAnEmptyOne()
{
    const QByteArray sixteen("0123456789abcdef");
    QCOMPARE(onStandardError(0, sixteen.constData(), 16),
             QByteArray("DEBUG:30313233343536373839616263646566DEBUG:"));
    QCOMPARE(onDescriptor(0, sixteen.constData(), 16),
             QByteArray("30313233343536373839616263646566\n"));
}

void MemoryCheckTest::printsLinesOnADescriptor()
{
    const QByteArray seventeen("0123456789abcdef\x80");
    QCOMPARE(onDescriptor(0, seventeen.constData(), 17),
             QByteArray("30313233343536373839616263646566\n80\n"));
    QCOMPARE(onStandardError(0, seventeen.constData(), 17),
             QByteArray("DEBUG:30313233343536373839616263646566DEBUG:80"));
}

void MemoryCheckTest::printsEverySize_data()
{
    QTest::addColumn<qint32>("size");
    for (const qint32 size : {1, 2, 15, 16, 17, 31, 32, 33, 64, 1000, 4096, 65536, 1 << 20}) {
        QTest::addRow("%d bytes", size) << size;
    }
}

void MemoryCheckTest::printsEverySize()
{
    QFETCH(qint32, size);
    const QByteArray bytes = bytesOf(size);
    QVERIFY(onStandardError(0, bytes.constData(), size) == expectedOnStandardError(bytes));
    QVERIFY(onDescriptor(0, bytes.constData(), size) == expectedOnDescriptor(bytes));
}

void MemoryCheckTest::printsFromLevelZeroDown_data()
{
    addLevels();
}

void MemoryCheckTest::printsFromLevelZeroDown()
{
    QFETCH(qint32, level);
    QFETCH(bool, prints);
    QCOMPARE(onStandardError(level, "A", 1), prints ? QByteArray("DEBUG:41") : QByteArray());
    QCOMPARE(onDescriptor(level, "A", 1), prints ? QByteArray("41\n") : QByteArray());
}

void MemoryCheckTest::printsNothingWithoutBytes_data()
{
    const TestTable<bool, qint32> table("hasBytes", "count");
    table.add("no bytes", false, 16);
    table.add("no bytes, many", false, largest);
    table.add("count of 0", true, 0);
    table.add("count of -1", true, -1);
    table.add("smallest count", true, smallest);
}

void MemoryCheckTest::printsNothingWithoutBytes()
{
    QFETCH(bool, hasBytes);
    QFETCH(qint32, count);
    const char *const bytes = hasBytes ? "A" : nullptr;
    QCOMPARE(onStandardError(0, bytes, count), QByteArray());
    QCOMPARE(onDescriptor(0, bytes, count), QByteArray());
}

void MemoryCheckTest::readsNoByteMore()
{
    // The sanitizers see a byte that is read behind the array.
    for (const std::size_t size : {1U, 15U, 16U, 17U, 32U}) {
        const auto bytes = std::make_unique<char[]>(size);
        const QByteArray digits(int(size) * 2, '0');
        QCOMPARE(onDescriptor(0, bytes.get(), qint32(size)).replace('\n', QByteArray()), digits);
        QCOMPARE(onStandardError(0, bytes.get(), qint32(size)).replace("DEBUG:", QByteArray()),
                 digits);
    }
}

void MemoryCheckTest::ignoresAClosedDescriptor()
{
    memoryCheckFd(0, -1, "A", 1);
    memoryCheckFd(0, largest, "A", 1);
    QCOMPARE(onDescriptor(0, "A", 1), QByteArray("41\n"));
}

KV_CORE_TEST(MemoryCheckTest)
#include "tst_memorycheck.moc"
