// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QString>

/**
 * A sheet or label that a job is printed on: a size of the printer's PPD or a custom one.
 *
 * A value type.
 */
class KVPRINTCORE_EXPORT Paper
{
public:
    /**
     * @param ppdPaperName the PPD's name of the size ("C_62"); a null string for a paper without a
     *        name, which is not the same as an empty one.
     * @param height in points (1/72 inch); 0 when it is not known.
     */
    explicit Paper(QString ppdPaperName, double height);

    /// The PPD's name of the size; null when the paper has none.
    const QString &ppdPaperName() const { return mPPDPaperName; }

    /// The height in points; 0 when it is not known. May be anything that was given.
    double height() const { return mHeight; }

    /// Whether name and height are the same; no name differs from an empty one.
    friend KVPRINTCORE_EXPORT bool operator==(const Paper &left, const Paper &right);

private:
    QString mPPDPaperName;
    double mHeight;
};
