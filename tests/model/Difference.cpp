// SPDX-License-Identifier: Apache-2.0
#include "Difference.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <set>

namespace model {
namespace {
QString shown(const QJsonValue &value)
{
    if (value.isUndefined()) {
        return u"(missing)"_s;
    }
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(list.mid(1, list.size() - 2));
}

QString inside(const QString &path, const QString &name)
{
    return path.isEmpty() ? name : path + u'.' + name;
}

std::optional<Difference> firstIn(const QJsonObject &expected, const QJsonObject &actual,
                                  const QString &path)
{
    std::set<QString> names;
    for (const QJsonObject &object : {expected, actual}) {
        const QStringList keys = object.keys();
        names.insert(keys.begin(), keys.end());
    }
    for (const QString &name : names) {
        if (auto found =
                firstDifference(expected.value(name), actual.value(name), inside(path, name))) {
            return found;
        }
    }
    return std::nullopt;
}
} // namespace

std::optional<Difference> firstDifference(const QJsonValue &expected, const QJsonValue &actual,
                                          const QString &path)
{
    if (expected == actual) {
        return std::nullopt;
    }
    if (expected.isObject() && actual.isObject()) {
        return firstIn(expected.toObject(), actual.toObject(), path);
    }
    return Difference{path, shown(expected), shown(actual)};
}

} // namespace model
