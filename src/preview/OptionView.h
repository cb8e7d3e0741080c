#pragma once

#include "toolkit/PictureFile.h"

#include <QPixmap>
#include <QPointer>
#include <QWidget>

#include <array>
#include <memory>

class Bundle;
class QAbstractButton;

/**
 * The picture of the strip that will come out: draws the ready-made picture that matches the
 * panel's check boxes, in its lower left corner and at its natural size.
 *
 * A check box counts as on only when it is there, not hidden, and ticked.
 */
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
    void setCutEveryChkBx(QAbstractButton *box) { mCutEveryChkBx = box; }
    void setCutAndEndChkBx(QAbstractButton *box) { mCutAndEndChkBx = box; }
    void setMirrorPrintChkBx(QAbstractButton *box) { mMirrorPrintChkBx = box; }
    void setAutoCutChkBx(QAbstractButton *box) { mAutoCutChkBx = box; }
    void setHalfCutChkBx(QAbstractButton *box) { mHalfCutChkBx = box; }
    void setChainPrintChkBx(QAbstractButton *box) { mChainPrintChkBx = box; }
    void setSpecialTapeChkBx(QAbstractButton *box) { mSpecialTapeChkBx = box; }
    void setRemoveBlkSpaceChkBx(QAbstractButton *box) { mRemoveBlkSpaceChkBx = box; }
    void setCutMarkChkBx(QAbstractButton *box) { mCutMarkChkBx = box; }
    QAbstractButton *cutEveryChkBx() const { return mCutEveryChkBx; }
    QAbstractButton *cutAndEndChkBx() const { return mCutAndEndChkBx; }
    QAbstractButton *mirrorPrintChkBx() const { return mMirrorPrintChkBx; }
    QAbstractButton *autoCutChkBx() const { return mAutoCutChkBx; }
    QAbstractButton *halfCutChkBx() const { return mHalfCutChkBx; }
    QAbstractButton *chainPrintChkBx() const { return mChainPrintChkBx; }
    QAbstractButton *specialTapeChkBx() const { return mSpecialTapeChkBx; }
    QAbstractButton *removeBlkSpaceChkBx() const { return mRemoveBlkSpaceChkBx; }

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
    QPointer<QAbstractButton> mCutEveryChkBx;
    QPointer<QAbstractButton> mCutAndEndChkBx;
    QPointer<QAbstractButton> mMirrorPrintChkBx;
    QPointer<QAbstractButton> mAutoCutChkBx;
    QPointer<QAbstractButton> mHalfCutChkBx;
    QPointer<QAbstractButton> mChainPrintChkBx;
    QPointer<QAbstractButton> mSpecialTapeChkBx;
    QPointer<QAbstractButton> mRemoveBlkSpaceChkBx;
    QPointer<QAbstractButton> mCutMarkChkBx;
};
