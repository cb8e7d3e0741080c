// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "kvprint/JobSetup.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// A line of a batch: a job of one file.
struct BatchLine
{
    /// Reads a line, a JSON object; nothing, with the reason in @p error, when it is none or has a
    /// member that it should not have.
    static std::optional<BatchLine> read(const QByteArray &line, QString *error);

    QString file;
    /// The printer's name; null for the batch's.
    QString printer;
    /// The preset and the options, which include paper and copies.
    JobSetup::Wish wish;
};
