// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {
using Variables = QMap<QString, QString>;

constexpr int sessionTimeoutMs = 60'000;
const QString plugins = QStringLiteral("QT_QPA_GENERIC_PLUGINS");
const QString path = QStringLiteral("QT_PLUGIN_PATH");
const QString generator = QStringLiteral(
    "/usr/lib/systemd/user-environment-generators/30-systemd-environment-d-generator");

struct Run
{
    /// −1 when the program crashed or did not end.
    int status = -1;
    QString output;
    QString errors;
};

/// Runs a program with these variables alone.
Run run(const QString &program, const QStringList &arguments, const Variables &variables)
{
    QProcess process;
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("PATH"), QString::fromLocal8Bit(qgetenv("PATH")));
    for (auto it = variables.begin(); it != variables.end(); ++it) {
        environment.insert(it.key(), it.value());
    }
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    Run run;
    if (process.waitForFinished(sessionTimeoutMs) && process.exitStatus() == QProcess::NormalExit) {
        run.status = process.exitCode();
    }
    run.output = QString::fromLocal8Bit(process.readAllStandardOutput());
    run.errors = QString::fromLocal8Bit(process.readAllStandardError());
    return run;
}

/// A value without the quotes that systemd puts around one with blanks.
QString unquoted(const QString &value)
{
    return value.startsWith(u'"') ? value.mid(1, value.size() - 2) : value;
}

Variables variablesOf(const QString &lines)
{
    Variables variables;
    for (const QString &line : lines.split(u'\n', Qt::SkipEmptyParts)) {
        variables.insert(line.section(u'=', 0, 0), unquoted(line.section(u'=', 1)));
    }
    return variables;
}

/// Installs the session's files alone.
Run install(const QString &prefix, const QString &destDir = {})
{
    Variables variables;
    if (!destDir.isNull()) {
        variables.insert(QStringLiteral("DESTDIR"), destDir);
    }
    return run(QStringLiteral(KV_CMAKE),
               {QStringLiteral("--install"), QStringLiteral(KV_BUILD_FOLDER),
                QStringLiteral("--component"), QStringLiteral("session"),
                QStringLiteral("--prefix"), prefix},
               variables);
}

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator all(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        files.append(QDir(folder).relativeFilePath(all.next()));
    }
    files.sort();
    return files;
}

/// A prefix that the session's files and empty plug-ins are installed to.
class Prefix
{
public:
    explicit Prefix(const QString &name = QStringLiteral("prefix"))
        : mPath(mFolder.filePath(name))
    {
    }

    bool fill() const { return install(mPath).status == 0; }

    bool addPlugIn(const QString &qt) const
    {
        const QDir folder(folderOf(qt) + QStringLiteral("/generic"));
        QFile file(folder.filePath(QStringLiteral("libkvprintdialog.so")));
        return folder.mkpath(QStringLiteral(".")) && file.open(QIODevice::WriteOnly);
    }

    /// The folder of plug-ins for a version of Qt.
    QString folderOf(const QString &qt) const
    {
        return QStringLiteral("%1/%2/qt%3/plugins")
            .arg(mPath, QStringLiteral(KV_LIBRARY_FOLDER), qt);
    }
    /// Our folders of plug-ins, as in QT_PLUGIN_PATH.
    QString folders() const
    {
        QStringList all;
        for (const QString &qt : versions()) {
            all.append(folderOf(qt));
        }
        return all.join(u':');
    }
    QString file(const QString &name) const { return mPath + u'/' + name; }

    static QStringList versions() { return QStringLiteral(KV_QT_VERSIONS).split(u','); }

private:
    QTemporaryDir mFolder;
    QString mPath;
};

/// The variables of a session whose shell sources the script so many times.
Variables sourced(const QString &shell, const Prefix &prefix, Variables variables, int times = 1)
{
    const QString script = prefix.file(QStringLiteral("etc/X11/Xsession.d/60kvprint"));
    QString commands;
    for (int time = 0; time < times; ++time) {
        commands += QStringLiteral(". \"$0\"; ");
    }
    // All variables, the shell's own ones too.
    commands += QStringLiteral("set -a; kvprint_folder=\"${kvprint_folder-gone}\"; /usr/bin/env");
    const Run result =
        run(shell, {QStringLiteral("-eu"), QStringLiteral("-c"), commands, script}, variables);
    Variables after = variablesOf(result.output);
    if (result.status != 0 || !result.errors.isEmpty()) {
        after.insert(QStringLiteral("failure"), result.errors);
    }
    for (const char *ofTheShell : {"PATH", "PWD", "OLDPWD", "SHLVL", "_"}) {
        after.remove(QLatin1String(ofTheShell));
    }
    return after;
}

/// Hides the machine's files, of all packages, from systemd: it reads none of a name that is in the
/// user's folder too.
void hideOthers(const QString &folder)
{
    for (const char *place : {"/etc", "/run", "/usr/local/lib", "/usr/lib"}) {
        const QDir others(QLatin1String(place) + QStringLiteral("/environment.d"));
        for (const QString &name : others.entryList(QDir::Files | QDir::System)) {
            QFile(folder + u'/' + name).open(QIODevice::WriteOnly | QIODevice::NewOnly);
        }
    }
}

/// The variables that systemd gives the sessions of a user who has linked the file and no other.
Variables generated(const Prefix &prefix, Variables variables)
{
    const QTemporaryDir settings;
    const QString folder = settings.filePath(QStringLiteral("environment.d"));
    QDir().mkpath(folder);
    QFile::link(prefix.file(QStringLiteral("lib/environment.d/60-kvprint.conf")),
                folder + QStringLiteral("/60-kvprint.conf"));
    hideOthers(folder);
    variables.insert(QStringLiteral("XDG_CONFIG_HOME"), settings.path());
    const Run result = run(generator, {}, variables);
    return result.status == 0 ? variablesOf(result.output) : Variables();
}

/// Values of both variables before, and after that; null when not set, and %1 our folders.
void addValues()
{
    QTest::addColumn<QString>("pluginsBefore");
    QTest::addColumn<QString>("pluginsAfter");
    QTest::addColumn<QString>("pathBefore");
    QTest::addColumn<QString>("pathAfter");
    const QString ours = QStringLiteral("kvprintdialog");
    QTest::newRow("not set") << QString() << ours << QString() << QStringLiteral("%1");
    QTest::newRow("others") << QStringLiteral("tuio,evdevtouch:/dev/input/event0")
                            << QStringLiteral("tuio,evdevtouch:/dev/input/event0,kvprintdialog")
                            << QStringLiteral("/opt/one:/opt/other one")
                            << QStringLiteral("/opt/one:/opt/other one:%1");
}

/// The session's variables with these values of the two; null for none.
Variables variablesWith(const QString &ofPlugins, const QString &ofPath)
{
    Variables variables;
    if (!ofPlugins.isNull()) {
        variables.insert(plugins, ofPlugins);
    }
    if (!ofPath.isNull()) {
        variables.insert(path, ofPath);
    }
    return variables;
}
} // namespace

/// The files that switch the extension on in sessions, as they are installed for a prefix.
class tst_session : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesOfTheFiles_data();
    void placesOfTheFiles();
    void prefixThatCannotBeNamed();
    void script_data();
    void script();
    void scriptSeesItsOwnValues_data();
    void scriptSeesItsOwnValues();
    void scriptWithoutPlugIns();
    void scriptWithOnePlugIn();
    void environmentFile_data();
    void environmentFile();
};

void tst_session::placesOfTheFiles_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<QStringList>("files");
    const QString script = QStringLiteral("etc/X11/Xsession.d/60kvprint");
    const QString file = QStringLiteral("lib/environment.d/60-kvprint.conf");
    for (const QString &prefix : {QStringLiteral("usr"), QStringLiteral("usr/local")}) {
        QTest::newRow(qPrintable(prefix))
            << QString(u'/' + prefix) << QStringList{script, prefix + u'/' + file};
    }
    const QString home = QStringLiteral("home/user/.local/");
    QTest::newRow("home") << QStringLiteral("/home/user/.local")
                          << QStringList{home + script, home + file};
}

void tst_session::placesOfTheFiles()
{
    QFETCH(const QString, prefix);
    QFETCH(const QStringList, files);
    const QTemporaryDir folder;
    const Run run = install(prefix, folder.path());
    QVERIFY2(run.status == 0, qPrintable(run.errors));
    QCOMPARE(filesBelow(folder.path()), files);
    for (const QString &file : files) {
        QCOMPARE(QFile::permissions(folder.filePath(file)) &
                     (QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther),
                 QFile::ReadOther);
    }
}

void tst_session::prefixThatCannotBeNamed()
{
    const QTemporaryDir folder;
    const Run run = install(QStringLiteral("/opt/it's"), folder.path());
    QVERIFY(run.status > 0);
    QVERIFY2(run.errors.contains(QStringLiteral("cannot name the prefix")), qPrintable(run.errors));
    QCOMPARE(filesBelow(folder.path()), QStringList());
}

void tst_session::script_data()
{
    addValues();
    QTest::newRow("empty") << QStringLiteral("") << QStringLiteral("kvprintdialog")
                           << QStringLiteral("") << QStringLiteral("%1");
    QTest::newRow("others alike") << QStringLiteral("xkvprintdialog,kvprintdialog2")
                                  << QStringLiteral("xkvprintdialog,kvprintdialog2,kvprintdialog")
                                  << QString() << QStringLiteral("%1");
}

void tst_session::script()
{
    QFETCH(const QString, pluginsBefore);
    QFETCH(const QString, pluginsAfter);
    QFETCH(const QString, pathBefore);
    QFETCH(const QString, pathAfter);
    for (const char *name : {"prefix", "with a blank"}) {
        const Prefix prefix(QString::fromLatin1(name));
        QVERIFY(prefix.fill());
        for (const QString &qt : Prefix::versions()) {
            QVERIFY(prefix.addPlugIn(qt));
        }
        Variables after = variablesWith(pluginsAfter, pathAfter.arg(prefix.folders()));
        after.insert(QStringLiteral("kvprint_folder"), QStringLiteral("gone"));
        const Variables before = variablesWith(pluginsBefore, pathBefore);
        for (const QString &shell : {QStringLiteral("dash"), QStringLiteral("bash")}) {
            QCOMPARE(sourced(shell, prefix, before), after);
            QCOMPARE(sourced(shell, prefix, before, 2), after);
        }
    }
}

void tst_session::scriptSeesItsOwnValues_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("alone") << QStringLiteral("kvprintdialog");
    QTest::newRow("first") << QStringLiteral("kvprintdialog,tuio");
    QTest::newRow("last") << QStringLiteral("tuio,kvprintdialog");
    QTest::newRow("with details") << QStringLiteral("tuio,kvprintdialog:x,libinput");
}

void tst_session::scriptSeesItsOwnValues()
{
    QFETCH(const QString, value);
    const Prefix prefix;
    QVERIFY(prefix.fill());
    QVERIFY(prefix.addPlugIn(QStringLiteral("6")));
    const Variables before =
        variablesWith(value, prefix.folderOf(QStringLiteral("6")) + QStringLiteral(":/opt/one"));
    Variables after = before;
    after.insert(QStringLiteral("kvprint_folder"), QStringLiteral("gone"));
    QCOMPARE(sourced(QStringLiteral("dash"), prefix, before), after);
}

void tst_session::scriptWithoutPlugIns()
{
    const Prefix prefix;
    QVERIFY(prefix.fill());
    QCOMPARE(sourced(QStringLiteral("dash"), prefix, {}),
             Variables({{QStringLiteral("kvprint_folder"), QStringLiteral("gone")}}));
}

void tst_session::scriptWithOnePlugIn()
{
    for (const QString &qt : Prefix::versions()) {
        const Prefix prefix;
        QVERIFY(prefix.fill());
        QVERIFY(prefix.addPlugIn(qt));
        const Variables after = sourced(QStringLiteral("dash"), prefix, {});
        QCOMPARE(after.value(plugins), QStringLiteral("kvprintdialog"));
        QCOMPARE(after.value(path), prefix.folderOf(qt));
    }
}

void tst_session::environmentFile_data()
{
    addValues();
}

void tst_session::environmentFile()
{
    if (!QFile::exists(generator)) {
        QSKIP("systemd is not installed");
    }
    QFETCH(const QString, pluginsBefore);
    QFETCH(const QString, pluginsAfter);
    QFETCH(const QString, pathBefore);
    QFETCH(const QString, pathAfter);
    for (const char *name : {"prefix", "with a blank"}) {
        const Prefix prefix(QString::fromLatin1(name));
        QVERIFY(prefix.fill());
        const Variables first = generated(prefix, variablesWith(pluginsBefore, pathBefore));
        QCOMPARE(first.value(plugins), pluginsAfter);
        QCOMPARE(first.value(path), pathAfter.arg(prefix.folders()));
        // As after a "daemon-reload".
        QCOMPARE(generated(prefix, first), first);
    }
}

KV_CORE_TEST(tst_session)
#include "tst_session.moc"
