// SPDX-License-Identifier: Apache-2.0
#include "cups/OptionCheck.h"

#include "cups/PPDFile.h"
#include "cups/PPDPaper.h"

namespace {
/// Whether a choice is one of the PPD's, or stands for a value that the PPD lets the user make up.
bool mayChoose(const PPDFile &ppd, const QString &key, const QString &choice)
{
    if (ppd.hasChoice(key, choice)) {
        return true;
    }
    return key == QLatin1String("PageSize")
               ? customPageSizeIn(ppd, choice).isValid()
               : choice.startsWith(QLatin1String("Custom.")) &&
                     ppdFindCustomOption(ppd.get(), key.toUtf8().constData());
}
} // namespace

QString faultOfOptions(const PPDFile &ppd, const JobOptions &options)
{
    for (const auto &[key, value] : options.pairs()) {
        const QString option = key == QLatin1String("media") ? QStringLiteral("PageSize") : key;
        if (ppd.hasOption(option) && !mayChoose(ppd, option, value)) {
            return QStringLiteral("-o %1=%2: the choices of %1 are: %3")
                .arg(key, value, ppd.choices(option).join(QStringLiteral(", ")));
        }
    }
    return {};
}

JobOptions spelledAsIn(const PPDFile &ppd, const JobOptions &options)
{
    JobOptions spelled;
    for (const auto &[key, value] : options.pairs()) {
        ppd_option_t *option = ppdFindOption(ppd.get(), key.toUtf8().constData());
        const bool isCustom = value.startsWith(QLatin1String("Custom."));
        const ppd_choice_t *choice =
            option && !isCustom ? ppdFindChoice(option, value.toUtf8().constData()) : nullptr;
        spelled.set(option ? QString::fromUtf8(option->keyword) : key,
                    choice ? QString::fromUtf8(choice->choice) : value);
    }
    return spelled;
}
