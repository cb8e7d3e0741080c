// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"
#include "printcore/Paper.h"

#include <optional>

/// How a page of the job is laid out; of that the extension needs the paper alone.
class KVPRINTCORE_EXPORT PageFormat
{
public:
    /// A page format without a paper.
    PageFormat() = default;
    explicit PageFormat(Paper paper);

    /// The paper, owned by the page format and valid until the next setPaper(); null without one.
    const Paper *paper() const;
    void setPaper(Paper paper);

private:
    std::optional<Paper> mPaper;
};
