// SPDX-License-Identifier: Apache-2.0
#include "GtkDialog.h"

#include "applications/Waiting.h"

#include <QDir>
#include <QRegularExpression>

GtkDialog::GtkDialog(const QString &gtk, QProcessEnvironment environment,
                     const QStringList &variables)
{
    environment.insert(u"NO_AT_BRIDGE"_s, u"1"_s);
    environment.insert(u"GTK_A11Y"_s, u"none"_s);
    for (const QString &variable : variables) {
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    }
    mProcess.setProcessEnvironment(environment);
    mProcess.setInputChannelMode(QProcess::ManagedInputChannel);
    mProcess.setStandardInputFile(QString());
    mProcess.start(QStringLiteral(KV_GTK_DIALOG) + gtk, QStringList());
}

QString GtkDialog::ask(const QString &line)
{
    mProcess.write(line.toUtf8() + '\n');
    const bool isAnswered = waitFor([this] {
        return mProcess.state() == QProcess::NotRunning || mProcess.canReadLine() ||
               (mProcess.waitForReadyRead(0) && mProcess.canReadLine());
    });
    return isAnswered && mProcess.canReadLine() ? QString::fromUtf8(mProcess.readLine())
                                                : QString();
}

bool GtkDialog::tell(const QString &line)
{
    return ask(line) == u"\n"_s;
}

QStringList GtkDialog::state()
{
    return ask(u"state"_s).trimmed().split(u'\t');
}

bool GtkDialog::shows(const QStringList &parts)
{
    return waitsFor(parts, true);
}

bool GtkDialog::lacks(const QStringList &parts)
{
    return waitsFor(parts, false);
}

bool GtkDialog::waitsFor(const QStringList &parts, bool areThere)
{
    QStringList now;
    const bool hasCome = waitFor([&] {
        now = state();
        return std::all_of(parts.begin(), parts.end(),
                           [&](const QString &part) { return now.contains(part) == areThere; });
    });
    if (!hasCome) {
        qWarning("waited until %s %s: %s", qPrintable(parts.join(u", "_s)),
                 areThere ? "are there" : "are gone", qPrintable(now.join(u", "_s)));
    }
    return hasCome;
}

int GtkDialog::end()
{
    mProcess.closeWriteChannel();
    const bool hasEnded = mProcess.waitForFinished(kPatienceMs);
    return hasEnded && mProcess.exitStatus() == QProcess::NormalExit ? mProcess.exitCode() : -1;
}

QStringList GtkDialog::ownErrors()
{
    return QString::fromUtf8(mProcess.readAllStandardError())
        .split(u'\n')
        .filter(QRegularExpression(u"^kvprint: |ERROR: |runtime error"_s));
}

QStringList gtkVariables(const QString &folder)
{
    const QDir settings(folder);
    settings.mkpath(u"gtk-3.0"_s);
    QFile file(settings.filePath(u"gtk-3.0/settings.ini"_s));
    if (file.open(QIODevice::WriteOnly)) {
        file.write("[Settings]\ngtk-print-backends=kvprint,file,cups\n");
    }
    const QString libraries = QStringLiteral(KV_LIBRARIES);
    return {u"GTK_PATH=%1/gtk-3.0:%1/gtk-4.0"_s.arg(libraries),
            u"XDG_CONFIG_DIRS="_s + folder,
            u"GDK_BACKEND=x11"_s,
            u"GDK_GL=disable"_s,
            u"GSK_RENDERER=cairo"_s,
            u"GIO_USE_VFS=local"_s,
            u"GSETTINGS_BACKEND=memory"_s,
            u"LC_ALL=C.UTF-8"_s};
}
