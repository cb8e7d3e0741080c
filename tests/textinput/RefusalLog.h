// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// What a log has of one refused edit: for a character, and for a value.
inline const QStringList invalid{u"InvalidCharacterNotification"_s};
inline const QStringList outOfRange{u"FormatErrorNotification"_s};
/// The same with the character that was refused.
inline QStringList invalidCharacter(const QString &character)
{
    return {invalid.first() + QLatin1Char(' ') + character};
}

/// What the user is told of refused edits, for as long as the log lives.
class RefusalLog
{
public:
    RefusalLog();
    ~RefusalLog();
    RefusalLog(const RefusalLog &) = delete;
    RefusalLog &operator=(const RefusalLog &) = delete;

    /// The notifications told since the last call: name, and " x" when it is about a character x.
    QStringList taken();
    /// The beeps since the last call.
    int takenBeeps();
    /// What the last notification was about.
    const void *lastObject() const { return mLastObject; }

private:
    QStringList mTold;
    int mBeeps = 0;
    const void *mLastObject = nullptr;
};
