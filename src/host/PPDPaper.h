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

/// The page size that a name for a custom size ("Custom.24x80mm") stands for; an invalid one for
/// any other name and where the PPD allows no custom sizes.
QPageSize customPageSizeIn(const PPDFile &ppd, const QString &name);
