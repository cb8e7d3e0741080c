#include "dialog/PrintDialogWatcher.h"

#include "dialog/OwnFile.h"
#include "dialog/PrintDialogExtender.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
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
        loadExtender();
    }
    if (mExtender) {
        mExtender->extend(dialog);
    }
}

void PrintDialogWatcher::loadExtender()
{
    const QString path = QDir::cleanPath(ownFolder() + QStringLiteral("/" KV_EXTENDER));
    QPluginLoader loader(path);
    mExtender = qobject_cast<PrintDialogExtender *>(loader.instance());
    if (!mExtender) {
        const QString fault = loader.isLoaded() ? QStringLiteral("it does not extend print dialogs")
                                                : loader.errorString();
        // Not every fault that the loader tells names the file.
        const QString named =
            fault.contains(path) ? fault : QStringLiteral("%1: %2").arg(path, fault);
        std::fprintf(stderr, "kvprint: %s\n", named.toLocal8Bit().constData());
    }
}
