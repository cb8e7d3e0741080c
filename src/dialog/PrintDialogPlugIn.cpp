#include "dialog/PrintDialogPlugIn.h"

#include "dialog/OwnFile.h"
#include "dialog/PrintDialogWatcher.h"

#include <QDir>

QObject *PrintDialogPlugIn::create(const QString & /*key*/, const QString & /*details*/)
{
    if (qgetenv("KVPRINT_DIALOG") == "off") {
        return new QObject;
    }
    return new PrintDialogWatcher(QDir::cleanPath(ownFolder() + QStringLiteral("/" KV_EXTENDER)));
}
