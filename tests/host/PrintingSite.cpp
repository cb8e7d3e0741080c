// SPDX-License-Identifier: Apache-2.0
#include "PrintingSite.h"

#include <QDir>
#include <QFile>

namespace {
struct SamplePrinter
{
    const char *queue;
    const char *ppd;
};

constexpr SamplePrinter samplePrinters[] = {
    {"tape", "korvane-tape"},    {"follow", "korvane-tape-follow"}, {"mark", "korvane-tape-mark"},
    {"all", "korvane-tape-all"}, {"label", "korvane-label"},        {"plain", "korvane-plain"},
};
} // namespace

PrintingSite::PrintingSite()
{
    qputenv("HOME", QFile::encodeName(mHome.path()));
}

QString PrintingSite::open()
{
    QString error;
    mScheduler = PrivateScheduler::start(&error);
    if (!mScheduler) {
        return error;
    }
    for (const QString &printer : printers()) {
        if (!mScheduler->addPrinter(printer, ppdPath(printer), &error) ||
            !mScheduler->setPaused(printer, true, &error)) {
            return error;
        }
    }
    return {};
}

QStringList PrintingSite::printers()
{
    QStringList queues;
    for (const SamplePrinter &printer : samplePrinters) {
        queues.append(QLatin1String(printer.queue));
    }
    return queues;
}

QString PrintingSite::ppdPath(const QString &printer)
{
    for (const SamplePrinter &sample : samplePrinters) {
        if (printer == QLatin1String(sample.queue)) {
            return QStringLiteral(KV_PPD_DIR "/%1.ppd").arg(QLatin1String(sample.ppd));
        }
    }
    return {};
}

QString PrintingSite::document(const QString &name) const
{
    return file(name, "A line of text\n");
}

QString PrintingSite::file(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    return written ? file.fileName() : QString();
}

bool PrintingSite::saveUserOptions(const QByteArray &lines) const
{
    QDir home(mHome.path());
    QFile file(home.filePath(u".cups/lpoptions"_s));
    return home.mkpath(u".cups"_s) && file.open(QIODevice::WriteOnly) &&
           file.write(lines) == lines.size();
}

bool PrintingSite::isPrinted(int job) const
{
    for (const QString &queue : printers()) {
        // Unless a test has removed it.
        mScheduler->setPaused(queue, false, nullptr);
    }
    return mScheduler->waitForJob(job, 30'000);
}

QMap<QString, QString> PrintingSite::job(int id) const
{
    QString error;
    return mScheduler->jobAttributes(id, &error).value_or(QMap<QString, QString>());
}

QStringList PrintingSite::choices(int id) const
{
    const QMap<QString, QString> attributes = job(id);
    QStringList choices;
    for (auto it = attributes.begin(); it != attributes.end(); ++it) {
        if (it.key().startsWith(QLatin1String("Kv"))) {
            choices.append(it.key() + u'=' + it.value());
        }
    }
    choices.sort();
    return choices;
}
