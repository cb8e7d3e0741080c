#include "cutoption/GreyReason.h"

#include <algorithm>
#include <iterator>

namespace {
using Catalogue = OptionCatalogue;

constexpr quint32 bit(Catalogue::Option control)
{
    return 1U << control;
}

constexpr quint32 everyControl = 2 * bit(Catalogue::Count) - 1;
constexpr quint32 flagTapeGreys =
    bit(Catalogue::HalfCut) | bit(Catalogue::ChainPrint) | bit(Catalogue::SpecialTape);
constexpr quint32 specialTapeGreys = bit(Catalogue::AutoCut) | bit(Catalogue::CutEvery) |
                                     bit(Catalogue::HalfCut) | bit(Catalogue::ChainPrint) |
                                     bit(Catalogue::Count);
/// What special tape has greyed stays so while there is flag tape.
constexpr quint32 flagTapeKeepsGrey =
    bit(Catalogue::AutoCut) | bit(Catalogue::CutEvery) | bit(Catalogue::Count);

struct Row
{
    quint32 controls;
    GreyReason::Cause cause;
    GreyReason reason;
};

/// The first row that fits tells the reason.
constexpr Row reasons[] = {
    {everyControl, GreyReason::OptionMissing, {"RS_Why_Printer", Catalogue::Count}},
    {bit(Catalogue::RemoveBlkSpace), GreyReason::AnyCause, {"RS_Why_Tape", Catalogue::Count}},
    {flagTapeGreys, GreyReason::FlagTape, {"RS_Why_Tape", Catalogue::Count}},
    {specialTapeGreys, GreyReason::SpecialTapeOn, {"RS_Why_Together", Catalogue::SpecialTape}},
    {bit(Catalogue::Count), GreyReason::CutEveryOff, {"RS_Why_Needs", Catalogue::CutEvery}},
    {flagTapeKeepsGrey, GreyReason::FlagTape, {"RS_Why_Tape", Catalogue::Count}},
    {everyControl, GreyReason::AnyCause, {"RS_Why_Reopen", Catalogue::Count}},
};
} // namespace

GreyReason GreyReason::of(OptionCatalogue::Option control, quint32 causes)
{
    const auto *row =
        std::find_if(std::begin(reasons), std::end(reasons), [control, causes](const Row &r) {
            return (r.controls & bit(control)) && (r.cause & (causes | AnyCause));
        });
    return row->reason;
}
