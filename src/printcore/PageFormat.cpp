// SPDX-License-Identifier: Apache-2.0
#include "printcore/PageFormat.h"

#include <utility>

PageFormat::PageFormat(Paper paper)
    : mPaper(std::move(paper))
{
}

const Paper *PageFormat::paper() const
{
    return mPaper ? &*mPaper : nullptr;
}

void PageFormat::setPaper(Paper paper)
{
    mPaper = std::move(paper);
}
