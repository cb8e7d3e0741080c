// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

/// The sheets of a language at a scale, both of them the running process's.
class SheetPictures
{
public:
    /// @param folder gets the sheets.
    SheetPictures(const QString &folder, const QString &language, const QString &scale);

    /// Makes those of these styles; how many, or −1 when one could not be made.
    int make(const QStringList &styles) const;

private:
    QDir mFolder;
    QString mLanguage;
    QString mScale;
};
