// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "automation/ScriptSession.h"

#include <QString>

/// Runs a script: answers each of its lines on standard output.
class ScriptRunner
{
public:
    explicit ScriptRunner(ScriptSession::Setup setup);

    /**
     * Runs the script to its end.
     *
     * @param file "-" for standard input.
     * @param error set when the script cannot be read or the answers cannot be written.
     * @return whether every line has been answered; some may have been answered by an error.
     */
    bool run(const QString &file, QString *error);

    /// Whether a line was faulty.
    bool hasFailed() const { return mSession.hasFailed(); }

private:
    ScriptSession mSession;
};
