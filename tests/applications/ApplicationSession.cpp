// SPDX-License-Identifier: Apache-2.0
#include "ApplicationSession.h"

ApplicationSession::ApplicationSession(const DisplayServer &display, const Application &application,
                                       const ApplicationRun::Setting &setting)
    : mRun(display, application, setting)
    , mDialog(display, mRun)
{
}

bool ApplicationSession::openAt(const QString &printer)
{
    return mDialog.open() && mDialog.pickPrinter(printer);
}

bool ApplicationSession::openPanelAt(const QString &printer)
{
    return openAt(printer) && mDialog.openPanel();
}

QString ApplicationSession::end()
{
    const QStringList foreign = mRun.foreignLibraries();
    if (!foreign.isEmpty()) {
        return u"mapped: "_s + foreign.join(QLatin1Char(' '));
    }
    if (!mDialog.quit()) {
        return u"cannot quit"_s;
    }
    const int status = mRun.exitStatus();
    return status == 0
               ? QString()
               : u"exit status %1: %2"_s.arg(status).arg(mRun.errors().join(QLatin1Char('\n')));
}
