// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "preview/Strip.h"
#include "toolkit/PictureFile.h"

#include <QPixmap>
#include <QWidget>

#include <array>
#include <memory>

class Bundle;

/// The picture of the strip that will come out: draws the ready-made picture that matches the
/// panel's check boxes, in its lower left corner and at its natural size.
class OptionView13_v400_ : public QWidget
{
    Q_OBJECT

public:
    /**
     * Reads all pictures of the printer's kind; one that cannot be read is left out.
     *
     * @param frame in the coordinates of the parent to be.
     * @param isRV whether the printer is of the label-printer series.
     */
    static std::unique_ptr<OptionView13_v400_> initWithFrame(const QRect &frame,
                                                             const Bundle &bundle, bool isRV);

    /// The origin is in the lower left corner.
    bool isFlipped() const { return false; }

    /// The picture for the current state, owned by the view; null when it could not be read.
    const QPixmap *targetDrawImage() const;
    /// The resource name of that picture; null when it could not be read.
    QString targetDrawImageName() const;

    void setIsRV(bool isRV) { mIsRV = isRV; }
    bool isRV() const { return mIsRV; }

    // The panel's check boxes, owned by the panel; null for none.
    void setCutEveryChkBx(QAbstractButton *box) { mBoxes.cutEvery = box; }
    void setCutAndEndChkBx(QAbstractButton *box) { mBoxes.cutAtEnd = box; }
    void setMirrorPrintChkBx(QAbstractButton *box) { mBoxes.mirror = box; }
    void setAutoCutChkBx(QAbstractButton *box) { mBoxes.autoCut = box; }
    void setHalfCutChkBx(QAbstractButton *box) { mBoxes.halfCut = box; }
    void setChainPrintChkBx(QAbstractButton *box) { mBoxes.chainPrint = box; }
    void setSpecialTapeChkBx(QAbstractButton *box) { mBoxes.specialTape = box; }
    void setRemoveBlkSpaceChkBx(QAbstractButton *box) { mBoxes.removeBlkSpace = box; }
    void setCutMarkChkBx(QAbstractButton *box) { mBoxes.cutMark = box; }
    QAbstractButton *cutEveryChkBx() const { return mBoxes.cutEvery; }
    QAbstractButton *cutAndEndChkBx() const { return mBoxes.cutAtEnd; }
    QAbstractButton *mirrorPrintChkBx() const { return mBoxes.mirror; }
    QAbstractButton *autoCutChkBx() const { return mBoxes.autoCut; }
    QAbstractButton *halfCutChkBx() const { return mBoxes.halfCut; }
    QAbstractButton *chainPrintChkBx() const { return mBoxes.chainPrint; }
    QAbstractButton *specialTapeChkBx() const { return mBoxes.specialTape; }
    QAbstractButton *removeBlkSpaceChkBx() const { return mBoxes.removeBlkSpace; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    OptionView13_v400_(const QRect &frame, const Bundle &bundle, bool isRV);

    std::size_t targetDrawIndex() const;

    /// Pictures of the label-printer series; empty for the other kind.
    std::array<PictureFile, 6> mOptionImgRV;
    /// Pictures of the tape-printer family; empty for the other kind.
    std::array<PictureFile, 22> mOptionImgMQ;
    bool mIsRV = false;
    StripBoxes mBoxes;
};
