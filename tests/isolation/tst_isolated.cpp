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
    return {u"sh"_s, u"-c"_s, commands};
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
    const TestTable<QString> table("name");
    const QString names = u"ANY_NAME CUPS_SERVER DBUS_SESSION_BUS_ADDRESS DISPLAY GTK_MODULES HOME "
                          "KVPRINT_DIALOG LANG "
                          "LANGUAGE LC_ALL QT_FONT_DPI QT_PLUGIN_PATH QT_QPA_PLATFORMTHEME "
                          "QT_STYLE_OVERRIDE TMPDIR TZ "
                          "XDG_CONFIG_DIRS XDG_CONFIG_HOME XDG_CURRENT_DESKTOP XDG_DATA_DIRS"_s;
    for (const QString &name : names.split(u' ')) {
        table.add(qPrintable(name), name);
    }
}

void IsolatedTest::variablesOfTheCallerAreGone()
{
    QFETCH(const QString, name);
    const Run run = runIsolated({u"env"_s}, {{name, u"foreign"_s}});
    QCOMPARE(run.status, 0);
    QVERIFY(run.output.contains(u"HOME="_s));
    QVERIFY2(!run.output.contains(u"foreign"_s), qPrintable(run.output));
}

void IsolatedTest::developersVariablesArrive_data()
{
    const TestTable<QString> table("value");
    table.add("word", u"20"_s);
    table.add("empty", u""_s);
    table.add("blanks", u" a folder "_s);
    table.add("what a shell replaces", u"\"$HOME\" '`id`' \\ * ="_s);
    table.add("lines", u"one\nKV_OTHER=two\n\nthree"_s);
}

void IsolatedTest::developersVariablesArrive()
{
    QFETCH(const QString, value);
    const Run run = runIsolated(inShell(u"printf '%s|' \"$KV_NAME\""_s), {{u"KV_NAME"_s, value}});
    QCOMPARE(run.output, value + u'|');
    QCOMPARE(run.status, 0);
}

void IsolatedTest::variablesOfTheCommandLineAreOnTop()
{
    const Run run = runIsolated(QStringList{u"QT_FONT_DPI=144"_s, u"KV_NAME=a b"_s} +
                                    inShell(u"printf '%s|%s' \"$QT_FONT_DPI\" \"$KV_NAME\""_s),
                                {{u"KV_NAME"_s, u"other"_s}});
    QCOMPARE(run.output, u"144|a b"_s);
}

void IsolatedTest::argumentsAndStatusAreKept()
{
    const Run run = runIsolated(inShell(u"printf '%s|' \"$@\"; exit 7"_s) +
                                QStringList{u"sh"_s, u"a b"_s, u""_s, u"-x=$y"_s});
    QCOMPARE(run.output, u"a b||-x=$y|"_s);
    QCOMPARE(run.status, 7);
}

void IsolatedTest::homeIsNewAndGoes_data()
{
    const TestTable<QString, int> table("end", "status");
    table.add("done", u"exit 0"_s, 0);
    table.add("failed", u"exit 1"_s, 1);
    table.add("crashed", u"kill -SEGV $$"_s, 128 + SIGSEGV);
    table.add("killed", u"kill -KILL $$"_s, 128 + SIGKILL);
}

void IsolatedTest::homeIsNewAndGoes()
{
    QFETCH(const QString, end);
    QFETCH(const int, status);
    const Run run =
        runIsolated(inShell(u"ls -A \"$HOME\"; stat -c '%a' \"$HOME\"; echo \"$HOME\"; "_s +
                            u"mkdir \"$HOME/.config\"; "_s + end));
    QCOMPARE(run.status, status);
    const QStringList lines = run.output.split(u'\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0), u"700"_s);
    QVERIFY(lines.at(1).startsWith(QDir::tempPath()));
    QVERIFY(!QFile::exists(lines.at(1)));
}

void IsolatedTest::filesCanBeReadByAll()
{
    const mode_t mask = umask(077);
    const Run run = runIsolated(inShell(u"umask"_s));
    umask(mask);
    QCOMPARE(run.output, u"0022\n"_s);
}

void IsolatedTest::fontsAreThoseOfTheTests()
{
    const Run run = runIsolated({QStringLiteral(KV_FONT_TELLER)},
                                {{u"FONTCONFIG_FILE"_s, u"/etc/fonts/fonts.conf"_s}});
    QCOMPARE(run.output.split(u'\n'),
             QStringList({u"DejaVu Sans 9"_s, u"DejaVu Sans"_s, u"DejaVu Sans Mono"_s,
                          u"DejaVu Serif"_s, u"Monospace"_s, u"Sans Serif"_s, u"Serif"_s,
                          u"WenQuanYi Micro Hei"_s, u"WenQuanYi Micro Hei Mono"_s, QString()}));
}

KV_CORE_TEST(IsolatedTest)

#include "tst_isolated.moc"
