#include "cutoption/OptionCatalogue.h"

#include <algorithm>

using Panel = OptionPDE13_v400_;

// clang-format off
const std::array<OptionRow, OptionCatalogue::Count> OptionCatalogue::rows = {{
    {"KvCutLabel", "mCutEveryChkBx",
     &Panel::mCutEveryChkBx, &Panel::mCutEvery_Option,
     &Panel::mCutEvery_Choices, &Panel::mCutEvery_Selection,
     "RS_CutAtEvery", "RS_STitle_CutLabels", "RS_Help_CutEvery",
     "1", CutEveryItem, true, false},
    {"KvCutAtEnd", "mCutAndEndChkBx",
     &Panel::mCutAndEndChkBx, &Panel::mCutEnd_Option,
     &Panel::mCutEnd_Choices, &Panel::mCutEnd_Selection,
     "RS_CutAtEnd", "RS_STitle_CutAtEnd", "RS_Help_CutAtEnd",
     "ON", CutAtEndItem, false, false},
    {"KvMirror", "mMirrorPrintChkBx",
     &Panel::mMirrorPrintChkBx, &Panel::mMirror_Option,
     &Panel::mMirror_Choices, &Panel::mMirror_Selection,
     "RS_MirrorPrinting", "RS_STitle_MirrorPrinting", "RS_Help_Mirror",
     "ON", MirrorItem, false, false},
    {"KvAutoTapeCut", "mAutoCutChkBx",
     &Panel::mAutoCutChkBx, &Panel::mAutoCut_Option,
     &Panel::mAutoCut_Choices, &Panel::mAutoCut_Selection,
     "RS_AutoTapeCut", "RS_STitle_AutoTapeCut", "RS_Help_AutoCut",
     "ON", AutoCutItem, true, false},
    {"KvHalfCut", "mHalfCutChkBx",
     &Panel::mHalfCutChkBx, &Panel::mHalfCut_Option,
     &Panel::mHalfCut_Choices, &Panel::mHalfCut_Selection,
     "RS_HalfCut", "RS_STitle_HalfCut", "RS_Help_HalfCut",
     "ON", HalfCutItem, true, false},
    {"KvChainPrint", "mChainPrintChkBx",
     &Panel::mChainPrintChkBx, &Panel::mChainPrint_Option,
     &Panel::mChainPrint_Choices, &Panel::mChainPrint_Selection,
     "RS_ChainPrinting", "RS_STitle_ChainPrint", "RS_Help_ChainPrint",
     "ON", ChainPrintItem, true, false},
    {"KvSpecialTape", "mSpecialTapeChkBx",
     &Panel::mSpecialTapeChkBx, &Panel::mSpecialTape_Option,
     &Panel::mSpecialTape_Choices, &Panel::mSpecialTape_Selection,
     "RS_SpecialTape", "RS_STitle_SpecialTape", "RS_Help_SpecialTape",
     "ON", SpecialTapeItem, false, false},
    {"KvRemoveBlkSpace", "mRemoveBlkSpaceChkBx",
     &Panel::mRemoveBlkSpaceChkBx, &Panel::mRemoveBlkSpace_Option,
     &Panel::mRemoveBlkSpace_Choices, &Panel::mRemoveBlkSpace_Selection,
     "RS_RemoveBlkSpace", "RS_STitle_RemoveBlkSpace", "RS_Help_RemoveBlkSpace",
     "ON", RemoveBlkSpaceItem, false, true},
    {"KvCutMark", "mCutMarkChkBx",
     &Panel::mCutMarkChkBx, &Panel::mCutMark_Option,
     &Panel::mCutMark_Choices, &Panel::mCutMark_Selection,
     "RS_CutMark", "RS_STitle_CutMark", "RS_Help_CutMark",
     "ON", CutMarkItem, true, true},
}};
// clang-format on

const OptionRow *OptionCatalogue::rowForKeyword(const QString &keyword)
{
    const auto *row =
        std::find_if(rows.begin(), rows.end(), [&keyword](const OptionRow &candidate) {
            return keyword == QLatin1String(candidate.keyword);
        });
    return row == rows.end() ? nullptr : row;
}
