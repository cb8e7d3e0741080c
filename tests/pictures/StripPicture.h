// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QList>
#include <QRect>

/// What a person can tell from a picture of a strip without seeing its colours, measured at three
/// pixels per point.
class StripPicture
{
public:
    /// A picture of the preview, or one of the menu when its name begins with "Preset".
    explicit StripPicture(const QString &name);

    bool isNull() const { return mImage.isNull(); }
    /// How many gaps go right through the strip, with its backing.
    int gaps() const;
    /// How many slits go through the label layer alone, and leave the backing whole.
    int slits() const;
    /// How many lines of printed dashes go across the strip.
    int marks() const;
    /// How much blank tape there is, in square points of hatching.
    double hatching() const;
    /// The texts from left to right.
    QList<QRect> texts() const;
    /// Which pixels of a text are inked.
    QImage inkOf(const QRect &text) const;
    /// The contrast of a text to what it stands on.
    double textContrast(const QRect &text) const;
    /// The least contrast of the picture's edge to a ground.
    double edgeContrast(const QColor &ground) const;
    /// The least contrast of a slit to the label layer beside it; 0 without slits.
    double slitContrast() const;
    /// The picture without its texts.
    QImage withoutTexts() const;
    /// How many square points are told apart in grey, on a ground.
    double differenceTo(const StripPicture &other, const QColor &ground) const;

private:
    struct Run
    {
        int start;
        int length;
    };

    double luminanceAt(int x, int y) const;
    bool isInk(int x, int y) const;
    bool isSlit(const Run &run) const;
    QList<Run> slitRuns() const;
    template <typename Holds>
    QList<Run> runs(int y, Holds holds) const;

    QImage mImage;
    /// A row of the face above the texts, and one of the backing.
    int mFaceRow;
    int mBackingRow;
};

/// The relative luminance of a colour, from 0 to 1.
double luminance(const QColor &colour);
/// The contrast ratio of two luminances, from 1 to 21.
double contrast(double one, double other);
