// SPDX-License-Identifier: Apache-2.0
#include "automation/PanelJobs.h"

#include "automation/PanelConversation.h"
#include "automation/ScriptRequest.h"
#include "cups/JobSubmission.h"
#include "cups/OptionCheck.h"
#include "cups/PPDPaper.h"
#include "cups/SchedulerJob.h"
#include "host/ChoiceConflict.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QTemporaryFile>

#include <algorithm>

namespace {
/// What a request sends: files, or the data of the message in a file that lives as long as this.
struct Documents
{
    explicit Documents(ScriptRequest &request)
        : files(request.optionalNames("files"))
    {
        const QString data = request.optionalName("data");
        if (request.isFaulty()) {
            return;
        }
        if (files.isEmpty() == data.isNull()) {
            request.refuse(QStringLiteral("\"submit\" needs either \"files\" or \"data\""));
        } else if (!data.isNull()) {
            takeData(request, data);
        }
        request.refuse(JobSubmission::faultOf(files));
    }

    QStringList files;

private:
    void takeData(ScriptRequest &request, const QString &data)
    {
        const auto decoded = QByteArray::fromBase64Encoding(
            data.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
        if (!decoded || decoded.decoded.isEmpty()) {
            request.refuse(QStringLiteral("\"data\" has to be bytes in base64"));
        } else if (!mFile.open() || mFile.write(decoded.decoded) != decoded.decoded.size() ||
                   !mFile.flush()) {
            request.refuse(QStringLiteral("%1: %2").arg(mFile.fileName(), mFile.errorString()));
        } else {
            files = QStringList(mFile.fileName());
        }
    }

    QTemporaryFile mFile;
};

/// The options of the request, of other kinds than the panel's.
JobOptions otherOptions(ScriptRequest &request, const PanelConversation &conversation)
{
    const JobOptions options = spelledAsIn(conversation.ppd(), request.optionalOptions("options"));
    QStringList decided = conversation.printerKeys();
    decided << QStringLiteral("media") << QStringLiteral("PageSize") << QStringLiteral("copies");
    for (const auto &[key, value] : options.pairs()) {
        if (decided.contains(key)) {
            request.refuse(
                QStringLiteral("\"options\": %1 has a command or a member of its own").arg(key));
        }
    }
    request.refuse(faultOfOptions(conversation.ppd(), options));
    return options;
}

/// What the user would see printed: the saved options with the panel's paper and choices.
JobOptions optionsOf(const PanelConversation &conversation)
{
    JobOptions options = conversation.savedOptions();
    options.merge(conversation.jobOptions());
    const QString paper = conversation.paper().ppdPaperName();
    const bool isKnown = conversation.ppd().hasChoice(QStringLiteral("PageSize"), paper) ||
                         customPageSizeIn(conversation.ppd(), paper).isValid();
    if (!paper.isEmpty() && isKnown) {
        options.remove(QStringLiteral("PageSize"));
        options.set(QStringLiteral("media"), paper);
    }
    return options;
}

/// What the panel says to printing; null when it agrees.
QString faultOfPanel(PDEPanel &panel)
{
    QString error;
    if (!panel.saveValuesAndReturnError(&error)) {
        return error.isEmpty() ? QStringLiteral("the panel could not save its choices") : error;
    }
    return panel.shouldPrint() ? QString()
                               : QStringLiteral("the panel keeps the job from being printed");
}

/// What the PPD forbids together among the job's options; null when it forbids nothing.
QString faultOfConflict(const PanelConversation &conversation, const JobOptions &job)
{
    QString error;
    const auto conflict = ChoiceConflict::find(conversation.ppd(), conversation.printerKeys(),
                                               conversation.savedOptions(), job, &error);
    return conflict ? conflict->fault() : error;
}

QJsonObject described(const SchedulerJob &job)
{
    return {{QStringLiteral("job"), job.id},
            {QStringLiteral("printer"), job.queue},
            {QStringLiteral("title"), job.name},
            {QStringLiteral("state"), job.stateName()},
            {QStringLiteral("reasons"), QJsonArray::fromStringList(job.reasons)},
            {QStringLiteral("message"), job.printerMessage},
            {QStringLiteral("sheets"), job.sheets}};
}
} // namespace

PanelJobs::PanelJobs(SchedulerConnection::Milliseconds schedulerLimit)
    : mSchedulerLimit(schedulerLimit)
{
}

QJsonObject PanelJobs::submit(ScriptRequest &request, PanelConversation &conversation)
{
    if (conversation.queue().isEmpty()) {
        request.refuse(QStringLiteral("the panel has been opened for a PPD without a printer"));
        return {};
    }
    QString title = request.optionalName("title");
    const int copies = request.optionalCopies("copies");
    const JobOptions others = otherOptions(request, conversation);
    const Documents documents(request);
    if (!request.isFaulty()) {
        request.refuse(faultOfPanel(*conversation.panel()));
    }
    JobOptions options = optionsOf(conversation);
    options.merge(others);
    request.refuse(faultOfConflict(conversation, options));
    if (request.isFaulty()) {
        return {};
    }
    if (copies > 0) {
        options.set(QStringLiteral("copies"), QString::number(copies));
    }
    if (title.isEmpty()) {
        title = QFileInfo(documents.files.first()).fileName();
    }
    QString error;
    SchedulerConnection scheduler(mSchedulerLimit);
    const int job = JobSubmission::print(scheduler, conversation.queue(), documents.files, title,
                                         options, &error);
    request.refuse(error);
    if (job == 0) {
        return {};
    }
    mJobs.insert(job);
    return {{QStringLiteral("job"), job}};
}

int PanelJobs::jobOf(ScriptRequest &request) const
{
    const int job = request.integer("job");
    if (!request.isFaulty() && !mJobs.contains(job)) {
        request.refuse(QStringLiteral("job %1 is none that has been submitted here").arg(job));
    }
    return job;
}

QJsonObject PanelJobs::jobs(ScriptRequest &request) const
{
    QList<int> asked = mJobs.values();
    std::ranges::sort(asked);
    if (request.has("job")) {
        asked = {jobOf(request)};
    }
    QJsonArray jobs;
    SchedulerConnection scheduler(mSchedulerLimit);
    for (const int id : std::as_const(asked)) {
        QString error;
        const auto job =
            request.isFaulty() ? std::nullopt : SchedulerJob::read(scheduler, id, &error);
        request.refuse(error);
        jobs.append(job ? described(*job)
                        : QJsonObject{{QStringLiteral("job"), id},
                                      {QStringLiteral("state"), QJsonValue()}});
    }
    return {{QStringLiteral("jobs"), jobs}};
}

QJsonObject PanelJobs::cancel(ScriptRequest &request) const
{
    const int job = jobOf(request);
    QString error;
    SchedulerConnection scheduler(mSchedulerLimit);
    if (!request.isFaulty() && !SchedulerJob::cancel(scheduler, job, &error)) {
        request.refuse(error);
    }
    return {};
}
