// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "../model/Printer.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

/// What a user asks of a job without a dialog.
struct JobWish
{
    /// A name of the printer's.
    QString paper;
    /// Null for none.
    QString preset;
    /// Choices of the panel's options by keyword.
    QMap<QString, QString> options;
};

/// Tells by the model of the panel's rules what a job without a dialog carries.
class JobOracle
{
public:
    /// @param ppdPath of a printer whose options the user has not saved.
    explicit JobOracle(const QString &ppdPath);

    const model::Printer &printer() const { return mPrinter; }

    /// "KEY=CHOICE" of each option of the panel, sorted; nothing when the wish is refused.
    std::optional<QStringList> choices(const JobWish &wish) const;

private:
    model::Printer mPrinter;
};
