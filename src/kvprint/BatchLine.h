// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "kvprint/JobSetup.h"

#include <QString>

#include <optional>

class ScriptRequest;

/// A line of a batch: a job of one file.
struct BatchLine
{
    /// Reads a line's members; nothing, with the reason in @p error, when the request is faulty or
    /// has a member that it should not have.
    static std::optional<BatchLine> read(ScriptRequest request, QString *error);

    QString file;
    /// The printer's name; null for the batch's.
    QString printer;
    /// The preset and the options, which include paper and copies.
    JobSetup::Wish wish;
};
