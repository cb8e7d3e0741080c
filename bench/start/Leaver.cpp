// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>

#include <cstdio>

#include <dlfcn.h>

namespace {
/// Ends the application when one of its widgets has been painted for the first time.
class Leaver : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType()) {
            qApp->removeEventFilter(this);
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        }
        return false;
    }
};

void printMappedFiles()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (maps.open(QIODevice::ReadOnly)) {
        std::fputs(maps.readAll().constData(), stdout);
    }
}
} // namespace

/// Stands before Qt's own in applications that this library is loaded into before all others.
/// Prints the files that are mapped at the end when KV_BENCH_MAPS is set.
int QApplication::exec()
{
    const auto qtsExec = reinterpret_cast<int (*)()>(dlsym(RTLD_NEXT, "_ZN12QApplication4execEv"));
    Leaver leaver;
    qApp->installEventFilter(&leaver);
    const int status = qtsExec();
    if (qEnvironmentVariableIsSet("KV_BENCH_MAPS")) {
        printMappedFiles();
    }
    return status;
}
