// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/DebugLog.h"

#include "Levels.h"
#include "ReadPipe.h"
#include "StandardErrorCapture.h"
#include "support/Limits.h"

#include <QTest>

#include <unistd.h>

#include <limits>

namespace {
/// An object that knows how often it has been described.
class Counted
{
public:
    QString description() const
    {
        ++mTimes;
        return u"described"_s;
    }
    int times() const { return mTimes; }

private:
    mutable int mTimes = 0;
};

template <typename... Arguments>
QByteArray onStandardError(qint32 level, const QString &format, const Arguments &...arguments)
{
    const StandardErrorCapture capture;
    debugLog(level, format, arguments...);
    return capture.text();
}

template <typename... Arguments>
QByteArray onDescriptor(qint32 level, const QString &format, const Arguments &...arguments)
{
    ReadPipe pipe;
    debugLogFd(level, pipe.descriptor(), format, arguments...);
    return pipe.finish();
}
} // namespace

/// Lines on standard error and on descriptors.
class DebugLogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printsALine();
    void printsFromLevelZeroDown_data();
    void printsFromLevelZeroDown();
    void describesNothingWhenItPrintsNothing();
    void texts_data();
    void texts();
    void nullCharacterEndsTheLineOfStandardErrorAlone();
    void printsBehindTheApplicationsOutput();
    void lineAfterLine();
    void ignoresClosedDescriptors();
};

void DebugLogTest::printsALine()
{
    QCOMPARE(onStandardError(0, u"%@: %d of %s"_s, u"Größe"_s, 3, "five"),
             QByteArray("DEBUG: Gr\xc3\xb6\xc3\x9f"
                        "e: 3 of five\n"));
    QCOMPARE(onDescriptor(0, u"%@: %d of %s"_s, u"Größe"_s, 3, "five"),
             QByteArray("Gr\xc3\xb6\xc3\x9f"
                        "e: 3 of five\n"));
}

void DebugLogTest::printsFromLevelZeroDown_data()
{
    addLevels();
}

void DebugLogTest::printsFromLevelZeroDown()
{
    QFETCH(qint32, level);
    QFETCH(bool, prints);
    QCOMPARE(onStandardError(level, u"text"_s),
             prints ? QByteArray("DEBUG: text\n") : QByteArray());
    QCOMPARE(onDescriptor(level, u"text"_s), prints ? QByteArray("text\n") : QByteArray());
}

void DebugLogTest::describesNothingWhenItPrintsNothing()
{
    const Counted object;
    onStandardError(1, u"%@"_s, &object);
    onDescriptor(1, u"%@"_s, &object);
    QCOMPARE(object.times(), 0);
    QCOMPARE(onStandardError(0, u"%@"_s, &object), QByteArray("DEBUG: described\n"));
    QCOMPARE(object.times(), 1);
}

void DebugLogTest::texts_data()
{
    const TestTable<QString, QByteArray> table("text", "bytes");
    const QChar high(0xd83d);
    const QChar low(0xde00);
    table.add("empty", u""_s, QByteArray());
    table.add("percent signs", u"100% %s %@ %n %%"_s, "100% %s %@ %n %%");
    table.add("newlines", u"\none\n\ntwo\n"_s, "\none\n\ntwo\n");
    table.add("kana", u"あ"_s, "\xe3\x81\x82");
    table.add("pair", QString(high) + low, "\xf0\x9f\x98\x80");
    table.add("high alone", u"a"_s + high + u'b', "a?b");
    table.add("low alone", u"a"_s + low + u'b', "a?b");
    table.add("high at the end", u"a"_s + high, "a?");
    table.add("two high", u"a"_s + high + high, "a??");
    table.add("wrong order", QString(low) + high, "??");
    table.add("high and pair", QString(high) + high + low, "?\xf0\x9f\x98\x80");
    table.add("null", QString(), "(null)");
    table.add("enormous", QString(1 << 20, u'ä'), QByteArray("\xc3\xa4").repeated(1 << 20));
}

void DebugLogTest::texts()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    QVERIFY(onStandardError(0, u"%@"_s, text) == "DEBUG: " + bytes + '\n');
    QVERIFY(onDescriptor(0, u"%@"_s, text) == bytes + '\n');
    // As the format too, where a percent sign is not one of a placeholder.
    if (!text.contains(u'%')) {
        QVERIFY(onStandardError(0, text) == "DEBUG: " + bytes + '\n');
        QVERIFY(onDescriptor(0, text) == bytes + '\n');
    }
}

void DebugLogTest::nullCharacterEndsTheLineOfStandardErrorAlone()
{
    QCOMPARE(onStandardError(0, u"%@"_s, u"ab\0cd"_s), QByteArray("DEBUG: ab\n"));
    QCOMPARE(onDescriptor(0, u"%@"_s, u"ab\0cd"_s), QByteArray("ab\0cd\n", 6));
}

void DebugLogTest::printsBehindTheApplicationsOutput()
{
    const StandardErrorCapture capture;
    char buffer[256];
    std::setvbuf(stderr, buffer, _IOFBF, sizeof(buffer));
    std::fputs("before\n", stderr);
    debugLog(0, u"text"_s);
    std::fputs("after\n", stderr);
    std::fflush(stderr);
    std::setvbuf(stderr, nullptr, _IONBF, 0);
    QCOMPARE(capture.text(), QByteArray("before\nDEBUG: text\nafter\n"));
}

void DebugLogTest::lineAfterLine()
{
    const StandardErrorCapture capture;
    QByteArray expected;
    for (int i = 0; i < 1000; ++i) {
        debugLog(-i, u"line %d"_s, i);
        expected += "DEBUG: line " + QByteArray::number(i) + '\n';
    }
    QCOMPARE(capture.text(), expected);
}

void DebugLogTest::ignoresClosedDescriptors()
{
    debugLogFd(0, -1, u"text"_s);
    debugLogFd(0, smallest, u"text"_s);
    debugLogFd(0, largest, u"text"_s);
    {
        const StandardErrorCapture capture;
        close(STDERR_FILENO);
        debugLog(0, u"text"_s);
    }
    QCOMPARE(onStandardError(0, u"open again"_s), QByteArray("DEBUG: open again\n"));
}

KV_CORE_TEST(DebugLogTest)
#include "tst_debuglog.moc"
