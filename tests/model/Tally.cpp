// SPDX-License-Identifier: Apache-2.0
#include "Tally.h"

#include <QJsonDocument>

namespace model {
namespace {
const QString commandKind = QStringLiteral("commands");
const QString deliveryKind = QStringLiteral("delivered");
const QString errorKind = QStringLiteral("errors");
const QString eventKind = QStringLiteral("events");
const QString familyKind = QStringLiteral("families");
const QString optionKind = QStringLiteral("options");
const QString paperKind = QStringLiteral("papers");
const QString pictureKind = QStringLiteral("pictures");
const QString presetKind = QStringLiteral("presets");
const QString tapeKind = QStringLiteral("tape states");

const QString plainPaper = QStringLiteral("plain");
const QString unnamedPaper = QStringLiteral("unnamed");
const QString emptyPaper = QStringLiteral("empty name");
const QString unlistedPaper = QStringLiteral("not in the table");
const QString paperOfNoHeight = QStringLiteral("no height");
const QString paperOfTicket = QStringLiteral("HS in the ticket alone");

const QStringList &prefixes()
{
    static const QStringList all = {
        QStringLiteral("DC"), QStringLiteral("AV"), QStringLiteral("FL"),
        QStringLiteral("C_"), QStringLiteral("HS"), QStringLiteral("Custom"),
    };
    return all;
}

QString paperClass(const Printer &printer, const QString &name)
{
    if (name.isNull() || name.isEmpty()) {
        return name.isNull() ? unnamedPaper : emptyPaper;
    }
    if (!printer.heightOf(name)) {
        return unlistedPaper;
    }
    for (const QString &prefix : prefixes()) {
        if (name.startsWith(prefix)) {
            return prefix;
        }
    }
    return plainPaper;
}

/// Everything of a kind that there must be.
QMap<QString, QStringList> wanted()
{
    QMap<QString, QStringList> all;
    const char *const commands[] = {"open",    "close", "view",  "show",    "hide",      "click",
                                    "preset",  "type",  "step",  "paper",   "choose",    "save",
                                    "restore", "keys",  "print", "summary", "screenshot"};
    for (const char *command : commands) {
        all[commandKind].append(QLatin1String(command));
    }
    all[familyKind] = {QStringLiteral("RV"), QStringLiteral("other")};
    all[paperKind] = prefixes() + QStringList{plainPaper,    unnamedPaper,    emptyPaper,
                                              unlistedPaper, paperOfNoHeight, paperOfTicket};
    for (const char *command : {"click", "preset", "type", "step"}) {
        for (const char *delivered : {"true", "false"}) {
            all[deliveryKind].append(
                QStringLiteral("%1 %2").arg(QLatin1String(command), QLatin1String(delivered)));
        }
    }
    all[eventKind] = {QStringLiteral("willChange"), QStringLiteral("resized"),
                      QStringLiteral("alert")};
    for (const int tag : Presets::allTags()) {
        all[presetKind].append(QString::number(tag));
    }
    for (const int tapeState : {0, 1, 2}) {
        all[tapeKind].append(QString::number(tapeState));
    }
    return all;
}
} // namespace

void Tally::addPrinter(const Printer &printer)
{
    ++mConversations;
    add(familyKind, printer.isRV() ? QStringLiteral("RV") : QStringLiteral("other"));
    for (const Option option : everyOption) {
        if (printer.option(option)) {
            add(optionKind, namesOf(option).keyword);
        }
    }
}

void Tally::addAction(const QByteArray &line, const QJsonObject &answer,
                      const SessionModel &session)
{
    ++mActions;
    const QString command = QJsonDocument::fromJson(line).object().value(u"cmd").toString();
    if (!answer.value(u"ok").toBool()) {
        add(errorKind, command);
        return;
    }
    add(commandKind, command);
    if (answer.contains(QLatin1String("delivered"))) {
        const bool delivered = answer.value(u"delivered").toBool();
        add(deliveryKind, command + (delivered ? QLatin1String(" true") : QLatin1String(" false")));
    }
    const QJsonArray events = answer.value(u"events").toArray();
    for (const QJsonValue &event : events) {
        add(eventKind, event.toArray().first().toString());
    }
    if (command == u"open" || command == u"paper") {
        const Job &job = session.panel()->job();
        add(paperKind, paperClass(job.printer(), job.paper().name));
        if (job.paper().height == 0.0) {
            add(paperKind, paperOfNoHeight);
        }
        if (job.paper().name.isNull() && job.medium().name.startsWith(QLatin1String("HS"))) {
            add(paperKind, paperOfTicket);
        }
    }
    addState(session);
}

void Tally::addState(const SessionModel &session)
{
    if (!session.panel()) {
        return;
    }
    add(tapeKind, QString::number(session.panel()->tapeState()));
    if (session.panel()->hasView()) {
        const View &view = session.panel()->view();
        add(presetKind, QString::number(view.selectedTag().value_or(0)));
        add(pictureKind,
            Presets::pictureFor(view.shownAndOn(), session.panel()->job().printer().isRV()));
    }
}

QString Tally::report() const
{
    QString text;
    for (auto kind = mCounts.begin(); kind != mCounts.end(); ++kind) {
        QStringList counts;
        for (auto value = kind->begin(); value != kind->end(); ++value) {
            counts.append(QStringLiteral("%1 %2").arg(
                value.key().isEmpty() ? QStringLiteral("(none)") : value.key(),
                QString::number(value.value())));
        }
        text += QStringLiteral("  %1: %2\n").arg(kind.key(), counts.join(QStringLiteral(", ")));
    }
    return text;
}

QStringList Tally::missing() const
{
    QStringList missing;
    const auto all = wanted();
    for (auto kind = all.begin(); kind != all.end(); ++kind) {
        for (const QString &value : kind.value()) {
            if (mCounts.value(kind.key()).value(value) == 0) {
                missing.append(kind.key() + u' ' + value);
            }
        }
    }
    return missing;
}

} // namespace model
