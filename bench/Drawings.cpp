// SPDX-License-Identifier: Apache-2.0
#include "bench/Drawings.h"

#include "bench/BenchSite.h"
#include "bench/Measurement.h"
#include "bench/PanelWindow.h"
#include "bench/PictureWidget.h"

#include <QPainter>

#include <stdexcept>

namespace {
constexpr const char *previewIsDrawn = "preview is drawn";
constexpr const char *widgetIsDrawn = "widget that only blits is drawn";
constexpr const char *pictureIsBlitted = "picture is blitted without widget";

/// The picture that the preview draws when cut every is on and nothing else.
QPixmap stripPicture()
{
    QPixmap picture(QStringLiteral(KV_BUNDLE_DIR "/Contents/Resources/AHCMOnOffOffOff.png"));
    if (picture.isNull()) {
        throw std::runtime_error("there is no picture of the strip");
    }
    return picture;
}

QImage imageOf(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, {}, {}, {});
    return image;
}

void drawAgainAndAgain(benchmark::State &state, QWidget &widget)
{
    QPixmap target(widget.size());
    for ([[maybe_unused]] auto _ : state) {
        widget.render(&target, {}, {}, {});
    }
}

void drawWidget(benchmark::State &state)
{
    QWidget window;
    PictureWidget widget(stripPicture(), &window);
    window.show();
    drawAgainAndAgain(state, widget);
}

void blitPicture(benchmark::State &state)
{
    const QPixmap picture = stripPicture();
    QPixmap target(picture.size());
    for ([[maybe_unused]] auto _ : state) {
        QPainter(&target).drawPixmap(0, 0, picture);
    }
}
} // namespace

Drawings::Drawings(BenchSite &site)
    : mSite(site)
{
}

void Drawings::add()
{
    Measurement::addShort(previewIsDrawn, [this](benchmark::State &state) { drawPreview(state); });
    Measurement::addShort(widgetIsDrawn, drawWidget);
    Measurement::addShort(pictureIsBlitted, blitPicture);
}

void Drawings::drawPreview(benchmark::State &state)
{
    PanelWindow window(mSite.target(usualPrinter), mSite.bundles());
    window.open();
    window.setCutEvery(true);
    PictureWidget picture(stripPicture(), nullptr);
    if (imageOf(window.preview()) != imageOf(picture)) {
        throw std::runtime_error("the preview draws another picture");
    }
    drawAgainAndAgain(state, window.preview());
}

ComparisonGroup Drawings::comparisons()
{
    constexpr Aim twice = {Aim::Kind::Ratio, 2.0};
    return {"Drawing the preview",
            {{previewIsDrawn, widgetIsDrawn, twice}, {previewIsDrawn, pictureIsBlitted, twice}}};
}
