// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Conversation.h"
#include "Dice.h"

namespace model {

/**
 * A conversation about a printer made up by chance.
 *
 * @param length about how many lines it has.
 */
Conversation makeConversation(Dice &dice, int length);

} // namespace model
