// SPDX-License-Identifier: Apache-2.0
#include "printcore/PrintSettings.h"

#include <iterator>
#include <utility>

PrintSettings::PrintSettings(QVariantMap values)
    : mValues(std::move(values))
{
    for (auto entry = mValues.begin(); entry != mValues.end();) {
        entry = entry->isValid() ? std::next(entry) : mValues.erase(entry);
    }
}

QVariant PrintSettings::value(const QString &key) const
{
    return mValues.value(key);
}

void PrintSettings::setValue(const QString &key, const QVariant &value)
{
    if (value.isValid()) {
        mValues.insert(key, value);
    } else {
        mValues.remove(key);
    }
}

std::optional<PrintSettings> PrintSettings::fromData(const QByteArray &data, QString *error)
{
    const QVariant root = PropertyList::read(data, error);
    if (!root.isValid()) {
        return std::nullopt;
    }
    if (root.userType() == QMetaType::QVariantMap) {
        return PrintSettings(root.toMap());
    }
    if (error) {
        *error = QStringLiteral("the top level is no dictionary");
    }
    return std::nullopt;
}

QByteArray PrintSettings::dataRepresentation(QString *error) const
{
    return PropertyList::write(mValues, error);
}
