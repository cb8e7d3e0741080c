// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Paper.h"

#include <QPageSize>
#include <QString>

class PPDFile;

/**
 * The paper that a page size of Qt's stands for at a printer.
 *
 * A size of the PPD has the PPD's name and height. Another size has the PPD's name for custom
 * sizes, "Custom", where the PPD allows them, else the page size's own name. An invalid page size
 * stands for the size that is marked in the PPD; without one the paper has no name and no height.
 */
Paper paperIn(const PPDFile &ppd, const QPageSize &size);

/// The paper of that name: with the height of the PPD's size, 0 when the PPD has no such size.
Paper paperNamed(const PPDFile &ppd, const QString &name);

/// The paper that is marked in the PPD, else the PPD's default; without either the paper has no
/// name and no height.
Paper markedPaper(const PPDFile &ppd);

/// The page size that a name for a custom size ("Custom.24x80mm") stands for; an invalid one for
/// any other name and where the PPD allows no custom sizes.
QPageSize customPageSizeIn(const PPDFile &ppd, const QString &name);
