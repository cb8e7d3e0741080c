// SPDX-License-Identifier: Apache-2.0
#include "demo/screenshots/SheetPictures.h"

#include "demo/SamplePrinters.h"
#include "demo/screenshots/DialogStage.h"
#include "demo/screenshots/Look.h"
#include "demo/screenshots/Sheet.h"

#include <cstdio>

namespace {
/// One picture of a sheet, taken after the ones before it.
struct Shot
{
    const char *caption;
    /// The queue to turn to; null to stay.
    const char *queue;
    /// The check boxes to click.
    std::initializer_list<const char *> clicks;
    /// Whether the menu of presets is open.
    bool hasMenu;
    /// Whether the whole dialog is in the picture.
    bool isWhole;
};

const Shot shots[] = {
    {"Tape printer", nullptr, {}, false, true},
    {"Half cut", nullptr, {"mHalfCutChkBx"}, false, false},
    {"Special tape", nullptr, {"mSpecialTapeChkBx"}, false, false},
    {"All options", "Korvane_Tape_All", {"mCutMarkChkBx", "mMirrorPrintChkBx"}, false, false},
    {"Label printer", "Korvane_Label", {}, false, false},
    {"Menu", "Korvane_Tape", {}, true, true},
};

bool take(DialogStage &stage, const Shot &shot, Sheet &sheet)
{
    if (shot.queue && !stage.pickPrinter(QLatin1String(shot.queue))) {
        return false;
    }
    for (const char *box : shot.clicks) {
        if (!stage.click(QLatin1String(box))) {
            return false;
        }
    }
    if (shot.hasMenu && !stage.openMenu()) {
        return false;
    }
    sheet.add(QLatin1String(shot.caption), shot.isWhole ? stage.picture() : stage.panelPicture());
    return true;
}

bool makeSheet(const QString &path)
{
    DialogStage stage;
    Sheet sheet;
    if (!stage.open(QLatin1String(samplePrinters[0].queue))) {
        return false;
    }
    for (const Shot &shot : shots) {
        if (!take(stage, shot, sheet)) {
            std::fprintf(stderr, "kvprint-screenshots: no picture of \"%s\"\n", shot.caption);
            return false;
        }
    }
    return sheet.save(path);
}
} // namespace

SheetPictures::SheetPictures(const QString &folder, const QString &language, const QString &scale)
    : mFolder(folder)
    , mLanguage(language)
    , mScale(scale)
{
}

int SheetPictures::make(const QStringList &styles) const
{
    int count = 0;
    for (const Look &look : Look::all(styles, mScale)) {
        look.apply();
        const QString name = QStringLiteral("%1-%2.png").arg(mLanguage, look.name(mScale));
        if (!makeSheet(mFolder.filePath(name))) {
            std::fprintf(stderr, "kvprint-screenshots: %s could not be made\n", qPrintable(name));
            return -1;
        }
        ++count;
    }
    return count;
}
