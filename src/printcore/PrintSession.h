// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QVariantMap>

/// The state of one run of the print dialog: property-list values under keys.
class KVPRINTCORE_EXPORT PrintSession
{
public:
    /// The value under the key; an invalid variant when there is none.
    QVariant value(const QString &key) const;
    /// Stores the value; an invalid variant removes the entry.
    void setValue(const QString &key, const QVariant &value);

private:
    QVariantMap mValues;
};
