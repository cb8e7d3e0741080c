// SPDX-License-Identifier: Apache-2.0
#include "demo/screenshots/GtkStage.h"
#include "demo/screenshots/Sheet.h"

#include <QDir>
#include <QGuiApplication>

#include <cstdio>

namespace {
/// One picture of a sheet, taken after the ones before it.
struct GtkShot
{
    const char *caption;
    /// The queue to turn to; null to stay.
    const char *queue;
    /// What the program with the dialog is told.
    std::initializer_list<const char *> lines;
    /// The check box whose tool tip is shown; −1 for none.
    int tip = -1;
};

const GtkShot gtkShots[] = {
    {"Tape printer", nullptr, {}},
    {"Special tape", nullptr, {"tick 2"}, 1},
    {"Flag labels", nullptr, {"tick 2", "paper FL21x45 59.5 127.6"}},
    {"All options", "Korvane_Tape_All", {"paper T24x100 68.0 283.5", "tick 4"}},
    {"Label printer", "Korvane_Label", {"tick 2"}},
    {"Driverless printer", "Korvane_Cutter", {"tick 1"}},
    {"Menu", "Korvane_Tape", {"menu"}},
    // Its alert stays.
    {"Heat-shrink tube", "Korvane_Tape_Follow", {"paper HS12x100 34 283.5", "tick 0"}},
};

bool refuse(const GtkStage::Look &look, const char *caption)
{
    std::fprintf(stderr, "kvprint-screenshots: \"%s\" cannot be shown with GTK %s\n", caption,
                 qPrintable(look.gtk));
    return false;
}

bool takeAll(const GtkStage::Look &look, Sheet &sheet)
{
    GtkStage stage(look);
    if (!stage.open(u"Korvane_Tape"_s)) {
        return refuse(look, "Tape printer");
    }
    for (const GtkShot &shot : gtkShots) {
        bool isReady = !shot.queue || stage.pickPrinter(QLatin1String(shot.queue));
        if (shot.queue) {
            // The panel fills in.
            stage.picture();
        }
        for (const char *line : shot.lines) {
            isReady = isReady && stage.tell(QLatin1String(line));
        }
        if (!isReady || !stage.restOn(shot.tip)) {
            return refuse(look, shot.caption);
        }
        sheet.add(QLatin1String(shot.caption), stage.picture());
    }
    return true;
}

/// The looks at a scale: light and dark, at the scale 1 with a large font, too.
QList<GtkStage::Look> looksOf(const QString &gtk, int scale)
{
    QList<GtkStage::Look> looks = {{gtk, false, scale}, {gtk, true, scale}};
    if (scale == 1) {
        constexpr int largeFont = 16;
        looks.append({gtk, false, scale, largeFont});
    }
    return looks;
}

QString fileName(const QString &language, const GtkStage::Look &look)
{
    const bool isLarge = look.fontPoints != GtkStage::Look().fontPoints;
    return u"%1-gtk%2-%3-%4%5.png"_s.arg(language, look.gtk, look.isDark ? u"dark" : u"light")
        .arg(look.scale)
        .arg(isLarge ? u"font%1"_s.arg(10 * look.fontPoints) : QString());
}

bool takeFailure(const GtkStage::Look &look, Sheet &sheet)
{
    GtkStage stage(look);
    if (!stage.open(u"Korvane_Tape"_s, false)) {
        return refuse(look, "No service");
    }
    sheet.add(u"No service"_s, stage.picture());
    return true;
}
} // namespace

/// Usage: kvprint-gtk-photographer FOLDER LANGUAGE SCALE GTK ...
int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() < 4) {
        std::fputs("Usage: kvprint-gtk-photographer FOLDER LANGUAGE SCALE GTK ...\n", stderr);
        return 2;
    }
    const QDir folder(arguments.at(0));
    for (const QString &gtk : arguments.mid(3)) {
        for (const GtkStage::Look &look : looksOf(gtk, arguments.at(2).toInt())) {
            Sheet sheet;
            if (!takeAll(look, sheet) || !takeFailure(look, sheet) ||
                !sheet.save(folder.filePath(fileName(arguments.at(1), look)))) {
                return 1;
            }
        }
    }
    return 0;
}
