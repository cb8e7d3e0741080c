// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Printer.h"
#include "Ticket.h"

#include <vector>

namespace model {

/// A printer, a ticket, and what is said to the panel.
struct Conversation
{
    Printer printer;
    std::optional<Ticket> ticket;
    /// Lines of the protocol; the names of files stand in them as placeholders.
    std::vector<QByteArray> lines;
};

/// What stands in a line for the name of the PPD.
inline constexpr char ppdPlaceholder[] = "@PPD@";
/// What stands in a line for the name of the settings file.
inline constexpr char settingsPlaceholder[] = "@SETTINGS@";
/// What stands in a line for the name of a picture.
inline constexpr char picturePlaceholder[] = "@PICTURE@";

/// Conversations that are a little simpler: fewer and plainer options, sizes and details of the
/// job. The lines but for the opening ones are the same.
std::vector<Conversation> simplerThan(const Conversation &conversation);

} // namespace model
