// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <functional>

/// What sounds the system's beep.
using Beeper = std::function<void()>;

/// Sounds the system's beep through the process's beeper; silent without one.
KVPRINTCORE_EXPORT void NSBeep();

/// Makes another beeper the process's; an empty one makes beeps silent.
/// @return the former one, empty at first.
KVPRINTCORE_EXPORT Beeper setBeeper(Beeper beeper);
