// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Dice.h"
#include "Printer.h"
#include "Ticket.h"

namespace model {

/// A printer that might be sold: any of the nine options, usual and odd ones.
Printer makePrinter(Dice &dice);

/// A ticket that another panel might have left, readable or not.
Ticket makeTicket(Dice &dice);

/// A paper's name: each kind that the rules tell apart, in the printer's table or not; null for a
/// paper without a name.
QString makePaperName(Dice &dice, const Printer &printer);

} // namespace model
