// SPDX-License-Identifier: Apache-2.0
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

/// The folder of bundles beside our libraries, where the dynamic linker never looks.
constexpr char bundlesFolder[] = "pde";
/// How deep below a folder the dynamic linker looks for libraries for the machine's processor: into
/// glibc-hwcaps/x86-64-v2, and of old into tls/haswell/avx512_1/x86_64.
constexpr int processorFolders = 4;

/// What is wrong with anything that the dynamic linker could find in the folder, with its path;
/// null when nothing is.
/// @param needed names of libraries that must be there: the folder may be closed to those who list
/// it.
QString faultIn(const QDir &folder, const QStringList &needed, int depth)
{
    const CheckedFile checked = CheckedFile::trusted(folder.path(), FileUse::Enter, folder.path());
    if (!checked.fault().isNull()) {
        return QStringLiteral("%1 %2").arg(folder.path(), checked.fault());
    }
    const QStringList names =
        needed + folder.entryList({QStringLiteral("*.so*")}, QDir::AllEntries | QDir::System);
    for (const QString &name : names) {
        const CheckedFile library = checked.file(name);
        if (!library.fault().isNull()) {
            return QStringLiteral("%1 %2").arg(folder.filePath(name), library.fault());
        }
    }
    const QStringList folders =
        depth == 0 ? QStringList() : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QString fault;
    for (const QString &name : folders) {
        if (fault.isNull() && name != QLatin1String(bundlesFolder)) {
            fault = faultIn(QDir(folder.filePath(name)), {}, depth - 1);
        }
    }
    return fault;
}

/// What is wrong with a library of ours before it is loaded, or with one that the dynamic linker
/// could find beside it; null when nothing is.
QString faultOf(const CheckedFile &library)
{
    if (!library.fault().isNull()) {
        return QStringLiteral("%1 %2").arg(library.path(), library.fault());
    }
    const QString fault =
        faultIn(QFileInfo(library.path()).dir(), {QStringLiteral(KV_CORE)}, processorFolders);
    return fault.isNull() ? QString()
                          : QStringLiteral("%1 is not loaded: %2").arg(library.path(), fault);
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
