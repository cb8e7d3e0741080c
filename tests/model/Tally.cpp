// SPDX-License-Identifier: Apache-2.0
#include "Tally.h"

#include <QJsonDocument>

namespace model {
namespace {
const QString commandKind = u"commands"_s;
const QString deliveryKind = u"delivered"_s;
const QString errorKind = u"errors"_s;
const QString eventKind = u"events"_s;
const QString familyKind = u"families"_s;
const QString optionKind = u"options"_s;
const QString paperKind = u"papers"_s;
const QString pictureKind = u"pictures"_s;
const QString presetKind = u"presets"_s;
const QString tapeKind = u"tape states"_s;

const QString plainPaper = u"plain"_s;
const QString unnamedPaper = u"unnamed"_s;
const QString emptyPaper = u"empty name"_s;
const QString unlistedPaper = u"not in the table"_s;
const QString paperOfNoHeight = u"no height"_s;
const QString paperOfTicket = u"HS in the ticket alone"_s;

const QStringList &prefixes()
{
    static const QStringList all = {
        u"DC"_s, u"AV"_s, u"FL"_s, u"C_"_s, u"HS"_s, u"Custom"_s,
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
    all[familyKind] = {u"RV"_s, u"other"_s};
    all[paperKind] = prefixes() + QStringList{plainPaper,    unnamedPaper,    emptyPaper,
                                              unlistedPaper, paperOfNoHeight, paperOfTicket};
    for (const char *command : {"click", "preset", "type", "step"}) {
        for (const char *delivered : {"true", "false"}) {
            all[deliveryKind].append(
                u"%1 %2"_s.arg(QLatin1String(command), QLatin1String(delivered)));
        }
    }
    all[eventKind] = {u"willChange"_s, u"resized"_s, u"alert"_s};
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
    add(familyKind, printer.isRV() ? u"RV"_s : u"other"_s);
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
            counts.append(u"%1 %2"_s.arg(value.key().isEmpty() ? u"(none)"_s : value.key(),
                                         QString::number(value.value())));
        }
        text += u"  %1: %2\n"_s.arg(kind.key(), counts.join(u", "_s));
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
