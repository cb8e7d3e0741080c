// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// A small file of a type.
struct TypeSample
{
    QString name;
    QByteArray bytes;
};

/// A sample of each type that kvprint says to print, by the type's name.
QMap<QString, TypeSample> typeSamples();
