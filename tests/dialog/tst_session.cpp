// SPDX-License-Identifier: Apache-2.0
#include "ProgramRun.h"

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {
using Variables = QMap<QString, QString>;

const QString plugins = u"QT_QPA_GENERIC_PLUGINS"_s;
const QString path = u"QT_PLUGIN_PATH"_s;
const QString generator =
    u"/usr/lib/systemd/user-environment-generators/30-systemd-environment-d-generator"_s;

/// Runs a program with these variables alone.
ProgramRun run(const QString &program, const QStringList &arguments, const Variables &variables)
{
    QStringList environment{u"-i"_s, u"PATH="_s + qEnvironmentVariable("PATH")};
    for (auto it = variables.begin(); it != variables.end(); ++it) {
        environment.append(it.key() + u'=' + it.value());
    }
    return runProgram(u"env"_s, environment + QStringList{program} + arguments);
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
ProgramRun install(const QString &prefix, const QString &destDir = {})
{
    Variables variables;
    if (!destDir.isNull()) {
        variables.insert(u"DESTDIR"_s, destDir);
    }
    return run(QStringLiteral(KV_CMAKE),
               {u"--install"_s, QStringLiteral(KV_BUILD_FOLDER), u"--component"_s, u"session"_s,
                u"--prefix"_s, prefix},
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
    explicit Prefix(const QString &name = u"prefix"_s)
        : mPath(mFolder.filePath(name))
    {
    }

    bool fill() const { return install(mPath).status == 0; }

    bool addPlugIn(const QString &qt) const
    {
        const QDir folder(folderOf(qt) + u"/generic"_s);
        QFile file(folder.filePath(u"libkvprintdialog.so"_s));
        return folder.mkpath(u"."_s) && file.open(QIODevice::WriteOnly);
    }

    /// The folder of plug-ins for a version of Qt.
    QString folderOf(const QString &qt) const
    {
        return u"%1/%2/qt%3/plugins"_s.arg(mPath, QStringLiteral(KV_LIBRARY_FOLDER), qt);
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
Variables sourced(const QString &shell, const Prefix &prefix, Variables variables, int times = 1,
                  const QString &name = u"60kvprint"_s)
{
    const QString script = prefix.file(u"etc/X11/Xsession.d/"_s + name);
    QString commands;
    for (int time = 0; time < times; ++time) {
        commands += u". \"$0\"; "_s;
    }
    // All variables, the shell's own ones too.
    commands += u"set -a; kvprint_folder=\"${kvprint_folder-gone}\"; /usr/bin/env"_s;
    const ProgramRun result = run(shell, {u"-eu"_s, u"-c"_s, commands, script}, variables);
    Variables after = variablesOf(result.output);
    if (result.status != 0 || !result.errors.isEmpty()) {
        after.insert(u"failure"_s, result.errors);
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
        const QDir others(QLatin1String(place) + u"/environment.d"_s);
        for (const QString &name : others.entryList(QDir::Files | QDir::System)) {
            QFile(folder + u'/' + name).open(QIODevice::WriteOnly | QIODevice::NewOnly);
        }
    }
}

/// The variables that systemd gives the sessions of a user who has linked the file and no other.
Variables generated(const Prefix &prefix, Variables variables,
                    const QString &name = u"60-kvprint.conf"_s)
{
    const QTemporaryDir settings;
    const QString folder = settings.filePath(u"environment.d"_s);
    QDir().mkpath(folder);
    QFile::link(prefix.file(u"lib/environment.d/"_s + name), folder + u'/' + name);
    hideOthers(folder);
    variables.insert(u"XDG_CONFIG_HOME"_s, settings.path());
    const ProgramRun result = run(generator, {}, variables);
    return result.status == 0 ? variablesOf(result.output) : Variables();
}

/// Values of both variables before, and after that; null when not set, and %1 our folders.
void addValues()
{
    const TestTable<QString, QString, QString, QString> table("pluginsBefore", "pluginsAfter",
                                                              "pathBefore", "pathAfter");
    const QString ours = u"kvprintdialog"_s;
    table.add("not set", QString(), ours, QString(), u"%1"_s);
    table.add("others", u"tuio,evdevtouch:/dev/input/event0"_s,
              u"tuio,evdevtouch:/dev/input/event0,kvprintdialog"_s, u"/opt/one:/opt/other one"_s,
              u"/opt/one:/opt/other one:%1"_s);
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
#ifdef KV_HAS_GTK
    void settingsOfGtk_data();
    void settingsOfGtk();
#endif
};

void tst_session::placesOfTheFiles_data()
{
    const TestTable<QString, QStringList> table("prefix", "files");
    const QString script = u"etc/X11/Xsession.d/60kvprint"_s;
    const QString file = u"lib/environment.d/60-kvprint.conf"_s;
    // Those in the folder of the system's settings, and those below the prefix.
    QStringList scripts{script};
    QStringList files{file};
#ifdef KV_HAS_GTK
    scripts << u"etc/X11/Xsession.d/60kvprint-gtk"_s;
    files << u"lib/environment.d/61-kvprint-gtk.conf"_s
          << u"share/dbus-1/services/example.korvane.KvPrint1.service"_s
          << u"share/kvprint/gtk/gtk-3.0/settings.ini"_s;
#endif
    const auto below = [](const QString &folder, QStringList names) {
        return names.replaceInStrings(QRegularExpression(u"^"_s), folder);
    };
    for (const QString &prefix : {u"usr"_s, u"usr/local"_s}) {
        table.add(qPrintable(prefix), QString(u'/' + prefix),
                  scripts + below(prefix + u'/', files));
    }
    table.add("home", u"/home/user/.local"_s, below(u"home/user/.local/"_s, scripts + files));
}

void tst_session::placesOfTheFiles()
{
    QFETCH(const QString, prefix);
    QFETCH(const QStringList, files);
    const QTemporaryDir folder;
    const ProgramRun run = install(prefix, folder.path());
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
    const ProgramRun run = install(u"/opt/it's"_s, folder.path());
    QVERIFY(run.status > 0);
    QVERIFY(run.tells(u"cannot name the prefix"_s));
    QCOMPARE(filesBelow(folder.path()), QStringList());
}

void tst_session::script_data()
{
    addValues();
    QTest::newRow("empty") << u""_s << u"kvprintdialog"_s << u""_s << u"%1"_s;
    QTest::newRow("others alike") << u"xkvprintdialog,kvprintdialog2"_s
                                  << u"xkvprintdialog,kvprintdialog2,kvprintdialog"_s << QString()
                                  << u"%1"_s;
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
        after.insert(u"kvprint_folder"_s, u"gone"_s);
        const Variables before = variablesWith(pluginsBefore, pathBefore);
        for (const QString &shell : {u"dash"_s, u"bash"_s}) {
            QCOMPARE(sourced(shell, prefix, before), after);
            QCOMPARE(sourced(shell, prefix, before, 2), after);
        }
    }
}

void tst_session::scriptSeesItsOwnValues_data()
{
    const TestTable<QString> table("value");
    table.add("alone", u"kvprintdialog"_s);
    table.add("first", u"kvprintdialog,tuio"_s);
    table.add("last", u"tuio,kvprintdialog"_s);
    table.add("with details", u"tuio,kvprintdialog:x,libinput"_s);
}

void tst_session::scriptSeesItsOwnValues()
{
    QFETCH(const QString, value);
    const Prefix prefix;
    QVERIFY(prefix.fill());
    QVERIFY(prefix.addPlugIn(u"6"_s));
    const Variables before = variablesWith(value, prefix.folderOf(u"6"_s) + u":/opt/one"_s);
    Variables after = before;
    after.insert(u"kvprint_folder"_s, u"gone"_s);
    QCOMPARE(sourced(u"dash"_s, prefix, before), after);
}

void tst_session::scriptWithoutPlugIns()
{
    const Prefix prefix;
    QVERIFY(prefix.fill());
    QCOMPARE(sourced(u"dash"_s, prefix, {}), Variables({{u"kvprint_folder"_s, u"gone"_s}}));
}

void tst_session::scriptWithOnePlugIn()
{
    for (const QString &qt : Prefix::versions()) {
        const Prefix prefix;
        QVERIFY(prefix.fill());
        QVERIFY(prefix.addPlugIn(qt));
        const Variables after = sourced(u"dash"_s, prefix, {});
        QCOMPARE(after.value(plugins), u"kvprintdialog"_s);
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
    QFETCH(const QString, pathBefore);
    QFETCH(const QString, pathAfter);
    for (const char *name : {"prefix", "with a blank"}) {
        const Prefix prefix(QString::fromLatin1(name));
        QVERIFY(prefix.fill());
        const Variables first = generated(prefix, variablesWith(pluginsBefore, pathBefore));
        QTEST(first.value(plugins), "pluginsAfter");
        QCOMPARE(first.value(path), pathAfter.arg(prefix.folders()));
        // As after a "daemon-reload".
        QCOMPARE(generated(prefix, first), first);
    }
}

#ifdef KV_HAS_GTK
void tst_session::settingsOfGtk_data()
{
    const TestTable<QString, QString, QString, QString> table("foldersBefore", "foldersAfter",
                                                              "pathBefore", "pathAfter");
    table.add("not set", QString(), u"%1:/etc/xdg"_s, QString(), u"%2"_s);
    table.add("others", u"/etc/xdg/desktop:/etc/xdg"_s, u"%1:/etc/xdg/desktop:/etc/xdg"_s,
              u"/opt/gtk"_s, u"/opt/gtk:%2"_s);
}

void tst_session::settingsOfGtk()
{
    QFETCH(const QString, foldersBefore);
    QFETCH(const QString, pathBefore);
    const Prefix prefix;
    QVERIFY(prefix.fill());
    const QString settings = u"XDG_CONFIG_DIRS"_s;
    const QString modules = u"GTK_PATH"_s;
    Variables before;
    if (!foldersBefore.isNull()) {
        before = {{settings, foldersBefore}, {modules, pathBefore}};
    }
    QStringList folders;
    for (const QString &gtk : QStringLiteral(KV_HAS_GTK).split(u',')) {
        folders.append(u"%1/%2/gtk-%3.0"_s.arg(prefix.file(QString()).chopped(1),
                                               QStringLiteral(KV_LIBRARY_FOLDER), gtk));
    }
    const auto expected = [&prefix, &folders](QString text) {
        return text.replace(u"%1"_s, prefix.file(u"share/kvprint/gtk"_s))
            .replace(u"%2"_s, folders.join(u':'));
    };
    QFETCH(const QString, foldersAfter);
    QFETCH(const QString, pathAfter);
    const Variables after{{settings, expected(foldersAfter)}, {modules, expected(pathAfter)}};
    for (int times : {1, 2}) {
        Variables script = sourced(u"sh"_s, prefix, before, times, u"60kvprint-gtk"_s);
        script.remove(u"kvprint_folder"_s);
        QCOMPARE(script, after);
    }
    const Variables environment = generated(prefix, before, u"61-kvprint-gtk.conf"_s);
    QCOMPARE(environment.value(settings), after.value(settings));
    QCOMPARE(environment.value(modules), after.value(modules));
    QVERIFY(QFile::remove(prefix.file(u"share/kvprint/gtk/gtk-3.0/settings.ini"_s)));
    Variables removed = sourced(u"sh"_s, prefix, before, 1, u"60kvprint-gtk"_s);
    removed.remove(u"kvprint_folder"_s);
    QCOMPARE(removed, before);
}
#endif

KV_CORE_TEST(tst_session)
#include "tst_session.moc"
