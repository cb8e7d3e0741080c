// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

/**
 * The compiled string tables of a folder, one per language and named after it ("pt_BR.qm"), in the
 * order in which the languages are wanted.
 */
class KVPRINTCORE_EXPORT StringTables
{
public:
    StringTables();
    ~StringTables();
    StringTables(const StringTables &) = delete;
    StringTables &operator=(const StringTables &) = delete;

    /// The languages that the user wants, most wanted first, with English as the last resort.
    static QStringList usersLanguages();

    /**
     * The names of the tables to use for these languages ("de-AT", "zh-Hant-HK"), best first,
     * English last.
     *
     * Each language is followed by those that it is a variant of. For Chinese the script counts, by
     * default that of the country; Portuguese of every country uses Brazil's table.
     */
    static QStringList namesFor(const QStringList &languages);

    /// Whether a file's bytes are a table.
    static bool isTable(const QByteArray &bytes);

    /// Answers the bytes of the file of that name: null when there is none, empty when it cannot be
    /// read.
    using Reader = std::function<QByteArray(const QString &fileName)>;

    /// Loads the tables of these languages that there are, instead of those loaded before. Without
    /// a language there is no table, not even the English one.
    void load(const Reader &read, const QStringList &languages);

    /// The text for a key in a context of the tables, from the first table that has it; null when
    /// none has.
    QString text(const QString &context, const QString &key) const;

    /// The file names of the wanted languages' tables that are there but cannot be read.
    const QStringList &unreadable() const { return mUnreadable; }

private:
    struct Table;

    std::vector<Table> mTables;
    QStringList mUnreadable;
};
