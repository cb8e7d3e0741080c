#include "host/LastChoices.h"

void LastChoices::remember(const QString &queue, const JobOptions &options)
{
    mChoices.insert(queue, options);
}

bool LastChoices::removeFrom(JobOptions &options) const
{
    const auto size = options.pairs().size();
    for (const JobOptions &choices : mChoices) {
        for (const auto &[key, choice] : choices.pairs()) {
            options.remove(key);
        }
    }
    return options.pairs().size() != size;
}
