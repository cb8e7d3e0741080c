// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SessionModel.h"

#include <QMap>
#include <QStringList>

namespace model {

/// Counts what the conversations have gone through, so that a reader sees that they are many sided.
class Tally
{
public:
    /// Counts a printer.
    void addPrinter(const Printer &printer);
    /// Counts a line and its answer; @p session is what the model has come to.
    void addAction(const QByteArray &line, const QJsonObject &answer, const SessionModel &session);

    int conversations() const { return mConversations; }
    int actions() const { return mActions; }

    /// The counts by kind, one kind a line.
    QString report() const;
    /// What the conversations should have gone through, but have not.
    QStringList missing() const;

private:
    void add(const QString &kind, const QString &value) { ++mCounts[kind][value]; }
    void addState(const SessionModel &session);

    int mConversations = 0;
    int mActions = 0;
    QMap<QString, QMap<QString, int>> mCounts;
};

} // namespace model
