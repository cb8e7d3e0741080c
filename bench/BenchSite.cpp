// SPDX-License-Identifier: Apache-2.0
#include "bench/BenchSite.h"

#include "bench/Interruption.h"
#include "cups/PPDPaper.h"
#include "host/ProblemReporter.h"

#include <QFile>

#include <stdexcept>

namespace {
void require(bool isSo, const QString &otherwise)
{
    if (!isSo) {
        throw std::runtime_error(otherwise.toStdString());
    }
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush(),
            QStringLiteral("cannot write %1").arg(path));
}

/// libcups may have limits of its own: what is measured has to be in the opened PPD.
void requireAll(const MeasuredPrinter &printer, ppd_file_t *ppd)
{
    const ppd_option_t *option = ppdFindOption(ppd, "KvCutLabel");
    const int counts = option ? option->num_choices : 0;
    require(counts == printer.counts && ppd->num_sizes == printer.sizes,
            QStringLiteral("the opened PPD has %1 counts and %2 sizes instead of %3 and %4")
                .arg(counts)
                .arg(ppd->num_sizes)
                .arg(printer.counts)
                .arg(printer.sizes));
}
} // namespace

BenchSite::BenchSite(const QString &home)
    : mHome(home)
{
    // A new QPrinter is at the user's default printer at first: at one whose PPD is short.
    require(mHome.mkdir(QStringLiteral(".cups")), QStringLiteral("cannot write into %1").arg(home));
    write(mHome.filePath(QStringLiteral(".cups/lpoptions")),
          "Default " + usualPrinter.queue().toUtf8() + "\n");
}

const PanelBundles &BenchSite::bundles()
{
    if (mBundles.empty()) {
        QString problems;
        ProblemReporter reporter(
            [&problems](const QString &problem) { problems += problem + u'\n'; });
        mBundles = PanelBundles::load(QStringLiteral(KV_BUNDLE_FOLDER), reporter);
        require(problems.isEmpty(), problems);
    }
    return mBundles;
}

void BenchSite::addQueue(const MeasuredPrinter &printer)
{
    const QString queue = printer.queue();
    if (mQueues.contains(queue)) {
        return;
    }
    QString error;
    if (!mScheduler) {
        mScheduler = PrivateScheduler::start(&error);
        require(mScheduler != nullptr, error);
    }
    require(mScheduler->addPrinter(queue, ppdPath(printer), &error), error);
    Interruption::check();
    mQueues.append(queue);
}

PanelTarget BenchSite::target(const MeasuredPrinter &printer) const
{
    QString error;
    auto target = PanelTarget::ofPPD(ppdPath(printer), PPDFile::Marks::Defaults, &error);
    require(target.has_value(), error);
    requireAll(printer, target->ppd->get());
    target->paper = paperNamed(*target->ppd, printer.lastSize());
    Interruption::check();
    return std::move(*target);
}

QString BenchSite::ppdPath(const MeasuredPrinter &printer) const
{
    const QString path = mHome.filePath(printer.queue() + QStringLiteral(".ppd"));
    if (!QFile::exists(path)) {
        write(path, printer.ppd());
    }
    return path;
}
