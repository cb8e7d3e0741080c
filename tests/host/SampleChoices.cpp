// SPDX-License-Identifier: Apache-2.0
#include "SampleChoices.h"

#include "printcore/QtVersions.h"

#include "PrintingSite.h"

#include <QFile>
#include <QRegularExpression>

QStringList SampleChoices::defaults(const QString &printer)
{
    QFile ppd(PrintingSite::ppdPath(printer));
    if (!ppd.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QRegularExpression line(u"^\\*Default(Kv\\w+): *(\\w+)$"_s,
                                  QRegularExpression::MultilineOption);
    QStringList defaults;
    auto matches = line.globalMatch(QString::fromUtf8(ppd.readAll()));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        // The one option of the maker's that is no cut option.
        if (match.captured(1) != QLatin1String("KvDensity")) {
            defaults.append(match.captured(1) + u'=' + match.captured(2));
        }
    }
    defaults.sort();
    return defaults;
}

QStringList SampleChoices::seen(const QString &printer)
{
    const bool follows = printer == QLatin1String("follow");
    return replaced(defaults(printer), follows ? u"KvAutoTapeCut=ON"_s : QString());
}

QStringList SampleChoices::replaced(QStringList choices, const QString &others)
{
    const QStringList replacements = others.split(u' ', Qt::SkipEmptyParts);
    for (const QString &other : replacements) {
        const QString key = other.section(u'=', 0, 0) + u'=';
        removeFrom(choices, [&key](const QString &choice) { return choice.startsWith(key); });
        choices.append(other);
    }
    choices.sort();
    return choices;
}
