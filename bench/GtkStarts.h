// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/GtkSurroundings.h"
#include "bench/StartComparison.h"

#include <vector>

/// Applications with GTK that people use, which are started to print nothing.
std::vector<StartedApplication> startedGtkApplications(const GtkSurroundings &surroundings);
