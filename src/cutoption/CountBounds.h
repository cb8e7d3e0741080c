#pragma once

#include "ppd/PDEChoice.h"

#include <QtGlobal>

/// The counts that the choices of "KvCutLabel" offer.
struct CountBounds
{
    qint32 smallest = 1;
    qint32 largest = 99;

    /// @param choices null for an absent option.
    static CountBounds of(const ChoiceList *choices);
};
