// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonValue>
#include <QString>

#include <optional>

namespace model {

/// Where two JSON values differ first.
struct Difference
{
    /// The path of the member ("controls.mHalfCutChkBx.enabled").
    QString path;
    QString expected;
    QString actual;
};

/// The first difference, member by member in the order of names; nothing when there is none.
std::optional<Difference> firstDifference(const QJsonValue &expected, const QJsonValue &actual,
                                          const QString &path = QString());

} // namespace model
