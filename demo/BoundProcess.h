// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QProcess>

#include <sys/types.h>

/// A process that ends no later than the thread that has started it.
class BoundProcess : public QProcess
{
    Q_OBJECT

public:
    BoundProcess();

private:
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    void setupChildProcess() override;
#endif
    void bind() const;

    pid_t mParent;
};
