// SPDX-License-Identifier: Apache-2.0
#include "cutoption/StripWords.h"

#include "preview/Strip.h"
#include "printcore/Bundle.h"

#include <QStringList>

QString stripWords(const Strip &strip, bool isLabelSeries, const QString &count,
                   const Bundle &bundle)
{
    const bool isSpecial = strip.isSpecialTape;
    // A tape printer cuts after the last label, too, unless that waits for the next job.
    const bool isCutAtEnd =
        strip.isCutAtEnd || (!isLabelSeries && strip.isCut() && !strip.isChained);
    const std::pair<bool, const char *> sentences[] = {
        {isSpecial, "RS_Strip_SpecialTape"},
        {!isSpecial && !strip.isCut() && !isCutAtEnd, "RS_Strip_Uncut"},
        {strip.isCut(), "RS_Strip_Cut"},
        {strip.isCutEvery && !count.isNull(), "RS_Strip_Count"},
        {isCutAtEnd, "RS_Strip_CutAtEnd"},
        {strip.isHalfCut, "RS_Strip_HalfCut"},
        {strip.isChained, "RS_Strip_ChainPrint"},
        {strip.hasCutMarks && !isSpecial, "RS_Strip_CutMark"},
        {strip.hasNoBlankSpace, "RS_Strip_RemoveBlkSpace"},
        {strip.isMirrored, "RS_Strip_Mirror"},
    };
    QStringList lines;
    for (const auto &[applies, key] : sentences) {
        if (applies) {
            lines.append(bundle.localizedStringForKey(QLatin1String(key))
                             .replace(QLatin1String("%1"), count));
        }
    }
    return lines.join(QLatin1Char('\n'));
}
