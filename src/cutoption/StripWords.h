// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class Bundle;
struct Strip;

/**
 * What the strip will look like, for people who do not see the picture: one sentence a line, in the
 * bundle's language.
 *
 * @param isLabelSeries whether the printer is of the series that leaves the strip's end uncut
 * unless it is asked for.
 * @param count how many labels there are between cuts; null when that is not known.
 */
QString stripWords(const Strip &strip, bool isLabelSeries, const QString &count,
                   const Bundle &bundle);
