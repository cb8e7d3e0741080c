// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <memory>

struct csv_parser;

/**
 * The rows of a batch that is a table of comma-separated values (RFC 4180), line by line.
 *
 * Columns are named in the head like the members of a batch's line, those of options
 * "option:KEYWORD". They may be separated by semicolons or tabs, too: by what the head has first.
 */
class BatchTable
{
public:
    /// What there is of a row behind a line.
    enum class Row {
        /// Nothing: the line is empty.
        None,
        /// The rest is in the next line, as a line break is in quotes.
        Unfinished,
        Whole,
    };

    /// @param head the first line; fault() tells what is wrong with it.
    explicit BatchTable(const QByteArray &head);
    ~BatchTable();
    Q_DISABLE_COPY_MOVE(BatchTable)

    /// Adds a line with its end, null for the end of the table; behind a whole row the next begins.
    Row add(const QByteArray &line);

    /// What is wrong with the head or with the whole row; null when nothing is.
    const QString &fault() const { return mFault; }
    /// The members of the whole row; a field that is empty has none.
    QJsonObject members() const;

private:
    void startParser(unsigned char separator);
    void parse(const QByteArray &line);
    void take(const QByteArray &field);
    void refuse(const QString &fault);
    QString faultOfHead() const;

    std::unique_ptr<csv_parser> mParser;
    QStringList mColumns;
    QStringList mFields;
    bool mIsBegun = false;
    bool mIsWhole = false;
    QString mFault;
};
