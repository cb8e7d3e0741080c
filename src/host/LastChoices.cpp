#include "host/LastChoices.h"

void LastChoices::remember(const QString &queue, const JobOptions &options)
{
    mChoices.insert(queue, options);
}
