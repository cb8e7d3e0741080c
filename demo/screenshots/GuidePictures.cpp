// SPDX-License-Identifier: Apache-2.0
#include "demo/screenshots/GuidePictures.h"

#include "demo/screenshots/DialogStage.h"
#include "demo/screenshots/Look.h"

#include <cstdio>

namespace {
struct Picture
{
    const char *file;
    const char *queue;
    /// What is done before; false when it cannot be.
    bool (*prepare)(DialogStage &stage);
};

const QString halfCut = QStringLiteral("mHalfCutChkBx");
const QString specialTape = QStringLiteral("mSpecialTapeChkBx");

constexpr Picture pictures[] = {
    {"panel.png", "Korvane_Tape",
     [](DialogStage &) {
         return true;
     }},
    {"half-cut.png", "Korvane_Tape",
     [](DialogStage &stage) {
         return stage.click(halfCut);
     }},
    {"menu.png", "Korvane_Tape",
     [](DialogStage &stage) {
         return stage.openMenu();
     }},
    {"greyed.png", "Korvane_Tape",
     [](DialogStage &stage) {
         return stage.click(specialTape) && stage.restOn(halfCut);
     }},
    {"summary.png", "Korvane_Tape",
     [](DialogStage &stage) {
         return stage.click(halfCut) && stage.showSummary();
     }},
    {"label-printer.png", "Korvane_Label",
     [](DialogStage &) {
         return true;
     }},
    {"driverless.png", "Korvane_Cutter",
     [](DialogStage &stage) {
         return stage.click(QStringLiteral("mCutAndEndChkBx"));
     }},
};
} // namespace

GuidePictures::GuidePictures(const QString &folder)
    : mFolder(folder)
{
}

int GuidePictures::make() const
{
    Look{QStringLiteral("Fusion"), false, 100}.apply();
    int count = 0;
    for (const Picture &picture : pictures) {
        DialogStage stage;
        const QString file = mFolder.filePath(QLatin1String(picture.file));
        if (!mFolder.mkpath(QStringLiteral(".")) || !stage.open(QLatin1String(picture.queue)) ||
            !picture.prepare(stage) || !stage.picture().save(file)) {
            std::fprintf(stderr, "kvprint-screenshots: %s could not be made\n", picture.file);
            return -1;
        }
        ++count;
    }
    return count;
}
