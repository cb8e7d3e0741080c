// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace model {

/// The maker's private ticket among a job's print settings.
struct Ticket
{
    /// What the entry under the ticket's key holds.
    enum class Kind { Dictionary, List, NoPropertyList };

    Kind kind = Kind::Dictionary;
    /// "MqPaperName2".
    std::optional<QString> paperName;
    /// "MqRVMultiColor".
    std::optional<QString> colour;

    /// The paper's name that a reader finds; null when there is none.
    QString readablePaperName() const;
};

/// A property-list file of print settings, with the ticket if there is one.
QByteArray settingsFile(const std::optional<Ticket> &ticket);

} // namespace model
