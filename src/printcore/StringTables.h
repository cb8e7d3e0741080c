#pragma once

#include "printcore/Export.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

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
     * The names of the tables that languages ("de-AT", "zh-Hant-HK") are served by, best first,
     * English last.
     *
     * After a language follow those that it is a variant of. Chinese goes by the script, which the
     * country tells where none is named; Portuguese of any country takes Brazil's.
     */
    static QStringList namesFor(const QStringList &languages);

    /// Whether the file is a table that can be read.
    static bool isTable(const QString &path);

    /// Loads the tables of these languages that the folder has, instead of those loaded before.
    /// Without a language there is no table, not even the English one.
    void load(const QString &folder, const QStringList &languages);

    /// The text for a key in a context of the tables, from the first table that has it; null when
    /// none has.
    QString text(const QString &context, const QString &key) const;

    /// The file names of the wanted languages' tables that are there but cannot be read.
    const QStringList &unreadable() const { return mUnreadable; }

private:
    std::vector<std::unique_ptr<QTranslator>> mTables;
    QStringList mUnreadable;
};
