#include "dialog/DialogSettings.h"

#include "host/ProblemReporter.h"

#include <QSettings>

namespace {
const QString file = QStringLiteral("kvprint/dialog.conf");
} // namespace

DialogSettings::DialogSettings(ProblemReporter &reporter)
    : mReporter(reporter)
{
}

bool DialogSettings::isOn(const QString &program) const
{
    QSettings settings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("kvprint"),
                       QStringLiteral("dialog"));
    if (settings.status() != QSettings::NoError) {
        mReporter.report(QStringLiteral("%1 cannot be read, or not all of it").arg(file));
    }
    settings.beginGroup(QStringLiteral("Applications"));
    const QString key = settings.contains(program) ? program : QStringLiteral("*");
    const QString value = settings.value(key, QStringLiteral("on")).toString();
    if (value != QLatin1String("on") && value != QLatin1String("off")) {
        mReporter.report(QStringLiteral("%1: \"%2\" is neither \"on\" nor \"off\"").arg(file, key));
    }
    return value != QLatin1String("off");
}
