// SPDX-License-Identifier: Apache-2.0
#include "automation/ScriptRequest.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr char commandMember[] = "cmd";
} // namespace

ScriptRequest::ScriptRequest(const QByteArray &line)
{
    read(line);
    if (!isFaulty()) {
        mCommand = text(commandMember);
    }
}

ScriptRequest ScriptRequest::withoutCommand(const QByteArray &line)
{
    ScriptRequest request;
    request.read(line);
    return request;
}

ScriptRequest ScriptRequest::withoutCommand(const QJsonObject &members, const QString &fault)
{
    ScriptRequest request;
    request.mMembers = members;
    request.mFault = fault;
    return request;
}

void ScriptRequest::read(const QByteArray &line)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError) {
        refuse(QStringLiteral("the line is no JSON: %1 at byte %2")
                   .arg(error.errorString())
                   .arg(error.offset));
    } else if (!document.isObject()) {
        refuse(QStringLiteral("the line is no JSON object"));
    } else {
        mMembers = document.object();
    }
}

void ScriptRequest::refuse(const QString &fault)
{
    if (mFault.isNull()) {
        mFault = fault;
    }
}

void ScriptRequest::refuseMember(const char *member, const QString &expected)
{
    refuse(QStringLiteral("\"%1\" has to be %2").arg(QLatin1String(member), expected));
}

void ScriptRequest::allow(std::initializer_list<const char *> members)
{
    for (auto it = mMembers.begin(); it != mMembers.end(); ++it) {
        const auto isIt = [&it](const char *member) {
            return it.key() == QLatin1String(member);
        };
        const bool isCommand = !mCommand.isNull() && isIt(commandMember);
        if (!isCommand && std::ranges::none_of(members, isIt)) {
            refuse(mCommand.isNull()
                       ? QStringLiteral("there is no member \"%1\"").arg(it.key())
                       : QStringLiteral("\"%1\" knows no \"%2\"").arg(mCommand, it.key()));
        }
    }
}

QString ScriptRequest::text(const char *member)
{
    const QJsonValue value = mMembers.value(QLatin1String(member));
    if (!value.isString()) {
        refuseMember(member, QStringLiteral("a text"));
        return {};
    }
    return value.toString();
}

QString ScriptRequest::name(const char *member)
{
    QString value = text(member);
    if (value.contains(QChar::Null)) {
        refuseMember(member, QStringLiteral("a text without null characters"));
    }
    return value;
}

QString ScriptRequest::optionalName(const char *member, bool mayBeNull)
{
    const QJsonValue value = mMembers.value(QLatin1String(member));
    if (value.isUndefined() || (mayBeNull && value.isNull())) {
        return {};
    }
    return name(member);
}

QStringList ScriptRequest::optionalNames(const char *member)
{
    const QJsonValue value = mMembers.value(QLatin1String(member));
    const QJsonArray array = value.toArray();
    QStringList names;
    bool isValid = value.isUndefined() || !array.isEmpty();
    for (const auto &name : array) {
        names.append(name.toString());
        isValid = isValid && !names.last().isEmpty() && !names.last().contains(QChar::Null);
    }
    if (!isValid) {
        refuseMember(member, QStringLiteral("an array of texts without null characters"));
    }
    return names;
}

std::optional<double> ScriptRequest::optionalNumber(const char *member)
{
    const QJsonValue value = mMembers.value(QLatin1String(member));
    if (value.isUndefined()) {
        return std::nullopt;
    }
    if (!value.isDouble()) {
        refuseMember(member, QStringLiteral("a number"));
    }
    return value.toDouble();
}

JobOptions ScriptRequest::optionalOptions(const char *member)
{
    const QJsonValue value = mMembers.value(QLatin1String(member));
    const QJsonObject object = value.toObject();
    bool isValid = value.isUndefined() || value.isObject();
    JobOptions options;
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QString text = it->toVariant().toString();
        isValid = isValid && !it.key().isEmpty() && !it.key().contains(QChar::Null) &&
                  (it->isString() || it->isDouble() || it->isBool()) && !text.contains(QChar::Null);
        options.set(it.key(), text);
    }
    if (!isValid) {
        refuseMember(member, QStringLiteral("an object of option names with texts"));
    }
    return options;
}

int ScriptRequest::integer(const char *member)
{
    const QJsonValue value = mMembers.value(QLatin1String(member));
    const double number = value.toDouble(std::nan(""));
    const bool fits = number >= std::numeric_limits<int>::min() &&
                      number <= std::numeric_limits<int>::max() && std::trunc(number) == number;
    if (!fits) {
        refuseMember(member, QStringLiteral("a whole number"));
        return 0;
    }
    return int(number);
}

int ScriptRequest::optionalCopies(const char *member)
{
    if (!has(member)) {
        return 0;
    }
    const int copies = integer(member);
    if (copies < 1 || copies > JobOptions::mostCopies) {
        refuse(QStringLiteral("\"%1\" has to be 1 to %2")
                   .arg(QLatin1String(member))
                   .arg(JobOptions::mostCopies));
    }
    return copies;
}

JobOptions ScriptRequest::optionalChoices(const char *member)
{
    const QJsonValue value = mMembers.value(QLatin1String(member));
    const QJsonObject object = value.toObject();
    JobOptions choices;
    bool areTexts = value.isUndefined() || value.isObject();
    for (auto choice = object.begin(); choice != object.end(); ++choice) {
        areTexts = areTexts && choice.value().isString();
        choices.set(choice.key(), choice.value().toString());
    }
    if (!areTexts) {
        refuseMember(member, QStringLiteral("an object of texts"));
    }
    return choices;
}

bool ScriptRequest::flag(const char *member, bool otherwise)
{
    const QJsonValue value = mMembers.value(QLatin1String(member));
    if (!value.isUndefined() && !value.isBool()) {
        refuseMember(member, QStringLiteral("true or false"));
    }
    return value.toBool(otherwise);
}
