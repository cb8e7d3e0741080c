// SPDX-License-Identifier: Apache-2.0
#include "printcore/Paper.h"

#include <utility>

Paper::Paper(QString ppdPaperName, double height)
    : mPPDPaperName(std::move(ppdPaperName))
    , mHeight(height)
{
}

bool operator==(const Paper &left, const Paper &right)
{
    return left.mPPDPaperName == right.mPPDPaperName &&
           left.mPPDPaperName.isNull() == right.mPPDPaperName.isNull() &&
           left.mHeight == right.mHeight;
}
