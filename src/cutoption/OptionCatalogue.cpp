// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionCatalogue.h"

#include <algorithm>

using Outlets = OptionOutlets;
using Records = OptionRecords;

// clang-format off
const std::array<OptionRow, OptionCatalogue::size> OptionCatalogue::rows = {{
    {.id = CutEvery, .keyword = "KvCutLabel", .outlet = "mCutEveryChkBx",
     .checkBox = &Outlets::mCutEveryChkBx, .option = &Records::mCutEvery_Option,
     .choices = &Records::mCutEvery_Choices, .selection = &Records::mCutEvery_Selection,
     .labelKey = "RS_CutAtEvery", .summaryTitleKey = "RS_STitle_CutLabels",
     .helpKey = "RS_Help_CutEvery", .checkedKeyword = "1", .itemType = CutEveryItem},
    {.id = CutAtEnd, .keyword = "KvCutAtEnd", .outlet = "mCutAndEndChkBx",
     .checkBox = &Outlets::mCutAndEndChkBx, .option = &Records::mCutEnd_Option,
     .choices = &Records::mCutEnd_Choices, .selection = &Records::mCutEnd_Selection,
     .labelKey = "RS_CutAtEnd", .summaryTitleKey = "RS_STitle_CutAtEnd",
     .helpKey = "RS_Help_CutAtEnd", .itemType = CutAtEndItem},
    {.id = Mirror, .keyword = "KvMirror", .outlet = "mMirrorPrintChkBx",
     .checkBox = &Outlets::mMirrorPrintChkBx, .option = &Records::mMirror_Option,
     .choices = &Records::mMirror_Choices, .selection = &Records::mMirror_Selection,
     .labelKey = "RS_MirrorPrinting", .summaryTitleKey = "RS_STitle_MirrorPrinting",
     .helpKey = "RS_Help_Mirror", .itemType = MirrorItem},
    {.id = AutoCut, .keyword = "KvAutoTapeCut", .outlet = "mAutoCutChkBx",
     .checkBox = &Outlets::mAutoCutChkBx, .option = &Records::mAutoCut_Option,
     .choices = &Records::mAutoCut_Choices, .selection = &Records::mAutoCut_Selection,
     .labelKey = "RS_AutoTapeCut", .summaryTitleKey = "RS_STitle_AutoTapeCut",
     .helpKey = "RS_Help_AutoCut", .itemType = AutoCutItem,
     .offUnderSpecialTape = true},
    {.id = HalfCut, .keyword = "KvHalfCut", .outlet = "mHalfCutChkBx",
     .checkBox = &Outlets::mHalfCutChkBx, .option = &Records::mHalfCut_Option,
     .choices = &Records::mHalfCut_Choices, .selection = &Records::mHalfCut_Selection,
     .labelKey = "RS_HalfCut", .summaryTitleKey = "RS_STitle_HalfCut",
     .helpKey = "RS_Help_HalfCut", .itemType = HalfCutItem,
     .offUnderSpecialTape = true},
    {.id = ChainPrint, .keyword = "KvChainPrint", .outlet = "mChainPrintChkBx",
     .checkBox = &Outlets::mChainPrintChkBx, .option = &Records::mChainPrint_Option,
     .choices = &Records::mChainPrint_Choices, .selection = &Records::mChainPrint_Selection,
     .labelKey = "RS_ChainPrinting", .summaryTitleKey = "RS_STitle_ChainPrint",
     .helpKey = "RS_Help_ChainPrint", .itemType = ChainPrintItem,
     .offUnderSpecialTape = true},
    {.id = SpecialTape, .keyword = "KvSpecialTape", .outlet = "mSpecialTapeChkBx",
     .checkBox = &Outlets::mSpecialTapeChkBx, .option = &Records::mSpecialTape_Option,
     .choices = &Records::mSpecialTape_Choices, .selection = &Records::mSpecialTape_Selection,
     .labelKey = "RS_SpecialTape", .summaryTitleKey = "RS_STitle_SpecialTape",
     .helpKey = "RS_Help_SpecialTape", .itemType = SpecialTapeItem},
    {.id = RemoveBlkSpace, .keyword = "KvRemoveBlkSpace", .outlet = "mRemoveBlkSpaceChkBx",
     .checkBox = &Outlets::mRemoveBlkSpaceChkBx, .option = &Records::mRemoveBlkSpace_Option,
     .choices = &Records::mRemoveBlkSpace_Choices, .selection = &Records::mRemoveBlkSpace_Selection,
     .labelKey = "RS_RemoveBlkSpace", .summaryTitleKey = "RS_STitle_RemoveBlkSpace",
     .helpKey = "RS_Help_RemoveBlkSpace", .itemType = RemoveBlkSpaceItem,
     .keptWhileDisabled = true},
    {.id = CutMark, .keyword = "KvCutMark", .outlet = "mCutMarkChkBx",
     .checkBox = &Outlets::mCutMarkChkBx, .option = &Records::mCutMark_Option,
     .choices = &Records::mCutMark_Choices, .selection = &Records::mCutMark_Selection,
     .labelKey = "RS_CutMark", .summaryTitleKey = "RS_STitle_CutMark",
     .helpKey = "RS_Help_CutMark", .itemType = CutMarkItem,
     .offUnderSpecialTape = true, .keptWhileDisabled = true},
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
