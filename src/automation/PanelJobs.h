// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"
#include "cups/SchedulerConnection.h"

#include <QJsonObject>
#include <QSet>

class PanelConversation;
class ScriptRequest;

/// The jobs that a script submits, each with the choices of the panel that is open then.
class PanelJobs
{
public:
    /// @param schedulerLimit how long the scheduler may be silent.
    explicit PanelJobs(SchedulerConnection::Milliseconds schedulerLimit);

    /// "submit": prints as the dialog does when the user accepts it; the panel stays open.
    QJsonObject submit(ScriptRequest &request, PanelConversation &conversation);
    /// "jobs": what has become of the jobs, or of one.
    QJsonObject jobs(ScriptRequest &request) const;
    /// "cancel": takes a job back.
    QJsonObject cancel(ScriptRequest &request) const;

private:
    /// The number of the job that a request names; refuses one that the script has not submitted.
    int jobOf(ScriptRequest &request) const;

    SchedulerConnection::Milliseconds mSchedulerLimit;
    QSet<int> mJobs;
};
