// SPDX-License-Identifier: Apache-2.0
#include "bench/GtkStarts.h"

namespace {
struct UsedApplication
{
    const char *gtk;
    const char *program;
};

constexpr UsedApplication usedApplications[] = {{"3", "l3afpad"}, {"4", "gtk4-print-editor"}};
} // namespace

std::vector<StartedApplication> startedGtkApplications(const GtkSurroundings &surroundings)
{
    const QStringList versions = QStringLiteral(KV_GTK_VERSIONS).split(QLatin1Char(' '));
    std::vector<StartedApplication> applications;
    for (const auto &[gtk, program] : usedApplications) {
        if (!versions.contains(QLatin1String(gtk))) {
            continue;
        }
        StartedApplication application;
        application.title = std::string(program) + " at a display (GTK " + gtk + ")";
        application.program = QStringLiteral("/usr/bin/") + QLatin1String(program);
        application.leaver = QStringLiteral(KV_BUILD_FOLDER "/bin/libkvprint-bench-leave-gtk%1.so")
                                 .arg(QLatin1String(gtk));
        application.extended = surroundings.environment(true);
        application.others = {
            {"beside a start without the extension", surroundings.environment(false)}};
        applications.push_back(application);
    }
    return applications;
}
