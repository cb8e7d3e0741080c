// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Options.h"

#include <QByteArray>
#include <QList>

namespace model {

/// A choice of an option.
struct Choice
{
    QString keyword;
    /// For people; an empty one leaves it to the keyword.
    QString text = {};

    /// What people read.
    const QString &shownText() const { return text.isEmpty() ? keyword : text; }
};

/// An option of a printer.
struct PrinterOption
{
    /// For people; an empty one leaves it to the option's keyword.
    QString text;
    QList<Choice> choices;
    /// An empty one leaves the default out; it need not be one of the choices.
    QString defaultChoice;

    /// The first choice with exactly that keyword; -1 when there is none.
    int indexOf(const QString &keyword) const;
    /// The first choice that is the default; -1 when there is none, 0 when there are no choices.
    int defaultIndex() const;
};

/// A size of a printer's table.
struct PaperSize
{
    QString name;
    double height = 0.0;
};

/// A printer as its PPD describes it.
struct Printer
{
    std::array<std::optional<PrinterOption>, optionCount> options;
    std::optional<QString> tapeType;
    std::optional<QString> autoCutObjHidden;
    /// The first one is the default.
    QList<PaperSize> sizes;
    /// Whether the user may ask for sizes other than the table's, if it has any.
    bool takesCustomSizes = false;

    /// The option, null when the printer lacks it.
    const PrinterOption *option(Option option) const;
    /// Whether it is a label printer.
    bool isRV() const { return tapeType == u"RV"; }
    /// Whether auto cut has a check box of its own.
    bool hasAutoCutBox() const;
    /// Whether the table has an entry "Custom", of no height, for the user's own sizes.
    bool offersCustomSize() const;
    /// The height of a size in the table; nothing when the table lacks it.
    std::optional<double> heightOf(const QString &size) const;
    /// Whether the table has a size of that name, whatever its letters' cases.
    bool hasSize(const QString &name) const;
    /// What people read for an option that the printer has.
    QString optionText(Option option) const;

    /// The PPD file.
    QByteArray ppd() const;
};

} // namespace model
