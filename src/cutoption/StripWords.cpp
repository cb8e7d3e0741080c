#include "cutoption/StripWords.h"

#include "printcore/Bundle.h"

#include <QStringList>

namespace {
struct Sentence
{
    bool (*applies)(const StripWords &strip);
    const char *key;
};

constexpr Sentence sentences[] = {
    {[](const StripWords &s) { return s.isSpecialTape; }, "RS_Strip_SpecialTape"},
    {[](const StripWords &s) { return !s.isSpecialTape && !s.isCut && !s.isCutAtEnd; },
     "RS_Strip_Uncut"},
    {[](const StripWords &s) { return s.isCut; }, "RS_Strip_Cut"},
    {[](const StripWords &s) { return s.isCut && !s.count.isNull(); }, "RS_Strip_Count"},
    {[](const StripWords &s) { return s.isCutAtEnd; }, "RS_Strip_CutAtEnd"},
    {[](const StripWords &s) { return s.isHalfCut; }, "RS_Strip_HalfCut"},
    {[](const StripWords &s) { return s.isChained; }, "RS_Strip_ChainPrint"},
    {[](const StripWords &s) { return s.hasCutMarks; }, "RS_Strip_CutMark"},
    {[](const StripWords &s) { return s.hasNoBlankSpace; }, "RS_Strip_RemoveBlkSpace"},
    {[](const StripWords &s) { return s.isMirrored; }, "RS_Strip_Mirror"},
};
} // namespace

QString StripWords::text(const Bundle &bundle) const
{
    QStringList lines;
    for (const Sentence &sentence : sentences) {
        if (sentence.applies(*this)) {
            lines.append(bundle.localizedStringForKey(QLatin1String(sentence.key))
                             .replace(QLatin1String("%1"), count));
        }
    }
    return lines.join(QLatin1Char('\n'));
}
