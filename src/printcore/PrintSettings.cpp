#include "printcore/PrintSettings.h"

#include <utility>

PrintSettings::PrintSettings(QVariantMap values)
    : mValues(std::move(values))
{
    mValues.removeIf([](const auto &entry) { return !entry.value().isValid(); });
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
    if (root.typeId() == QMetaType::QVariantMap) {
        return PrintSettings(root.toMap());
    }
    if (error) {
        *error = QStringLiteral("the top level is no dictionary");
    }
    return std::nullopt;
}

QByteArray PrintSettings::dataRepresentation(PropertyList::Format format, QString *error) const
{
    return PropertyList::write(mValues, format, error);
}
