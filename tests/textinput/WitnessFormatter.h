// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "textinput/PDEFormatter.h"

/// A formatter that writes down what it is asked, and allows everything or nothing.
class WitnessFormatter : public PDEFormatter
{
    Q_OBJECT

public:
    bool isPartialStringValid(const QString &proposedText, const TextRange *proposedSelectedRange,
                              const QString &originalString, const TextRange &originalSelectedRange,
                              QString *errorDescription) override;

    /// Lets every edit pass, or none.
    void setAllowing(bool allowing) { mIsAllowing = allowing; }

    /// The edits since the last call, as in "1[23]4 > 1x|4": the text with its selection or caret
    /// before and after.
    QStringList taken();

private:
    QStringList mAsked;
    bool mIsAllowing = true;
};
