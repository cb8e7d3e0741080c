// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/Comparison.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <string>

/// A printer by its options and by how much its PPD holds.
struct MeasuredPrinter
{
    /// What its PPD calls its options.
    enum class Keywords {
        /// All nine of the panel's.
        Panels,
        /// The standard's, for which there is a map.
        Standard,
        /// Those of the panel's that the map adds to a PPD with the standard's.
        OfTheMap,
    };

    /// What its measurements are called besides; empty for the usual printer.
    const char *name;
    /// The choices of "KvCutLabel", from 1 on.
    int counts;
    /// The paper sizes.
    int sizes;
    Keywords keywords = Keywords::Panels;

    /// The name of its queue at the scheduler.
    QString queue() const;
    /// The last choice of "KvCutLabel", which a search from the front finds last.
    QString lastCount() const;
    /// The last paper size, likewise.
    QString lastSize() const;
    /// The whole PPD.
    QByteArray ppd() const;

    /// What is measured at this printer: the measurement's name, and the printer's.
    std::string labelled(const std::string &measurement) const;
};

/// The printer that the aims are for: as many counts as two digits allow, and a few sizes.
inline constexpr MeasuredPrinter usualPrinter = {"", 99, 18};
/// A printer with many counts.
inline constexpr MeasuredPrinter manyCounts = {"9,900 counts", 9900, usualPrinter.sizes};
/// A printer with many paper sizes.
inline constexpr MeasuredPrinter manySizes = {"10,000 sizes", usualPrinter.counts, 10000};
/// A printer with many of both.
inline constexpr MeasuredPrinter manyOfBoth = {"9,900 + 10,000", manyCounts.counts,
                                               manySizes.sizes};
/// A printer with a tenth of that.
inline constexpr MeasuredPrinter tenthOfBoth = {"990 + 1,000", manyOfBoth.counts / 10,
                                                manyOfBoth.sizes / 10};
/// A printer with options that have to be mapped, and the same one with the panel's own keywords.
inline constexpr MeasuredPrinter mappedPrinter = {"with a map", 0, usualPrinter.sizes,
                                                  MeasuredPrinter::Keywords::Standard};
inline constexpr MeasuredPrinter unmappedPrinter = {"without a map", 1, usualPrinter.sizes,
                                                    MeasuredPrinter::Keywords::OfTheMap};
/// The printers whose PPDs hold much.
inline constexpr MeasuredPrinter largePrinters[] = {manyCounts, manySizes, manyOfBoth};

/// That a time grows no faster than the PPD, from the usual one to the printer's.
constexpr Aim linearGrowth(const MeasuredPrinter &printer)
{
    return {Aim::Kind::Ratio, std::max(double(printer.counts) / usualPrinter.counts,
                                       double(printer.sizes) / usualPrinter.sizes)};
}

/// Likewise, from the tenth of both to both.
constexpr Aim linearGrowth()
{
    return {Aim::Kind::Ratio, double(manyOfBoth.counts) / tenthOfBoth.counts};
}
