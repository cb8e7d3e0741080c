// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/CheckedFile.h"
#include "printcore/Export.h"
#include "printcore/StringTables.h"

#include <QString>
#include <QStringList>

#include <memory>

class QJsonObject;
class QJsonValue;

/**
 * A folder with a plug-in and its resources.
 *
 * `Contents/Info.json` describes it, `Contents/Linux` holds the library and `Contents/Resources`
 * the nib, the pictures and one compiled string table per language, named after the language
 * ("en.qm"). The info file's entries:
 *
 * | entry | type | meaning |
 * |---|---|---|
 * | `identifier` | string | the bundle's unique name, a reversed domain ("com.korvane.…") |
 * | `version` | string | of the bundle |
 * | `principalClass` | string | the class that the host instantiates |
 * | `libraries` | object | file names in `Contents/Linux`, by the version of Qt: "qt5", "qt6" |
 * | `resources` | array of strings | file names in `Contents/Resources` that must be there |
 *
 * Every file of it that is used is a trusted CheckedFile within the ResourceLimits.
 */
class KVPRINTCORE_EXPORT Bundle
{
public:
    /**
     * Opens a bundle with the string tables of the user's languages.
     *
     * @param error set to what is wrong, with the file's name; may be null.
     * @return null when the info file is missing or not to be trusted, is no JSON object, lacks an
     *         entry or has no library for this process's Qt. Missing resources do not keep a bundle
     *         from being opened: see problems().
     */
    static std::shared_ptr<Bundle> open(const QString &path, QString *error = nullptr);

    ~Bundle();
    Bundle(const Bundle &) = delete;
    Bundle &operator=(const Bundle &) = delete;

    /// The bundle's folder.
    const QString &bundlePath() const { return mPath; }
    const QString &bundleIdentifier() const { return mIdentifier; }
    const QString &version() const { return mVersion; }
    const QString &principalClass() const { return mPrincipalClass; }
    /// The path of the library for this process's Qt, whether or not the file is there.
    QString libraryPath() const;
    /// The file names that the info file promises in the resources folder.
    const QStringList &declaredResources() const { return mDeclaredResources; }
    /// The resources folder.
    QString resourcePath() const;
    /// That folder, opened as a trusted one, for reading many files of it.
    CheckedFile resources() const;

    /// The path of the resource name.type; null when there is no such file.
    QString pathForResource(const QString &name, const QString &type) const;

    /// The path of the picture of that name, whatever its suffix; null when there is none.
    QString pathForImageResource(const QString &name) const;

    /**
     * The text for a key in the user's language, else in English.
     *
     * @param value answered when no table holds the key; the key itself when that is null.
     * @param table the string table's name; null for the default one, "Localizable".
     */
    QString localizedStringForKey(const QString &key, const QString &value = {},
                                  const QString &table = {}) const;

    /// Uses the string tables of these languages ("de", "pt_BR"), most wanted first, instead of the
    /// user's, as StringTables::namesFor() says. An empty list leaves the bundle without any table,
    /// so that keys show as themselves.
    void setLanguages(const QStringList &languages);

    /**
     * What is wrong with the declared resources and the wanted string tables, one sentence for
     * each: the resources folder cannot be used; or else, the list has too many names; files are
     * missing, unreadable or not trusted, with the name of the first and their number for each
     * reason.
     */
    QStringList problems() const;

private:
    Bundle();
    /// Reads the info file; answers what is wrong with it, null when nothing is.
    QString readInfo(const QString &infoPath);
    /// Takes the info file's entries; answers what is wrong with them, null when nothing is.
    QString readEntries(const QJsonObject &info);
    QString readLibrary(const QJsonValue &libraries);
    QString readResources(const QJsonValue &resources);

    QString mPath;
    QString mIdentifier;
    QString mVersion;
    QString mPrincipalClass;
    QString mLibrary;
    QStringList mDeclaredResources;
    /// Null when all of the resources are used.
    QString mExcess;
    StringTables mTables;
};
