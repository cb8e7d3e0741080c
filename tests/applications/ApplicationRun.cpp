// SPDX-License-Identifier: Apache-2.0
#include "ApplicationRun.h"

#include "DisplayServer.h"
#include "Waiting.h"
#include "support/MemoryFolder.h"

#include <QFileInfo>

#include <algorithm>

namespace {
constexpr const char *folders[] = {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME",
                                   "XDG_RUNTIME_DIR"};

/// The environment of the test without what would change how Qt and the extension work.
QProcessEnvironment ordinaryEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QStringList names = environment.keys();
    for (const QString &name : names) {
        if (name.startsWith(QLatin1String("QT_")) || name.startsWith(QLatin1String("KVPRINT_"))) {
            environment.remove(name);
        }
    }
    return environment;
}
} // namespace

ApplicationRun::ApplicationRun(const DisplayServer &display, const Application &application,
                               const Setting &setting)
    : mApplication(application)
    , mHome(memoryFolderPattern(u"user"_s))
{
    QStringList arguments = application.arguments;
    if (*application.document) {
        arguments.replaceInStrings(u"%1"_s, application.writeDocument(home()));
    }
    mProcess.setProcessEnvironment(environment(display, setting));
    mProcess.setWorkingDirectory(home());
    mProcess.setStandardOutputFile(QProcess::nullDevice());
    mProcess.start(QLatin1String(application.program), arguments);
    mProcess.waitForStarted();
}

QProcessEnvironment ApplicationRun::environment(const DisplayServer &display,
                                                const Setting &setting) const
{
    QProcessEnvironment environment = ordinaryEnvironment();
    for (const char *folder : folders) {
        environment.insert(QLatin1String(folder), home());
    }
    QStringList variables = {
        u"DISPLAY="_s + display.name(), u"QT_QPA_PLATFORM=xcb"_s,
        // Qt 5 would load the machine's drivers for OpenGL, which leak.
        u"QT_XCB_GL_INTEGRATION=none"_s,
        QStringLiteral("QT_PLUGIN_PATH=%1/qt%2/plugins:" KV_TEST_PLUGINS "/qt%2")
            .arg(setting.libraries)
            .arg(mApplication.qt),
        u"QT_QPA_GENERIC_PLUGINS=kvprintdialog,kvinspector:"_s + inspectorSocket(),
        // No session bus is started for it.
        u"DBUS_SESSION_BUS_ADDRESS=disabled:"_s, u"NO_AT_BRIDGE=1"_s};
    variables += setting.variables;
    for (const QString &variable : variables) {
        environment.insert(variable.section(QLatin1Char('='), 0, 0),
                           variable.section(QLatin1Char('='), 1));
    }
    return environment;
}

QStringList ApplicationRun::mappedFiles() const
{
    QFile maps(u"/proc/%1/maps"_s.arg(mProcess.processId()));
    QStringList files;
    if (maps.open(QIODevice::ReadOnly)) {
        const QStringList lines = QString::fromLocal8Bit(maps.readAll()).split(QLatin1Char('\n'));
        for (const QString &line : lines) {
            files.append(line.section(QLatin1Char(' '), 5, -1, QString::SectionSkipEmpty));
        }
    }
    files.removeDuplicates();
    files.removeAll(QString());
    return files;
}

QStringList ApplicationRun::ownLibraries() const
{
    QStringList names;
    const QStringList files = mappedFiles();
    for (const QString &file : files) {
        const QString name = QFileInfo(file).fileName();
        if (name.startsWith(QLatin1String("libkvprint")) ||
            name.startsWith(QLatin1String("libKVMQRV"))) {
            names.append(name);
        }
    }
    names.sort();
    return names;
}

QStringList ApplicationRun::filesMappedFrom(const QString &folder) const
{
    QStringList files;
    const QStringList all = mappedFiles();
    for (const QString &file : all) {
        if (file.startsWith(folder + QLatin1Char('/'))) {
            files.append(file);
        }
    }
    return files;
}

QStringList ApplicationRun::foreignLibraries() const
{
    const int other = mApplication.qt == 6 ? 5 : 6;
    QStringList foreign;
    const QStringList files = mappedFiles();
    for (const QString &file : files) {
        for (const char *mark : {"/libQt%1", "/qt%1/", "-qt%1.so"}) {
            if (file.contains(QString::fromLatin1(mark).arg(other))) {
                foreign.append(file);
            }
        }
    }
    return foreign;
}

int ApplicationRun::exitStatus()
{
    const bool ended =
        mProcess.state() == QProcess::NotRunning || mProcess.waitForFinished(kPatienceMs);
    return ended && mProcess.exitStatus() == QProcess::NormalExit ? mProcess.exitCode() : -1;
}

QStringList ApplicationRun::errors()
{
    mErrors += mProcess.readAllStandardError();
    return QString::fromLocal8Bit(mErrors).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList ApplicationRun::ownErrors()
{
    QStringList lines = errors();
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const QString &line) {
                                   return !line.contains(QLatin1String("kvprint")) &&
                                          !line.contains(QLatin1String("KVMQRV"));
                               }),
                lines.end());
    return lines;
}
