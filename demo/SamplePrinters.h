// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class PrivateScheduler;

/// A queue of one of the sample printers.
struct SamplePrinter
{
    const char *queue;
    const char *ppd;
};

/// The queues of the demonstrations.
inline constexpr SamplePrinter samplePrinters[] = {
    {"Korvane_Tape", "korvane-tape"},           {"Korvane_Tape_Follow", "korvane-tape-follow"},
    {"Korvane_Tape_Mark", "korvane-tape-mark"}, {"Korvane_Tape_All", "korvane-tape-all"},
    {"Korvane_Label", "korvane-label"},         {"Korvane_Plain", "korvane-plain"},
};

/// Adds all of them to a scheduler; false, with the reason, when one could not be added.
bool addSamplePrinters(const PrivateScheduler &scheduler, QString *error);
