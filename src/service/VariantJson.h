// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QVariantMap>

/// A script's line from the members of a D-Bus message; members of types that JSON lacks are null.
QByteArray lineOf(const QVariantMap &request);

/// The members of a script's answer for a D-Bus message, which has no null: such members, and such
/// elements of arrays, are left out. Whole numbers are of type "x", others "d".
QVariantMap messageOf(const QJsonObject &answer);
