// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionPDE.h"

#include "cutoption/OptionCatalogue.h"

namespace {
/// The lines from top to bottom, which is not the catalogue's order.
constexpr OptionCatalogue::Option summaryOrder[] = {
    OptionCatalogue::CutEvery, OptionCatalogue::AutoCut,        OptionCatalogue::CutAtEnd,
    OptionCatalogue::HalfCut,  OptionCatalogue::SpecialTape,    OptionCatalogue::ChainPrint,
    OptionCatalogue::Mirror,   OptionCatalogue::RemoveBlkSpace, OptionCatalogue::CutMark,
};
} // namespace

std::optional<QVariantMap> OptionPDE13_v400_::summaryInfo()
{
    QVariantMap summary;
    QStringList order;
    for (const OptionCatalogue::Option option : summaryOrder) {
        const OptionRow &row = OptionCatalogue::rows[option];
        const bool replacedByCutEvery = option == OptionCatalogue::AutoCut && mCutEvery_Selection;
        const bool wrongTape = option == OptionCatalogue::RemoveBlkSpace && mTapeState != 0;
        if (!(this->*row.selection) || replacedByCutEvery || wrongTape) {
            continue;
        }
        const QString title = localizedOptionTitle(row, row.summaryTitleKey);
        order.append(title);
        summary.insert(title,
                       option == OptionCatalogue::CutEvery ? cutEverySummary() : yesNoSummary(row));
    }
    // An empty title stays in the order.
    summary.insert(kSummaryDisplayOrder, order);
    return summary;
}

QString OptionPDE13_v400_::yesNoSummary(const OptionRow &row) const
{
    switch (indexOfMarkedOption(this->*row.choices, QLatin1String(row.keyword))) {
    case 0:
        return localized("RS_STitle_No");
    case 1:
        return localized("RS_STitle_Yes");
    default:
        return (this->*row.selection)->userTitle();
    }
}

QString OptionPDE13_v400_::cutEverySummary() const
{
    const char *autoCut = OptionCatalogue::rows[OptionCatalogue::AutoCut].keyword;
    switch (indexOfMarkedOption(mAutoCut_Choices, QLatin1String(autoCut))) {
    case 0:
        return localized("RS_STitle_No");
    case 1:
        return QStringLiteral("%1 %2").arg(mCutEvery_Selection->ppdTitle(), localized("RS_Labels"));
    default:
        return mCutEvery_Selection->userTitle();
    }
}
