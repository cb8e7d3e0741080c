#include "cutoption/OptionCatalogue.h"

#include <algorithm>

using Panel = OptionPDE13_v400_;

// clang-format off
const std::array<OptionRow, OptionCatalogue::size> OptionCatalogue::rows = {{
    {.id = CutEvery, .keyword = "KvCutLabel", .outlet = "mCutEveryChkBx",
     .checkBox = &Panel::mCutEveryChkBx, .option = &Panel::mCutEvery_Option,
     .choices = &Panel::mCutEvery_Choices, .selection = &Panel::mCutEvery_Selection,
     .labelKey = "RS_CutAtEvery", .summaryTitleKey = "RS_STitle_CutLabels",
     .helpKey = "RS_Help_CutEvery", .checkedKeyword = "1", .itemType = CutEveryItem},
    {.id = CutAtEnd, .keyword = "KvCutAtEnd", .outlet = "mCutAndEndChkBx",
     .checkBox = &Panel::mCutAndEndChkBx, .option = &Panel::mCutEnd_Option,
     .choices = &Panel::mCutEnd_Choices, .selection = &Panel::mCutEnd_Selection,
     .labelKey = "RS_CutAtEnd", .summaryTitleKey = "RS_STitle_CutAtEnd",
     .helpKey = "RS_Help_CutAtEnd", .itemType = CutAtEndItem},
    {.id = Mirror, .keyword = "KvMirror", .outlet = "mMirrorPrintChkBx",
     .checkBox = &Panel::mMirrorPrintChkBx, .option = &Panel::mMirror_Option,
     .choices = &Panel::mMirror_Choices, .selection = &Panel::mMirror_Selection,
     .labelKey = "RS_MirrorPrinting", .summaryTitleKey = "RS_STitle_MirrorPrinting",
     .helpKey = "RS_Help_Mirror", .itemType = MirrorItem},
    {.id = AutoCut, .keyword = "KvAutoTapeCut", .outlet = "mAutoCutChkBx",
     .checkBox = &Panel::mAutoCutChkBx, .option = &Panel::mAutoCut_Option,
     .choices = &Panel::mAutoCut_Choices, .selection = &Panel::mAutoCut_Selection,
     .labelKey = "RS_AutoTapeCut", .summaryTitleKey = "RS_STitle_AutoTapeCut",
     .helpKey = "RS_Help_AutoCut", .itemType = AutoCutItem,
     .offUnderSpecialTape = true},
    {.id = HalfCut, .keyword = "KvHalfCut", .outlet = "mHalfCutChkBx",
     .checkBox = &Panel::mHalfCutChkBx, .option = &Panel::mHalfCut_Option,
     .choices = &Panel::mHalfCut_Choices, .selection = &Panel::mHalfCut_Selection,
     .labelKey = "RS_HalfCut", .summaryTitleKey = "RS_STitle_HalfCut",
     .helpKey = "RS_Help_HalfCut", .itemType = HalfCutItem,
     .offUnderSpecialTape = true},
    {.id = ChainPrint, .keyword = "KvChainPrint", .outlet = "mChainPrintChkBx",
     .checkBox = &Panel::mChainPrintChkBx, .option = &Panel::mChainPrint_Option,
     .choices = &Panel::mChainPrint_Choices, .selection = &Panel::mChainPrint_Selection,
     .labelKey = "RS_ChainPrinting", .summaryTitleKey = "RS_STitle_ChainPrint",
     .helpKey = "RS_Help_ChainPrint", .itemType = ChainPrintItem,
     .offUnderSpecialTape = true},
    {.id = SpecialTape, .keyword = "KvSpecialTape", .outlet = "mSpecialTapeChkBx",
     .checkBox = &Panel::mSpecialTapeChkBx, .option = &Panel::mSpecialTape_Option,
     .choices = &Panel::mSpecialTape_Choices, .selection = &Panel::mSpecialTape_Selection,
     .labelKey = "RS_SpecialTape", .summaryTitleKey = "RS_STitle_SpecialTape",
     .helpKey = "RS_Help_SpecialTape", .itemType = SpecialTapeItem},
    {.id = RemoveBlkSpace, .keyword = "KvRemoveBlkSpace", .outlet = "mRemoveBlkSpaceChkBx",
     .checkBox = &Panel::mRemoveBlkSpaceChkBx, .option = &Panel::mRemoveBlkSpace_Option,
     .choices = &Panel::mRemoveBlkSpace_Choices, .selection = &Panel::mRemoveBlkSpace_Selection,
     .labelKey = "RS_RemoveBlkSpace", .summaryTitleKey = "RS_STitle_RemoveBlkSpace",
     .helpKey = "RS_Help_RemoveBlkSpace", .itemType = RemoveBlkSpaceItem,
     .keptWhileDisabled = true},
    {.id = CutMark, .keyword = "KvCutMark", .outlet = "mCutMarkChkBx",
     .checkBox = &Panel::mCutMarkChkBx, .option = &Panel::mCutMark_Option,
     .choices = &Panel::mCutMark_Choices, .selection = &Panel::mCutMark_Selection,
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
