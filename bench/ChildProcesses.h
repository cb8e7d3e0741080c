// SPDX-License-Identifier: Apache-2.0
#pragma once

/// The processor's time, in seconds, of all child processes that have ended.
double processorSecondsOfChildren();
