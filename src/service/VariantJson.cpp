// SPDX-License-Identifier: Apache-2.0
#include "service/VariantJson.h"

#include <QDBusArgument>
#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace {
/// What D-Bus has wrapped, as Qt's own types.
QVariant plain(const QVariant &value);

QVariant plainArgument(const QDBusArgument &argument)
{
    if (argument.currentType() == QDBusArgument::VariantType) {
        return plain(argument.asVariant());
    }
    if (argument.currentType() == QDBusArgument::ArrayType) {
        QVariantList list;
        argument.beginArray();
        while (!argument.atEnd()) {
            list.append(plain(argument.asVariant()));
        }
        argument.endArray();
        return list;
    }
    if (argument.currentType() == QDBusArgument::MapType) {
        QVariantMap map;
        argument.beginMap();
        while (!argument.atEnd()) {
            argument.beginMapEntry();
            const QString key = argument.asVariant().toString();
            map.insert(key, plain(argument.asVariant()));
            argument.endMapEntry();
        }
        argument.endMap();
        return map;
    }
    return {};
}

QVariant plain(const QVariant &value)
{
    if (value.userType() == qMetaTypeId<QDBusArgument>()) {
        return plainArgument(value.value<QDBusArgument>());
    }
    return value.userType() == qMetaTypeId<QDBusVariant>()
               ? plain(value.value<QDBusVariant>().variant())
               : value;
}

QVariant messageValue(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Object:
        return messageOf(value.toObject());
    case QJsonValue::Array: {
        QVariantList list;
        const QJsonArray array = value.toArray();
        for (const auto &element : array) {
            if (const QVariant shown = messageValue(element); shown.isValid()) {
                list.append(shown);
            }
        }
        return list;
    }
    case QJsonValue::Double: {
        const double number = value.toDouble();
        constexpr double largest = 9007199254740992.0;
        const bool isWhole = std::trunc(number) == number && std::abs(number) <= largest;
        return isWhole ? QVariant(qlonglong(number)) : QVariant(number);
    }
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::String:
        return value.toString();
    default:
        return {};
    }
}
} // namespace

QByteArray lineOf(const QVariantMap &request)
{
    QJsonObject line;
    for (auto member = request.begin(); member != request.end(); ++member) {
        line.insert(member.key(), QJsonValue::fromVariant(plain(member.value())));
    }
    return QJsonDocument(line).toJson(QJsonDocument::Compact);
}

QVariantMap messageOf(const QJsonObject &answer)
{
    QVariantMap message;
    for (auto member = answer.begin(); member != answer.end(); ++member) {
        if (const QVariant value = messageValue(member.value()); value.isValid()) {
            message.insert(member.key(), value);
        }
    }
    return message;
}
