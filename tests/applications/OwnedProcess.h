#pragma once

#include <QProcess>

/// A process that ends with this one, even when this one crashes.
class OwnedProcess : public QProcess
{
    Q_OBJECT

public:
    OwnedProcess();
    /// Terminates the process, kills it when that takes too long, and waits for it.
    ~OwnedProcess() override;

    /// What the destructor does.
    void stop();
};
