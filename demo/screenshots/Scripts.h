// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// The scripts of these languages that no installed font can write.
QStringList scriptsWithoutFont(const QStringList &languages);
