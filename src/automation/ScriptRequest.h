#pragma once

#include <QJsonObject>
#include <QString>

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

    const QString &command() const { return mCommand; }

    /// What is wrong; null when nothing is.
    const QString &fault() const { return mFault; }
    bool isFaulty() const { return !mFault.isNull(); }
    /// Makes the request faulty, unless it is so already or the fault is null.
    void refuse(const QString &fault);

    /// Makes the request faulty when it has a member besides these.
    void allow(std::initializer_list<const char *> members);

    bool has(const char *member) const { return mMembers.contains(QLatin1String(member)); }

    /// A text that must be there, without null characters, which no name holds; null when it is
    /// not.
    QString name(const char *member);
    /// Any text that must be there; null when it is not.
    QString text(const char *member);
    /// A name that may be missing, or null where @p mayBeNull; null in both cases.
    QString optionalName(const char *member, bool mayBeNull = false);
    /// A number that may be missing.
    std::optional<double> optionalNumber(const char *member);
    /// A whole number of 32 bits that must be there; 0 when it is not.
    int integer(const char *member);
    /// Yes or no; @p otherwise when it is missing.
    bool flag(const char *member, bool otherwise);

private:
    void refuseMember(const char *member, const QString &expected);

    QJsonObject mMembers;
    QString mCommand;
    QString mFault;
};
