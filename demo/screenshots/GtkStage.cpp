// SPDX-License-Identifier: Apache-2.0
#include "demo/screenshots/GtkStage.h"

#include "applications/Waiting.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>

#include <utility>

namespace {
constexpr int settlingMs = 250;
constexpr int longestSettlingMs = 5'000;
/// A tool tip comes half a second after the mouse.
constexpr int tipMs = 900;

bool runTool(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, arguments);
    return process.waitForFinished() && process.exitCode() == 0;
}

QImage screen()
{
    return QGuiApplication::primaryScreen()->grabWindow().toImage();
}

/// The part of a picture of the screen in which there is something.
QRect usedPart(const QImage &picture)
{
    if (picture.isNull()) {
        return {};
    }
    const QRgb ground = picture.pixel(0, 0);
    QRect area;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != ground) {
                area |= QRect(x, y, 1, 1);
            }
        }
    }
    return area;
}
} // namespace

GtkStage::GtkStage(Look look)
    : mLook(std::move(look))
{
}

bool GtkStage::open(const QString &queue, bool hasService)
{
    const QString service = hasService ? QStringLiteral(KV_PANEL_SERVICE) : u"/bin/false"_s;
    if (!mBus.open(service).isEmpty()) {
        return false;
    }
    QStringList variables = gtkVariables(mSettings.path());
    variables << mBus.variable() << u"GDK_SCALE=%1"_s.arg(mLook.scale)
              << u"GTK_THEME="_s + (mLook.isDark ? u"Adwaita:dark"_s : u"Adwaita"_s);
    QFile settings(mSettings.filePath(u"gtk-%1.0/settings.ini"_s.arg(mLook.gtk)));
    if (!QDir(mSettings.path()).mkpath(u"gtk-%1.0"_s.arg(mLook.gtk)) ||
        !settings.open(QIODevice::WriteOnly)) {
        return false;
    }
    settings.write(u"[Settings]\ngtk-print-backends=kvprint,file,cups\n"
                   "gtk-font-name=Sans %1\n"_s.arg(mLook.fontPoints)
                       .toUtf8());
    settings.close();
    mDialog =
        std::make_unique<GtkDialog>(mLook.gtk, QProcessEnvironment::systemEnvironment(), variables);
    const auto hasPanel = [this] {
        return !mDialog->state().filter(QRegularExpression(u"^(box|label):"_s)).isEmpty();
    };
    return tell(u"open "_s + queue) && waitFor(hasPanel) && tell(u"tab"_s);
}

bool GtkStage::pickPrinter(const QString &queue)
{
    return tell(u"printer "_s + queue) && tell(u"tab"_s);
}

bool GtkStage::restOn(int box)
{
    if (box < 0) {
        return runTool(u"xdotool"_s, {u"mousemove"_s, u"0"_s, u"0"_s});
    }
    const QStringList place = mDialog->ask(u"where %1"_s.arg(box)).trimmed().split(u' ');
    if (place.size() != 2) {
        return false;
    }
    const QStringList window = {u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"^Print$"_s};
    const bool isMoved =
        runTool(u"xdotool"_s, window + QStringList{u"mousemove"_s, u"--window"_s, u"%1"_s} + place);
    QThread::msleep(tipMs);
    return isMoved;
}

QImage GtkStage::picture() const
{
    QImage picture = screen();
    waitFor(
        [&picture] {
            QThread::msleep(settlingMs);
            return std::exchange(picture, screen()) == picture;
        },
        longestSettlingMs);
    return picture.copy(usedPart(picture));
}
