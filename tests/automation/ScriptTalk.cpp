// SPDX-License-Identifier: Apache-2.0
#include "ScriptTalk.h"

#include "PrintingSite.h"

#include <QJsonDocument>
#include <QTest>

ScriptTalk::ScriptTalk(const QString &bundleFolder)
    : ScriptTalk(ScriptSession::Setup{bundleFolder, {}, {}})
{
}

ScriptTalk::ScriptTalk(ScriptSession::Setup setup)
    : mSession(std::move(setup))
{
}

QJsonObject ScriptTalk::answer(const QByteArray &line)
{
    const QByteArray bytes = mSession.answer(line);
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (bytes.contains('\n') || !document.isObject()) {
        qFatal("no line of JSON: %s", bytes.constData());
    }
    return document.object();
}

QJsonObject ScriptTalk::ask(const char *command, QJsonObject members)
{
    members.insert(u"cmd"_s, QLatin1String(command));
    return answer(compact(members));
}

QJsonObject ScriptTalk::open(const QString &printer, const QJsonObject &members)
{
    QJsonObject all{{u"ppd"_s, PrintingSite::ppdPath(printer)}, {u"locale"_s, u"en"_s}};
    for (auto it = members.begin(); it != members.end(); ++it) {
        all.insert(it.key(), it.value());
    }
    return ask("open", all);
}

QJsonObject ScriptTalk::show(const QString &printer, const QJsonObject &members)
{
    open(printer, members);
    ask("view");
    return ask("show");
}

QJsonObject ScriptTalk::click(const char *box)
{
    return ask("click", {{u"control"_s, QLatin1String(box)}});
}

QJsonObject ScriptTalk::paper(const QString &name)
{
    return ask("paper", {{u"name"_s, name.isNull() ? QJsonValue() : QJsonValue(name)}});
}

QJsonObject ScriptTalk::state()
{
    return membersOf(ask("state"));
}

QJsonValue ScriptTalk::state(const char *path)
{
    QJsonValue value = state();
    const QStringList names = QString::fromLatin1(path).split(u'.');
    for (const QString &name : names) {
        value = value.toObject().value(name);
    }
    return value;
}

int ScriptTalk::box(const char *name)
{
    const QByteArray path = QByteArray("controls.") + name + ".state";
    return state(path.constData()).toInt(-1);
}

bool isOK(const QJsonObject &answer)
{
    return answer.value(u"ok").toBool() && !answer.contains(u"error");
}

QStringList eventsOf(const QJsonObject &answer)
{
    if (!answer.value(u"events").isArray()) {
        return {u"no events"_s};
    }
    QStringList events;
    const QJsonArray all = answer.value(u"events").toArray();
    for (const QJsonValue &event : all) {
        QStringList details;
        const QJsonArray parts = event.toArray();
        for (const QJsonValue &part : parts) {
            details.append(part.toString(u"no text"_s));
        }
        events.append(details.join(u' '));
    }
    return events;
}

QString errorOf(const QJsonObject &answer)
{
    const bool isError = answer.size() == 3 && answer.value(u"ok") == QJsonValue(false) &&
                         answer.value(u"events").isArray();
    return isError ? answer.value(u"error").toString() : QString();
}

QStringList changesIn(const QJsonObject &answer)
{
    QStringList changes;
    const QStringList events = eventsOf(answer);
    for (const QString &event : events) {
        if (event.startsWith(u"willChange ")) {
            changes.append(event.section(u' ', 1).replace(u' ', u'='));
        }
    }
    return changes;
}

QJsonObject membersOf(QJsonObject answer)
{
    answer.remove(u"ok");
    answer.remove(u"events");
    return answer;
}

QByteArray compact(const QJsonValue &value)
{
    if (value.isObject()) {
        return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
    }
    const QByteArray inArray = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return inArray.mid(1, inArray.size() - 2);
}
