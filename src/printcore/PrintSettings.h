// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"
#include "printcore/PropertyList.h"

#include <QVariantMap>

#include <optional>

/**
 * The settings of one job: property-list values under keys, with the page range among them.
 *
 * The value types are those of PropertyList.
 */
class KVPRINTCORE_EXPORT PrintSettings
{
public:
    PrintSettings() = default;
    explicit PrintSettings(QVariantMap values);

    /// The value under the key; an invalid variant when there is none.
    QVariant value(const QString &key) const;
    /// Stores the value; an invalid variant removes the entry.
    void setValue(const QString &key, const QVariant &value);
    /// All entries.
    const QVariantMap &values() const { return mValues; }

    /**
     * Reads settings that dataRepresentation() wrote.
     *
     * @param error set to what is wrong and where; may be null.
     * @return nothing when the data is no property list or its top level is no dictionary.
     */
    static std::optional<PrintSettings> fromData(const QByteArray &data, QString *error);

    /**
     * The settings as a property list in XML.
     *
     * @return an empty array, and the reason in @p error, when a value has a type that property
     *         lists lack.
     */
    QByteArray dataRepresentation(QString *error) const;

private:
    QVariantMap mValues;
};
