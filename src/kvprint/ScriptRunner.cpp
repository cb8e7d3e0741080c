// SPDX-License-Identifier: Apache-2.0
#include "kvprint/ScriptRunner.h"

#include "kvprint/LineReader.h"
#include "kvprint/StandardOutput.h"

ScriptRunner::ScriptRunner(ScriptSession::Setup setup)
    : mSession(std::move(setup))
{
}

bool ScriptRunner::run(const QString &file, QString *error)
{
    LineReader script(file);
    QByteArray line;
    while (script.read(&line)) {
        *error = writeToStandardOutput(mSession.answer(line) + '\n');
        if (!error->isNull()) {
            return false;
        }
    }
    *error = script.error();
    return error->isNull();
}
