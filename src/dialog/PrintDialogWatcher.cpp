#include "dialog/PrintDialogWatcher.h"

#include "dialog/OwnFile.h"
#include "dialog/PrintDialogExtender.h"
#include "printcore/CheckedFile.h"
#include "printcore/ProblemLine.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QPluginLoader>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {
using namespace std::chrono_literals;

/// How long a dialog may be shown without being painted, as on another desktop, before it is
/// extended all the same.
constexpr auto longestUnpainted = 500ms;

constexpr char printDialogClass[] = "QPrintDialog";

/// Whether the dialog has been extended before, by us or by the application itself as kvprint does.
bool isExtended(const QObject &dialog)
{
    const QObjectList &children = dialog.children();
    return std::any_of(children.begin(), children.end(), [](const QObject *child) {
        return child->inherits("PrintDialogAttachment");
    });
}

/// Tells of a value of the switch that means nothing.
void checkSwitch()
{
    const QString value = qEnvironmentVariable("KVPRINT_DIALOG");
    if (!value.isEmpty() && value != QLatin1String("on")) {
        tellProblem(
            QStringLiteral("KVPRINT_DIALOG: \"%1\" is neither \"on\" nor \"off\"").arg(value));
    }
}

/// What is wrong with a library of ours before it is loaded, or with one that the dynamic linker
/// could find beside it; null when nothing is.
QString faultOf(const CheckedFile &library)
{
    if (!library.fault().isNull()) {
        return QStringLiteral("%1 %2").arg(library.path(), library.fault());
    }
    const QDir folder = QFileInfo(library.path()).dir();
    const CheckedFile checked = CheckedFile::trusted(folder.path(), FileUse::Enter, folder.path());
    // The one that it needs in any case: the folder may be closed to those who list it.
    const QStringList names =
        QStringList(QStringLiteral(KV_CORE)) +
        folder.entryList({QStringLiteral("*.so*")}, QDir::AllEntries | QDir::System);
    for (const QString &name : names) {
        const CheckedFile other = checked.file(name);
        if (!other.fault().isNull()) {
            return QStringLiteral("%1 is not loaded: %2 %3")
                .arg(library.path(), folder.filePath(name), other.fault());
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
    switch (event->type()) {
    case QEvent::Show:
        if (watched->inherits(printDialogClass) && !isExtended(*watched)) {
            mShown.insert(watched);
            extendIn(longestUnpainted, watched);
        }
        break;
    case QEvent::Paint:
        if (mShown.contains(watched)) {
            extendIn(0ms, watched);
        }
        break;
    case QEvent::Hide:
        // The user may have been quick to print.
        extendShown(watched);
        break;
    default:
        break;
    }
    return false;
}

void PrintDialogWatcher::extendIn(std::chrono::milliseconds time, QObject *dialog)
{
    QTimer::singleShot(time, dialog, [this, dialog] { extendShown(dialog); });
}

void PrintDialogWatcher::extendShown(QObject *dialog)
{
    // One that is hidden as it is deleted is no print dialog any more.
    if (mShown.remove(dialog) && dialog->inherits(printDialogClass) && !isExtended(*dialog)) {
        extend(dialog);
    }
}

void PrintDialogWatcher::extend(QObject *dialog)
{
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
        tellProblem(QStringLiteral("%1 has been removed").arg(ownFile()));
        return;
    }
    const CheckedFile library =
        CheckedFile::trusted(QDir::cleanPath(folder + QStringLiteral("/" KV_EXTENDER)));
    const QString fault = faultOf(library);
    if (!fault.isNull()) {
        tellProblem(fault);
        return;
    }
    QPluginLoader loader(library.path());
    mExtender = qobject_cast<PrintDialogExtender *>(loader.instance());
    if (!mExtender) {
        tellProblem(loadFault(library.path(), loader));
    }
}

#include "moc_PrintDialogWatcher.cpp"
