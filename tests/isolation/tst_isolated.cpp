// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QProcess>
#include <QTest>

#include <csignal>

#include <sys/stat.h>

namespace {
constexpr int timeoutMs = 30'000;

struct Run
{
    /// −1 when it did not end.
    int status = -1;
    QString output;
};

/// Runs a command with nothing of the machine's, started with the variables of this process and
/// these.
Run runIsolated(const QStringList &command, const QMap<QString, QString> &variables = {})
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto it = variables.begin(); it != variables.end(); ++it) {
        environment.insert(it.key(), it.value());
    }
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(KV_ISOLATED), command);
    Run run;
    if (process.waitForFinished(timeoutMs) && process.exitStatus() == QProcess::NormalExit) {
        run.status = process.exitCode();
    }
    run.output = QString::fromUtf8(process.readAllStandardOutput());
    return run;
}

QStringList inShell(const QString &commands)
{
    return {QStringLiteral("sh"), QStringLiteral("-c"), commands};
}
} // namespace

/// What a test sees of the machine that it runs on.
class IsolatedTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void variablesOfTheCallerAreGone_data();
    void variablesOfTheCallerAreGone();
    void developersVariablesArrive_data();
    void developersVariablesArrive();
    void variablesOfTheCommandLineAreOnTop();
    void argumentsAndStatusAreKept();
    void homeIsNewAndGoes_data();
    void homeIsNewAndGoes();
    void filesCanBeReadByAll();
    void fontsAreThoseOfTheTests();
};

void IsolatedTest::variablesOfTheCallerAreGone_data()
{
    QTest::addColumn<QString>("name");
    const QString names =
        QStringLiteral("ANY_NAME CUPS_SERVER DBUS_SESSION_BUS_ADDRESS DISPLAY GTK_MODULES HOME "
                       "KVPRINT_DIALOG LANG "
                       "LANGUAGE LC_ALL QT_FONT_DPI QT_PLUGIN_PATH QT_QPA_PLATFORMTHEME "
                       "QT_STYLE_OVERRIDE TMPDIR TZ "
                       "XDG_CONFIG_DIRS XDG_CONFIG_HOME XDG_CURRENT_DESKTOP XDG_DATA_DIRS");
    for (const QString &name : names.split(u' ')) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void IsolatedTest::variablesOfTheCallerAreGone()
{
    QFETCH(const QString, name);
    const Run run = runIsolated({QStringLiteral("env")}, {{name, QStringLiteral("foreign")}});
    QCOMPARE(run.status, 0);
    QVERIFY(run.output.contains(QStringLiteral("HOME=")));
    QVERIFY2(!run.output.contains(QStringLiteral("foreign")), qPrintable(run.output));
}

void IsolatedTest::developersVariablesArrive_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("word") << QStringLiteral("20");
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("blanks") << QStringLiteral(" a folder ");
    QTest::newRow("what a shell replaces") << QStringLiteral("\"$HOME\" '`id`' \\ * =");
    QTest::newRow("lines") << QStringLiteral("one\nKV_OTHER=two\n\nthree");
}

void IsolatedTest::developersVariablesArrive()
{
    QFETCH(const QString, value);
    const Run run = runIsolated(inShell(QStringLiteral("printf '%s|' \"$KV_NAME\"")),
                                {{QStringLiteral("KV_NAME"), value}});
    QCOMPARE(run.output, value + u'|');
    QCOMPARE(run.status, 0);
}

void IsolatedTest::variablesOfTheCommandLineAreOnTop()
{
    const Run run =
        runIsolated(QStringList{QStringLiteral("QT_FONT_DPI=144"), QStringLiteral("KV_NAME=a b")} +
                        inShell(QStringLiteral("printf '%s|%s' \"$QT_FONT_DPI\" \"$KV_NAME\"")),
                    {{QStringLiteral("KV_NAME"), QStringLiteral("other")}});
    QCOMPARE(run.output, QStringLiteral("144|a b"));
}

void IsolatedTest::argumentsAndStatusAreKept()
{
    const Run run = runIsolated(inShell(QStringLiteral("printf '%s|' \"$@\"; exit 7")) +
                                QStringList{QStringLiteral("sh"), QStringLiteral("a b"),
                                            QStringLiteral(""), QStringLiteral("-x=$y")});
    QCOMPARE(run.output, QStringLiteral("a b||-x=$y|"));
    QCOMPARE(run.status, 7);
}

void IsolatedTest::homeIsNewAndGoes_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<int>("status");
    QTest::newRow("done") << QStringLiteral("exit 0") << 0;
    QTest::newRow("failed") << QStringLiteral("exit 1") << 1;
    QTest::newRow("crashed") << QStringLiteral("kill -SEGV $$") << 128 + SIGSEGV;
    QTest::newRow("killed") << QStringLiteral("kill -KILL $$") << 128 + SIGKILL;
}

void IsolatedTest::homeIsNewAndGoes()
{
    QFETCH(const QString, end);
    QFETCH(const int, status);
    const Run run = runIsolated(
        inShell(QStringLiteral("ls -A \"$HOME\"; stat -c '%a' \"$HOME\"; echo \"$HOME\"; ") +
                QStringLiteral("mkdir \"$HOME/.config\"; ") + end));
    QCOMPARE(run.status, status);
    const QStringList lines = run.output.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0), QStringLiteral("700"));
    QVERIFY(lines.at(1).startsWith(QDir::tempPath()));
    QVERIFY(!QFile::exists(lines.at(1)));
}

void IsolatedTest::filesCanBeReadByAll()
{
    const mode_t mask = umask(077);
    const Run run = runIsolated(inShell(QStringLiteral("umask")));
    umask(mask);
    QCOMPARE(run.output, QStringLiteral("0022\n"));
}

void IsolatedTest::fontsAreThoseOfTheTests()
{
    const Run run =
        runIsolated({QStringLiteral(KV_FONT_TELLER)},
                    {{QStringLiteral("FONTCONFIG_FILE"), QStringLiteral("/etc/fonts/fonts.conf")}});
    QCOMPARE(run.output.split(u'\n'),
             QStringList({QStringLiteral("DejaVu Sans 9"), QStringLiteral("DejaVu Sans"),
                          QStringLiteral("DejaVu Sans Mono"), QStringLiteral("DejaVu Serif"),
                          QStringLiteral("Monospace"), QStringLiteral("Sans Serif"),
                          QStringLiteral("Serif"), QStringLiteral("WenQuanYi Micro Hei"),
                          QStringLiteral("WenQuanYi Micro Hei Mono"), QString()}));
}

KV_CORE_TEST(IsolatedTest)

#include "tst_isolated.moc"
