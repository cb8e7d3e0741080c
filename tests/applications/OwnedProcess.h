// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "demo/BoundProcess.h"

/// A process that is stopped when it goes out of scope.
class OwnedProcess : public BoundProcess
{
    Q_OBJECT

public:
    OwnedProcess();
    /// Terminates the process, kills it when that takes too long, and waits for it.
    ~OwnedProcess() override;

    /// What the destructor does.
    void stop();
};
