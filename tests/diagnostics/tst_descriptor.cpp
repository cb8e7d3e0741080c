// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/DescriptorWriter.h"

#include "diagnostics/DebugLog.h"
#include "diagnostics/MemoryCheck.h"

#include "ReadPipe.h"

#include <QElapsedTimer>
#include <QTest>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

Q_DECLARE_METATYPE(ReadPipe::Habits)

namespace {
constexpr int pageSize = 4096;

QByteArray mebibyte()
{
    QByteArray bytes;
    for (int i = 0; bytes.size() < 1 << 20; ++i) {
        bytes += QByteArray::number(i) + ' ';
    }
    return bytes;
}

/// A pipe that nobody reads any more.
class BrokenPipe
{
public:
    BrokenPipe()
    {
        int ends[2] = {-1, -1};
        if (pipe2(ends, O_CLOEXEC) != 0) {
            qFatal("no pipe");
        }
        close(ends[0]);
        mWriteEnd = ends[1];
    }
    ~BrokenPipe() { close(mWriteEnd); }
    BrokenPipe(const BrokenPipe &) = delete;
    BrokenPipe &operator=(const BrokenPipe &) = delete;

    int descriptor() const { return mWriteEnd; }

private:
    int mWriteEnd = -1;
};

bool isPending(int signal)
{
    sigset_t pending;
    sigpending(&pending);
    return sigismember(&pending, signal) == 1;
}

bool isBlocked(int signal)
{
    sigset_t mask;
    pthread_sigmask(SIG_BLOCK, nullptr, &mask);
    return sigismember(&mask, signal) == 1;
}

void setBlocked(int signal, bool blocked)
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, signal);
    pthread_sigmask(blocked ? SIG_BLOCK : SIG_UNBLOCK, &signals, nullptr);
}
} // namespace

/// Bytes on descriptors that make trouble.
class DescriptorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void losesNoByte_data();
    void losesNoByte();
    void waitsForAFullPipe();
    void brokenPipeRaisesNoSignal();
    void leavesAPendingSignalAlone();
    void leavesTheSignalMaskAlone();
    void fullDeviceIsIgnored();
    void descriptorToReadIsIgnored();
};

void DescriptorTest::losesNoByte_data()
{
    const TestTable<ReadPipe::Habits> table("habits");
    table.add("pipe", ReadPipe::Habits{});
    table.add("tiny pipe", ReadPipe::Habits{pageSize});
    table.add("slow reader", ReadPipe::Habits{pageSize, 200});
    table.add("interrupted", ReadPipe::Habits{pageSize, 200, false, true});
    table.add("not blocking", ReadPipe::Habits{pageSize, 200, true});
    table.add("not blocking, interrupted", ReadPipe::Habits{pageSize, 200, true, true});
}

void DescriptorTest::losesNoByte()
{
    QFETCH(ReadPipe::Habits, habits);
    const QByteArray bytes = mebibyte();
    const int before = ReadPipe::interruptions();
    {
        ReadPipe pipe(habits);
        writeToDescriptor(pipe.descriptor(), bytes);
        QVERIFY(pipe.finish() == bytes);
        QVERIFY(!habits.interrupts || ReadPipe::interruptions() - before > 50);
    }
    {
        ReadPipe pipe(habits);
        debugLogFd(0, pipe.descriptor(), u"%s"_s, bytes.constData());
        QVERIFY(pipe.finish() == bytes + '\n');
    }
    {
        ReadPipe pipe(habits);
        memoryCheckFd(0, pipe.descriptor(), bytes.constData(), qint32(bytes.size()));
        QVERIFY(pipe.finish().replace('\n', QByteArray()) == bytes.toHex());
    }
}

void DescriptorTest::waitsForAFullPipe()
{
    // Waiting takes no processor time: nearly all of the second is the reader's rest.
    ReadPipe pipe({pageSize, 20000, true});
    const std::clock_t before = std::clock();
    QElapsedTimer timer;
    timer.start();
    const QByteArray bytes(qsizetype(50) * pageSize, 'A');
    writeToDescriptor(pipe.descriptor(), bytes);
    QVERIFY(timer.elapsed() > 500);
    QVERIFY(std::clock() - before < CLOCKS_PER_SEC / 4);
    QVERIFY(pipe.finish() == bytes);
}

void DescriptorTest::brokenPipeRaisesNoSignal()
{
    const BrokenPipe pipe;
    // The signal would end the test.
    std::signal(SIGPIPE, SIG_DFL);
    writeToDescriptor(pipe.descriptor(), "text");
    debugLogFd(0, pipe.descriptor(), u"text"_s);
    memoryCheckFd(0, pipe.descriptor(), "text", 4);
    const int former = dup(STDERR_FILENO);
    dup2(pipe.descriptor(), STDERR_FILENO);
    debugLog(0, u"text"_s);
    memoryCheck(0, "text", 4);
    dup2(former, STDERR_FILENO);
    close(former);
    QVERIFY(!isPending(SIGPIPE));
    QVERIFY(!isBlocked(SIGPIPE));
    // The application itself still gets the signal.
    setBlocked(SIGPIPE, true);
    QCOMPARE(write(pipe.descriptor(), "A", 1), -1);
    QVERIFY(isPending(SIGPIPE));
    std::signal(SIGPIPE, SIG_IGN);
    setBlocked(SIGPIPE, false);
}

void DescriptorTest::leavesAPendingSignalAlone()
{
    const BrokenPipe pipe;
    std::signal(SIGPIPE, SIG_DFL);
    setBlocked(SIGPIPE, true);
    pthread_kill(pthread_self(), SIGPIPE);
    writeToDescriptor(pipe.descriptor(), "text");
    QVERIFY(isPending(SIGPIPE));
    QVERIFY(isBlocked(SIGPIPE));
    // Ignoring a signal drops the one that is pending.
    std::signal(SIGPIPE, SIG_IGN);
    setBlocked(SIGPIPE, false);
}

void DescriptorTest::leavesTheSignalMaskAlone()
{
    ReadPipe pipe;
    setBlocked(SIGUSR2, true);
    writeToDescriptor(pipe.descriptor(), "text");
    QVERIFY(isBlocked(SIGUSR2));
    QVERIFY(!isBlocked(SIGPIPE));
    setBlocked(SIGUSR2, false);
    writeToDescriptor(pipe.descriptor(), "text");
    QVERIFY(!isBlocked(SIGUSR2));
    QCOMPARE(pipe.finish(), QByteArray("texttext"));
}

void DescriptorTest::fullDeviceIsIgnored()
{
    const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
    QVERIFY(full >= 0);
    debugLogFd(0, full, u"text"_s);
    close(full);
    // Closed by now.
    debugLogFd(0, full, u"text"_s);
}

void DescriptorTest::descriptorToReadIsIgnored()
{
    const int zero = open("/dev/zero", O_RDONLY | O_CLOEXEC);
    QVERIFY(zero >= 0);
    debugLogFd(0, zero, u"text"_s);
    close(zero);
}

KV_CORE_TEST(DescriptorTest)
#include "tst_descriptor.moc"
