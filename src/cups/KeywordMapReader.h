// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/KeywordMap.h"

#include <QJsonObject>
#include <QJsonValue>

/// Reads one keyword map from JSON, and finds what is wrong with it.
class KeywordMapReader
{
public:
    explicit KeywordMapReader(const QByteArray &json);

    /**
     * The map.
     *
     * @param fault set to "line N: …" when there is none.
     */
    std::optional<KeywordMap> read(QString *fault);

private:
    /// Keeps the first fault, with the line of the first place where the word is in the file.
    bool fail(const QString &word, const QString &reason);
    bool hasOnly(const QJsonObject &object, const QString &name, const QStringList &members);
    bool readConditions(const QJsonValue &value);
    bool readSeries(const QJsonObject &map);
    bool readOptions(const QJsonValue &value);
    bool readOption(const QString &key, const QJsonObject &option);
    bool readTables(const QJsonValue &value);
    bool readTable(const QJsonValue &value);
    bool readRow(const QJsonValue &value, KeywordTable::Row &row);
    bool readSide(const QJsonObject &row, const QString &name, KeywordTable::Combination &side);
    /// Whether each option is decided by one table.
    bool checkOptions();
    /// Whether the tables name the choices of each option.
    bool checkChoices();

    QByteArray mJSON;
    QString mFault;
    KeywordMap mMap;
};
