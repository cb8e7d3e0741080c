#include "host/PPDPaper.h"

#include "host/PPDFile.h"

#include <QSizeF>

#include <algorithm>
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
} // namespace

Paper paperIn(const PPDFile &ppd, const QPageSize &size)
{
    if (!size.isValid()) {
        const ppd_size_t *marked = markedSize(ppd.get());
        return marked ? paperOf(*marked) : Paper(QString(), 0.0);
    }
    if (const ppd_size_t *listed = listedSize(ppd.get(), size.key().toUtf8())) {
        return paperOf(*listed);
    }
    const bool custom = listedSize(ppd.get(), "Custom");
    return Paper(custom ? QStringLiteral("Custom") : size.key(),
                 size.size(QPageSize::Point).height());
}
