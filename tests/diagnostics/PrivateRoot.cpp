// SPDX-License-Identifier: Apache-2.0
#include "PrivateRoot.h"

#include <QDir>
#include <QFile>

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
constexpr uid_t nobody = 65534;

QString madeDeviceFolder(const QTemporaryDir &folder)
{
    QDir(folder.path()).mkdir(u"dev"_s);
    return folder.filePath(u"dev/log"_s);
}

/// Makes a folder the root folder, in a user namespace where this user alone has no right to.
bool enter(const QString &folder)
{
    const QByteArray path = QFile::encodeName(folder);
    if (chroot(path.constData()) != 0 &&
        (unshare(CLONE_NEWUSER) != 0 || chroot(path.constData()) != 0)) {
        return false;
    }
    return chdir("/") == 0;
}

/// Starts a child that does a task in the root folder.
pid_t startedIn(const QString &folder, const std::function<bool()> &task)
{
    const pid_t child = fork();
    if (child == 0) {
        _exit(enter(folder) && task() ? 0 : 1);
    }
    return child;
}
} // namespace

PrivateRoot::PrivateRoot()
    : mLog(madeDeviceFolder(mFolder))
{
}

bool PrivateRoot::isPossible()
{
    return PrivateRoot().run([] { return true; });
}

bool PrivateRoot::run(const std::function<bool()> &task)
{
    const pid_t child = startedIn(mFolder.path(), task);
    int status = 0;
    while (waitpid(child, &status, WNOHANG) == 0) {
        mRecords += mLog.records(10);
    }
    mRecords += mLog.records();
    return child > 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool PrivateRoot::runWithoutRights(const std::function<bool()> &task)
{
    QFile::setPermissions(mFolder.path(),
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    const bool went = run([task] {
        const bool isUnprivileged = geteuid() != 0 || setuid(nobody) == 0;
        return isUnprivileged && access("/", W_OK) != 0 && task();
    });
    QFile::setPermissions(mFolder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return went;
}

QStringList PrivateRoot::entries() const
{
    QStringList names =
        QDir(mFolder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    names.removeAll(u"dev"_s);
    return names;
}
