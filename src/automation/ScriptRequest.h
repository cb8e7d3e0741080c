// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <initializer_list>
#include <optional>

/**
 * One line of a script: its members by name and type, and the first thing that is wrong with it.
 *
 * A member that is missing or of the wrong type makes the request faulty; a faulty request must
 * change nothing.
 */
class ScriptRequest
{
public:
    /// Reads a line; faulty when it is no JSON object or names no command.
    explicit ScriptRequest(const QByteArray &line);
    /// Reads a line that is no command: its members alone.
    static ScriptRequest withoutCommand(const QByteArray &line);
    /// A request that is no command, with these members and this fault; null for none.
    static ScriptRequest withoutCommand(const QJsonObject &members, const QString &fault);

    const QString &command() const { return mCommand; }

    /// What is wrong; null when nothing is.
    const QString &fault() const { return mFault; }
    bool isFaulty() const { return !mFault.isNull(); }
    /// Makes the request faulty, unless it is so already or the fault is null.
    void refuse(const QString &fault);

    /// Makes the request faulty when it has a member besides these.
    void allow(std::initializer_list<const char *> members);

    bool has(const char *member) const { return mMembers.contains(QLatin1String(member)); }

    /// A required text without null characters; null when it is missing or has one.
    QString name(const char *member);
    /// A required text; null when it is missing.
    QString text(const char *member);
    /// An optional name, which may be JSON's null if @p mayBeNull; null when it is missing or null.
    QString optionalName(const char *member, bool mayBeNull = false);
    /// An optional array of names; empty when it is missing.
    QStringList optionalNames(const char *member);
    /// An optional number.
    std::optional<double> optionalNumber(const char *member);
    /// An optional object whose members are texts, numbers, or true and false: options of a job.
    JobOptions optionalOptions(const char *member);
    /// A required 32-bit integer; 0 when it is missing.
    int integer(const char *member);
    /// An optional number of copies, from 1 to JobOptions::mostCopies; 0 when it is missing.
    int optionalCopies(const char *member);
    /// An optional object of PPD keywords and choices; empty when it is missing.
    JobOptions optionalChoices(const char *member);
    /// An optional Boolean; @p otherwise when it is missing.
    bool flag(const char *member, bool otherwise);

private:
    ScriptRequest() = default;

    void read(const QByteArray &line);
    void refuseMember(const char *member, const QString &expected);

    QJsonObject mMembers;
    QString mCommand;
    QString mFault;
};
