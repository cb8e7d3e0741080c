#include "dialog/PrintDialogWatcher.h"

#include "dialog/OwnFile.h"
#include "dialog/PrintDialogExtender.h"
#include "host/FileTrust.h"
#include "printcore/FileAccess.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QPluginLoader>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {
/// Whether the dialog has been extended before, by us or by the application itself as kvprint does.
bool isExtended(const QObject &dialog)
{
    const QObjectList &children = dialog.children();
    return std::any_of(children.begin(), children.end(), [](const QObject *child) {
        return child->inherits("PrintDialogAttachment");
    });
}

void tell(const QString &problem)
{
    std::fprintf(stderr, "kvprint: %s\n", problem.toLocal8Bit().constData());
}

/// Tells of a value of the switch that means nothing.
void checkSwitch()
{
    const QString value = qEnvironmentVariable("KVPRINT_DIALOG");
    if (!value.isEmpty() && value != QLatin1String("on")) {
        tell(QStringLiteral("KVPRINT_DIALOG: \"%1\" is neither \"on\" nor \"off\"").arg(value));
    }
}

/// What is wrong with a library before it is loaded, or with those of ours that it needs; null when
/// nothing is.
QString faultOf(const QString &path)
{
    const QString fault = accessFault(path);
    if (!fault.isNull()) {
        return QStringLiteral("%1 %2").arg(path, fault);
    }
    const QDir folder = QFileInfo(path).dir();
    const QString libraries = QStringLiteral("lib*-qt%1.so*").arg(QT_VERSION_MAJOR);
    const QStringList listed = folder.entryList({libraries}, QDir::Files);
    // Itself in any case: the folder may be closed to those who list it.
    for (const QString &name : QStringList(path) + listed) {
        const QString distrusted = distrust(folder.path(), folder.filePath(name));
        if (!distrusted.isNull()) {
            return QStringLiteral("%1 is not loaded: %2").arg(path, distrusted);
        }
    }
    return {};
}

/// Why a library is none that extends print dialogs, with its path.
QString loadFault(const QString &path, const QPluginLoader &loader)
{
    const QString fault = loader.isLoaded() ? QStringLiteral("it does not extend print dialogs")
                                            : loader.errorString();
    return fault.contains(path) ? fault : QStringLiteral("%1: %2").arg(path, fault);
}
} // namespace

PrintDialogWatcher::PrintDialogWatcher()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool PrintDialogWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && watched->inherits("QPrintDialog")) {
        extend(watched);
    }
    return false;
}

void PrintDialogWatcher::extend(QObject *dialog)
{
    if (isExtended(*dialog)) {
        return;
    }
    if (!std::exchange(mHasTriedToLoad, true)) {
        checkSwitch();
        loadExtender();
    }
    if (mExtender) {
        mExtender->extend(dialog);
    }
}

void PrintDialogWatcher::loadExtender()
{
    const QString folder = ownFolder();
    if (folder.isNull()) {
        tell(QStringLiteral("%1 has been removed").arg(ownFile()));
        return;
    }
    const QString path = QDir::cleanPath(folder + QStringLiteral("/" KV_EXTENDER));
    const QString fault = faultOf(path);
    if (!fault.isNull()) {
        tell(fault);
        return;
    }
    QPluginLoader loader(path);
    mExtender = qobject_cast<PrintDialogExtender *>(loader.instance());
    if (!mExtender) {
        tell(loadFault(path, loader));
    }
}

#include "moc_PrintDialogWatcher.cpp"
