// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "preview/OptionView.h"
#include "toolkit/CheckBox.h"
#include "toolkit/PopUpButton.h"
#include "toolkit/Stepper.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>

/// The controls of the panel's nib, owned by the nib; null when it has no control of that name and
/// class.
struct OptionOutlets
{
    /// Finds the controls by their object names. A control of another class is reported, once, and
    /// hidden: nothing would happen when it is used.
    void findIn(QWidget *nib);

    /// The strip that the check boxes ask for.
    Strip strip() const;

    QPointer<QWidget> mOptionDummyView;
    QPointer<PopUpButton> mOptionPopUpButton;
    QPointer<CheckBox> mCutEveryChkBx;
    QPointer<CheckBox> mCutAndEndChkBx;
    QPointer<CheckBox> mMirrorPrintChkBx;
    QPointer<CheckBox> mAutoCutChkBx;
    QPointer<CheckBox> mHalfCutChkBx;
    QPointer<CheckBox> mChainPrintChkBx;
    QPointer<CheckBox> mSpecialTapeChkBx;
    QPointer<CheckBox> mRemoveBlkSpaceChkBx;
    QPointer<CheckBox> mCutMarkChkBx;
    QPointer<QLineEdit> mCutEveryTxBx;
    QPointer<Stepper> mCutEveryStpr;
    QPointer<QLabel> mCutEveryStr;

    /// The preview, owned by the panel, which puts it where the nib has the dummy view; null
    /// before.
    QPointer<OptionView13_v400_> mOptionView;
};
