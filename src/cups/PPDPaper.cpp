// SPDX-License-Identifier: Apache-2.0
#include "cups/PPDPaper.h"

#include "cups/PPDFile.h"

#include <QSizeF>

#include <algorithm>
#include <cmath>
#include <span>

namespace {
const ppd_size_t *listedSize(const ppd_file_t *ppd, const QByteArray &name)
{
    const std::span sizes(ppd->sizes, std::size_t(ppd->num_sizes));
    const auto found = std::find_if(sizes.begin(), sizes.end(),
                                    [&name](const ppd_size_t &size) { return name == size.name; });
    return found == sizes.end() ? nullptr : &*found;
}

const ppd_size_t *markedSize(const ppd_file_t *ppd)
{
    const std::span sizes(ppd->sizes, std::size_t(ppd->num_sizes));
    const auto found = std::find_if(sizes.begin(), sizes.end(),
                                    [](const ppd_size_t &size) { return size.marked; });
    return found == sizes.end() ? nullptr : &*found;
}

Paper paperOf(const ppd_size_t &size)
{
    return Paper(QString::fromUtf8(size.name), double(size.length));
}

/// In millimetres, to the hundredth.
double millimetresOf(float points)
{
    constexpr double hundredthsPerPoint = 2540.0 / 72.0;
    return std::round(double(points) * hundredthsPerPoint) / 100.0;
}
} // namespace

Paper paperNamed(const PPDFile &ppd, const QString &name)
{
    const ppd_size_t *listed = listedSize(ppd.get(), name.toUtf8());
    return listed ? paperOf(*listed) : Paper(name, 0.0);
}

Paper markedPaper(const PPDFile &ppd)
{
    if (const ppd_size_t *marked = markedSize(ppd.get())) {
        return paperOf(*marked);
    }
    const ppd_option_t *sizes = ppdFindOption(ppd.get(), "PageSize");
    const ppd_size_t *byDefault = sizes ? listedSize(ppd.get(), sizes->defchoice) : nullptr;
    return byDefault ? paperOf(*byDefault) : Paper(QString(), 0.0);
}

Paper paperIn(const PPDFile &ppd, const QPageSize &size)
{
    if (!size.isValid()) {
        return markedPaper(ppd);
    }
    if (const ppd_size_t *listed = listedSize(ppd.get(), size.key().toUtf8())) {
        return paperOf(*listed);
    }
    const bool custom = listedSize(ppd.get(), "Custom");
    return Paper(custom ? QStringLiteral("Custom") : size.key(),
                 size.size(QPageSize::Point).height());
}

QPageSize customPageSizeIn(const PPDFile &ppd, const QString &name)
{
    const ppd_size_t *size = name.startsWith(QLatin1String("Custom."))
                                 ? ppdPageSize(ppd.get(), name.toUtf8().constData())
                                 : nullptr;
    if (!size || size->width <= 0.0F || size->length <= 0.0F) {
        return {};
    }
    return QPageSize(QSizeF(millimetresOf(size->width), millimetresOf(size->length)),
                     QPageSize::Millimeter, QString(), QPageSize::ExactMatch);
}
