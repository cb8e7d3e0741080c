// SPDX-License-Identifier: Apache-2.0
#include "cutoption/GreyReason.h"

#include <algorithm>

namespace {
using Catalogue = OptionCatalogue;

constexpr quint32 bit(Catalogue::Option option)
{
    return 1U << option;
}

constexpr quint32 countBit = 1U << Catalogue::size;
constexpr quint32 everyControl = 2 * countBit - 1;
constexpr quint32 flagTapeGreys =
    bit(Catalogue::HalfCut) | bit(Catalogue::ChainPrint) | bit(Catalogue::SpecialTape);
constexpr quint32 specialTapeGreys = bit(Catalogue::AutoCut) | bit(Catalogue::CutEvery) |
                                     bit(Catalogue::HalfCut) | bit(Catalogue::ChainPrint) |
                                     countBit;
/// What special tape has greyed stays so while there is flag tape.
constexpr quint32 flagTapeKeepsGrey = bit(Catalogue::AutoCut) | bit(Catalogue::CutEvery) | countBit;

struct Row
{
    quint32 controls;
    GreyReason::Cause cause;
    GreyReason reason;
};

/// The first row that fits tells the reason.
constexpr Row reasons[] = {
    {everyControl, GreyReason::OptionMissing, {"RS_Why_Printer", std::nullopt}},
    {bit(Catalogue::RemoveBlkSpace), GreyReason::AnyCause, {"RS_Why_Tape", std::nullopt}},
    {flagTapeGreys, GreyReason::FlagTape, {"RS_Why_Tape", std::nullopt}},
    {specialTapeGreys, GreyReason::SpecialTapeOn, {"RS_Why_Together", Catalogue::SpecialTape}},
    {countBit, GreyReason::CutEveryOff, {"RS_Why_Needs", Catalogue::CutEvery}},
    {flagTapeKeepsGrey, GreyReason::FlagTape, {"RS_Why_Tape", std::nullopt}},
    {everyControl, GreyReason::AnyCause, {"RS_Why_Reopen", std::nullopt}},
};

GreyReason reasonFor(quint32 control, quint32 causes)
{
    const auto *row = std::ranges::find_if(reasons, [control, causes](const Row &r) {
        return (r.controls & control) && (r.cause & (causes | GreyReason::AnyCause));
    });
    return row->reason;
}
} // namespace

GreyReason GreyReason::ofOption(OptionCatalogue::Option option, quint32 causes)
{
    return reasonFor(bit(option), causes);
}

GreyReason GreyReason::ofCount(quint32 causes)
{
    return reasonFor(countBit, causes);
}
