// SPDX-License-Identifier: Apache-2.0
#include "SeenWidget.h"

#include <QJsonArray>

#include <utility>

SeenWidget::SeenWidget(QJsonObject object)
    : mObject(std::move(object))
{
}

QStringList SeenWidget::strings(const char *key) const
{
    return mObject[QLatin1String(key)].toVariant().toStringList();
}

bool SeenWidget::isA(const char *name) const
{
    return strings("classes").contains(QLatin1String(name));
}

bool SeenWidget::isInA(const char *name) const
{
    return strings("windowClasses").contains(QLatin1String(name));
}

QList<SeenWidget> SeenWidget::parts() const
{
    QList<SeenWidget> all;
    const QJsonArray parts = mObject[QLatin1String("parts")].toArray();
    for (const QJsonValue &part : parts) {
        all.append(SeenWidget(part.toObject()));
    }
    return all;
}

SeenWidget SeenWidget::part(const QString &text) const
{
    for (const SeenWidget &part : parts()) {
        if (part.text() == text) {
            return part;
        }
    }
    return {};
}

QRect SeenWidget::area() const
{
    const QJsonArray numbers = mObject[QLatin1String("rect")].toArray();
    return {numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt(),
            numbers.at(3).toInt()};
}

QPoint SeenWidget::clickPlace() const
{
    const QRect seen = area();
    return isA("QCheckBox") ? seen.topLeft() + QPoint(seen.height() / 2, seen.height() / 2)
                            : seen.center();
}
