// SPDX-License-Identifier: Apache-2.0
#include "printcore/PictureVariants.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {
struct Mark
{
    qreal ratio;
    QLatin1String text;
};

/// From the coarsest to the finest.
const Mark marks[] = {
    {1.5, QLatin1String("@1.5x")}, {2.0, QLatin1String("@2x")}, {3.0, QLatin1String("@3x")}};
} // namespace

QList<PictureVariant> pictureVariants(const QString &name, qreal screen)
{
    QList<PictureVariant> variants = {{name, 1.0}};
    if (screen <= 1.0) {
        return variants;
    }
    const QFileInfo file(name);
    int sufficient = 0;
    for (const Mark &mark : marks) {
        const QString finer = file.completeBaseName() + mark.text + u'.' + file.suffix();
        variants.insert(mark.ratio < screen ? 0 : sufficient++, {finer, mark.ratio});
    }
    return variants;
}

bool isFinerVariant(const QString &name)
{
    const QString base = QFileInfo(name).completeBaseName();
    return std::any_of(std::begin(marks), std::end(marks),
                       [&base](const Mark &mark) { return base.endsWith(mark.text); });
}
