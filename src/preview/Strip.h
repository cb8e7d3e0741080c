// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>

#include <cstddef>

class QAbstractButton;

/// The panel's check boxes that say what the strip will look like, owned by the panel; null for
/// none.
struct StripBoxes
{
    QPointer<QAbstractButton> cutEvery;
    QPointer<QAbstractButton> cutAtEnd;
    QPointer<QAbstractButton> mirror;
    QPointer<QAbstractButton> autoCut;
    QPointer<QAbstractButton> halfCut;
    QPointer<QAbstractButton> chainPrint;
    QPointer<QAbstractButton> specialTape;
    QPointer<QAbstractButton> removeBlkSpace;
    QPointer<QAbstractButton> cutMark;
};

/// The strip that the check boxes ask for. Special tape turns cut every, auto cut, half cut and
/// chain printing off.
struct Strip
{
    bool isCutEvery = false;
    bool isCutAtEnd = false;
    bool isMirrored = false;
    bool isAutoCut = false;
    bool isHalfCut = false;
    bool isChained = false;
    bool isSpecialTape = false;
    bool hasNoBlankSpace = false;
    bool hasCutMarks = false;

    static Strip of(const StripBoxes &boxes);

    /// Whether the strip is cut between its labels.
    bool isCut() const { return isCutEvery || isAutoCut; }

    /// The picture's index among the 6 of the label series, which shows no cut at end beside cuts.
    std::size_t pictureOfLabelSeries() const;
    /// The picture's index among the 22 of the tape family.
    std::size_t pictureOfTapeFamily() const;
};
