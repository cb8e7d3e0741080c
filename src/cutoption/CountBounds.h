// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ppd/ChoiceList.h"

#include <QtGlobal>

/// The counts that the choices of "KvCutLabel" offer.
struct CountBounds
{
    qint32 smallest = 1;
    qint32 largest = 99;

    /// The bounds above when there is no choice.
    static CountBounds of(const ChoiceList &choices);
};
