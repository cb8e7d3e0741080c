// SPDX-License-Identifier: Apache-2.0
#include "host/ProblemReporter.h"
#include "printcore/SystemLog.h"

#include <QTest>

#include <pty.h>
#include <unistd.h>

namespace {
/// Tells a problem twice, with that file as standard error; what the system log has got of it.
QByteArrayList loggedOfProblem(const QString &problem, int standardError)
{
    QByteArrayList records;
    setLogSink([&records](const QByteArray &record) { records += record; });
    const int former = dup(STDERR_FILENO);
    dup2(standardError, STDERR_FILENO);
    ProblemReporter reporter;
    reporter.report(problem);
    reporter.report(problem);
    dup2(former, STDERR_FILENO);
    close(former);
    setLogSink({});
    return records;
}
} // namespace

/// Where problems are told that nobody else takes.
class tst_problemreporter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void problemIsLoggedWithoutATerminal_data();
    void problemIsLoggedWithoutATerminal();
};

void tst_problemreporter::problemIsLoggedWithoutATerminal_data()
{
    const TestTable<bool, QByteArrayList> table("hasTerminal", "logged");
    table.add("terminal", true, QByteArrayList());
    table.add("no terminal", false, {"kvprint: a\\nb.pde is missing"});
}

void tst_problemreporter::problemIsLoggedWithoutATerminal()
{
    QFETCH(const bool, hasTerminal);
    int ends[2] = {-1, -1};
    QCOMPARE(hasTerminal ? openpty(&ends[0], &ends[1], nullptr, nullptr, nullptr) : pipe(ends), 0);
    QTEST(loggedOfProblem(u"a\nb.pde is missing"_s, ends[1]), "logged");
    QByteArray seen(256, Qt::Uninitialized);
    seen.resize(int(read(ends[0], seen.data(), std::size_t(seen.size()))));
    QCOMPARE(seen.trimmed(), QByteArray("kvprint: a\\nb.pde is missing"));
    close(ends[0]);
    close(ends[1]);
}

KV_CORE_TEST(tst_problemreporter)
#include "tst_problemreporter.moc"
