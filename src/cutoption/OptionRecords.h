// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ppd/ChoiceList.h"

/**
 * What the panel keeps of each of its nine options.
 *
 * The field with the suffix `_Option` is the PPD's record (null when the PPD lacks the keyword),
 * `_Choices` its choices (a null list likewise), and `_Selection` the one of them that is in force
 * (null before any is known).
 */
struct OptionRecords
{
    ppd_option_t *mCutEvery_Option = nullptr;
    ppd_option_t *mCutEnd_Option = nullptr;
    ppd_option_t *mMirror_Option = nullptr;
    ppd_option_t *mAutoCut_Option = nullptr;
    ppd_option_t *mHalfCut_Option = nullptr;
    ppd_option_t *mChainPrint_Option = nullptr;
    ppd_option_t *mSpecialTape_Option = nullptr;
    ppd_option_t *mRemoveBlkSpace_Option = nullptr;
    ppd_option_t *mCutMark_Option = nullptr;

    ChoiceList mCutEvery_Choices;
    ChoiceList mCutEnd_Choices;
    ChoiceList mMirror_Choices;
    ChoiceList mAutoCut_Choices;
    ChoiceList mHalfCut_Choices;
    ChoiceList mChainPrint_Choices;
    ChoiceList mSpecialTape_Choices;
    ChoiceList mRemoveBlkSpace_Choices;
    ChoiceList mCutMark_Choices;

    const PDEChoice *mCutEvery_Selection = nullptr;
    const PDEChoice *mCutEnd_Selection = nullptr;
    const PDEChoice *mMirror_Selection = nullptr;
    const PDEChoice *mAutoCut_Selection = nullptr;
    const PDEChoice *mHalfCut_Selection = nullptr;
    const PDEChoice *mChainPrint_Selection = nullptr;
    const PDEChoice *mSpecialTape_Selection = nullptr;
    const PDEChoice *mRemoveBlkSpace_Selection = nullptr;
    /// The auto-cut choice as the cut-every box drives it, one of mAutoCut_Choices.
    const PDEChoice *mAutoCut_CutEvery_Selection = nullptr;
    const PDEChoice *mCutMark_Selection = nullptr;
};
