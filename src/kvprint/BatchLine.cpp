// SPDX-License-Identifier: Apache-2.0
#include "kvprint/BatchLine.h"

#include "automation/ScriptRequest.h"

namespace {
const QString mediaOption = QStringLiteral("media");
} // namespace

std::optional<BatchLine> BatchLine::read(ScriptRequest request, QString *error)
{
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
        if (const int copies = request.optionalCopies("copies"); copies > 0) {
            job.wish.options.set(QStringLiteral("copies"), QString::number(copies));
        }
    }
    *error = request.fault();
    return request.isFaulty() ? std::nullopt : std::optional(job);
}
