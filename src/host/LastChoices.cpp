// SPDX-License-Identifier: Apache-2.0
#include "host/LastChoices.h"

void LastChoices::remember(const QString &queue, const JobOptions &options)
{
    mChoices.insert(queue, options);
}
