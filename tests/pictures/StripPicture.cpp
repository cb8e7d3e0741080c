// SPDX-License-Identifier: Apache-2.0
#include "StripPicture.h"

#include "PictureNames.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace {
constexpr int scale = 3;
constexpr double inkLuminance = 0.03;
constexpr double tellingContrast = 1.5;

/// The linear light of each value of a channel.
std::array<double, 256> lightTable()
{
    std::array<double, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const double channel = double(i) / 255.0;
        table[i] = channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    }
    return table;
}

double luminanceOf(QRgb colour)
{
    static const std::array<double, 256> light = lightTable();
    return 0.2126 * light[std::size_t(qRed(colour))] + 0.7152 * light[std::size_t(qGreen(colour))] +
           0.0722 * light[std::size_t(qBlue(colour))];
}

QImage onGround(const QImage &image, const QColor &ground)
{
    QImage drawn(image.size(), QImage::Format_ARGB32_Premultiplied);
    drawn.fill(ground);
    QPainter(&drawn).drawImage(0, 0, image);
    return drawn;
}
} // namespace

double luminance(const QColor &colour)
{
    return luminanceOf(colour.rgb());
}

double contrast(double one, double other)
{
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

StripPicture::StripPicture(const QString &name)
    : mImage(QImage(PictureNames::path(name, "@3x")).convertToFormat(QImage::Format_ARGB32))
    , mFaceRow(name.startsWith(u"Preset") ? 10 : 36 * scale)
    , mBackingRow(name.startsWith(u"Preset") ? 49 : 74 * scale)
{
    mImage.setDevicePixelRatio(1.0);
}

double StripPicture::luminanceAt(int x, int y) const
{
    return luminanceOf(mImage.pixel(x, y));
}

bool StripPicture::isInk(int x, int y) const
{
    return qAlpha(mImage.pixel(x, y)) == 255 && luminanceAt(x, y) < inkLuminance;
}

template <typename Holds>
QList<StripPicture::Run> StripPicture::runs(int y, Holds holds) const
{
    QList<Run> found;
    int length = 0;
    for (int x = 0; x <= mImage.width(); ++x) {
        if (x < mImage.width() && holds(x, y)) {
            ++length;
        } else if (length > 0) {
            found.append({x - length, length});
            length = 0;
        }
    }
    return found;
}

int StripPicture::gaps() const
{
    QList<Run> clear =
        runs(mBackingRow, [this](int x, int y) { return qAlpha(mImage.pixel(x, y)) == 0; });
    // Before the strip's first end.
    clear.removeIf([](const Run &run) { return run.start == 0; });
    // The way of the knife parts each gap in two.
    return int(clear.size() / 2);
}

bool StripPicture::isSlit(const Run &run) const
{
    const int before = run.start - 2;
    const int after = run.start + run.length + 1;
    return run.length >= 2 * scale && run.length <= 4 * scale && before >= 0 &&
           after < mImage.width() && qAlpha(mImage.pixel(before, mFaceRow)) == 255 &&
           qAlpha(mImage.pixel(after, mFaceRow)) == 255 && luminanceAt(before, mFaceRow) > 0.4 &&
           luminanceAt(after, mFaceRow) > 0.4;
}

QList<StripPicture::Run> StripPicture::slitRuns() const
{
    // A line drawn on the strip is darker than its backing.
    QList<Run> dark = runs(mFaceRow, [this](int x, int y) {
        const double here = luminanceAt(x, y);
        return qAlpha(mImage.pixel(x, y)) == 255 && here > 0.1 && here < 0.3;
    });
    dark.removeIf([this](const Run &run) {
        const double backing = luminanceAt(run.start + run.length / 2, mBackingRow);
        const double slit = luminanceAt(run.start + run.length / 2, mFaceRow);
        return !isSlit(run) || std::abs(backing - slit) > 0.05;
    });
    return dark;
}

int StripPicture::slits() const
{
    return int(slitRuns().size());
}

int StripPicture::marks() const
{
    const QList<Run> inked = runs(mFaceRow, [this](int x, int y) { return isInk(x, y); });
    return int(std::count_if(inked.begin(), inked.end(),
                             [](const Run &run) { return run.length == 2 * scale; }));
}

double StripPicture::hatching() const
{
    constexpr QRgb hatch = 0xffb4bac3;
    int pixels = 0;
    for (int y = 0; y < mImage.height(); ++y) {
        for (int x = 0; x < mImage.width(); ++x) {
            pixels += mImage.pixel(x, y) == hatch;
        }
    }
    return pixels / double(scale * scale);
}

QList<QRect> StripPicture::texts() const
{
    // Below the first dash of a mark, and above the strip's edge.
    const int top = mFaceRow + (mBackingRow - mFaceRow) / 10;
    const int bottom = mBackingRow - 3 * scale;
    QList<QRect> found;
    for (int x = 0; x < mImage.width(); ++x) {
        for (int y = top; y < bottom; ++y) {
            if (!isInk(x, y)) {
                continue;
            }
            const QRect pixel(x, y, 1, 1);
            const bool joins = !found.isEmpty() && x - found.last().right() <= 2 * scale;
            joins ? void(found.last() |= pixel) : found.append(pixel);
        }
    }
    found.removeIf([](const QRect &area) { return area.width() <= 2 * scale; });
    return found;
}

QImage StripPicture::inkOf(const QRect &text) const
{
    QImage ink(text.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < text.height(); ++y) {
        for (int x = 0; x < text.width(); ++x) {
            ink.setPixelColor(x, y, isInk(text.x() + x, text.y() + y) ? Qt::black : Qt::white);
        }
    }
    return ink;
}

double StripPicture::textContrast(const QRect &text) const
{
    QList<double> grounds;
    double ink = 1.0;
    for (int y = text.top(); y <= text.bottom(); ++y) {
        for (int x = text.left(); x <= text.right(); ++x) {
            const double here = luminanceAt(x, y);
            ink = std::min(ink, here);
            if (here > 0.3) {
                grounds.append(here);
            }
        }
    }
    std::sort(grounds.begin(), grounds.end());
    return grounds.isEmpty() ? 1.0 : contrast(ink, grounds.at(grounds.size() / 5));
}

double StripPicture::edgeContrast(const QColor &ground) const
{
    const double behind = luminance(ground);
    double least = 21.0;
    const auto isClear = [this](int x, int y) {
        return mImage.rect().contains(x, y) && qAlpha(mImage.pixel(x, y)) == 0;
    };
    for (int y = 0; y < mImage.height(); ++y) {
        for (int x = 0; x < mImage.width(); ++x) {
            if (qAlpha(mImage.pixel(x, y)) == 255 && (isClear(x - 1, y) || isClear(x + 1, y) ||
                                                      isClear(x, y - 1) || isClear(x, y + 1))) {
                least = std::min(least, contrast(luminanceAt(x, y), behind));
            }
        }
    }
    return least;
}

double StripPicture::slitContrast() const
{
    double least = 0.0;
    for (const Run &run : slitRuns()) {
        const double slit = luminanceAt(run.start + run.length / 2, mFaceRow);
        const double beside = luminanceAt(run.start + run.length + 1, mFaceRow);
        const double here = contrast(slit, beside);
        least = least == 0.0 ? here : std::min(least, here);
    }
    return least;
}

QImage StripPicture::withoutTexts() const
{
    QImage image = mImage;
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    for (const QRect &text : texts()) {
        painter.fillRect(text.adjusted(-2, -2, 2, 2), Qt::transparent);
    }
    return image;
}

double StripPicture::differenceTo(const StripPicture &other, const QColor &ground) const
{
    const QImage mine = onGround(mImage, ground);
    const QImage others = onGround(other.mImage, ground);
    int pixels = 0;
    for (int y = 0; y < mine.height(); ++y) {
        for (int x = 0; x < mine.width(); ++x) {
            const QRgb one = mine.pixel(x, y);
            const QRgb another = others.pixel(x, y);
            pixels += one != another &&
                      contrast(luminanceOf(one), luminanceOf(another)) > tellingContrast;
        }
    }
    return pixels / double(scale * scale);
}
