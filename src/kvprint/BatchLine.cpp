// SPDX-License-Identifier: Apache-2.0
#include "kvprint/BatchLine.h"

#include "automation/ScriptRequest.h"
#include "kvprint/CommandLine.h"

namespace {
const QString mediaOption = QStringLiteral("media");
} // namespace

std::optional<BatchLine> BatchLine::read(const QByteArray &line, QString *error)
{
    ScriptRequest request = ScriptRequest::withoutCommand(line);
    request.allow({"file", "copies", "preset", "options", "paper", "printer"});
    BatchLine job;
    if (!request.isFaulty()) {
        job.file = request.name("file");
        job.printer = request.optionalName("printer");
        job.wish.preset = request.optionalName("preset");
        job.wish.options = request.optionalOptions("options");
        const QString paper = request.optionalName("paper");
        if (!paper.isNull()) {
            if (job.wish.options.contains(mediaOption)) {
                request.refuse(QStringLiteral("\"paper\" does not go with the option media"));
            }
            job.wish.options.set(mediaOption, paper);
        }
        const int copies = request.has("copies") ? request.integer("copies") : 1;
        if (copies < 1 || copies > CommandLine::mostCopies) {
            request.refuse(
                QStringLiteral("\"copies\" has to be 1 to %1").arg(CommandLine::mostCopies));
        }
        if (request.has("copies")) {
            job.wish.options.set(QStringLiteral("copies"), QString::number(copies));
        }
    }
    *error = request.fault();
    return request.isFaulty() ? std::nullopt : std::optional(job);
}
