// SPDX-License-Identifier: Apache-2.0
#include "demo/screenshots/Campaign.h"

#include "demo/PrivateScheduler.h"
#include "demo/SamplePrinters.h"

#include <QProcess>
#include <QThread>

#include <cstdio>
#include <memory>
#include <utility>
#include <vector>

namespace {
constexpr const char *wantedStyles[] = {"Fusion", "Breeze", "Windows"};
constexpr const char *scales[] = {"1", "1.5", "2", "3"};

/// The program that takes pictures with a version of Qt.
struct Photographer
{
    const char *program;
    bool needsDisplay;
};

constexpr Photographer photographers[] = {
    {KV_PHOTOGRAPHER, false},
#ifdef KV_PHOTOGRAPHER_QT5
    {KV_PHOTOGRAPHER_QT5, true},
#endif
};

void complain(const QString &problem)
{
    std::fprintf(stderr, "kvprint-screenshots: %s\n", problem.toLocal8Bit().constData());
}

/// The styles that the photographer's Qt has.
QStringList stylesOf(const Photographer &photographer)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QLatin1String(photographer.program), {QStringLiteral("styles")});
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0) {
        complain(QStringLiteral("%1: %2").arg(QLatin1String(photographer.program),
                                              process.errorString()));
        return {};
    }
    return QString::fromLocal8Bit(process.readAllStandardOutput()).split(QLatin1Char('\n'));
}
} // namespace

Campaign::Campaign(const QString &sheetFolder, const QString &guideFolder)
    : mSheets(sheetFolder)
    , mGuide(guideFolder)
{
    for (const char *style : wantedStyles) {
        mMissingStyles.append(QLatin1String(style));
    }
    for (const Photographer &photographer : photographers) {
        const QStringList available = stylesOf(photographer);
        QStringList styles;
        for (const QString &style : std::as_const(mMissingStyles)) {
            if (available.contains(style, Qt::CaseInsensitive)) {
                styles.append(style);
            }
        }
        mStyles.append(styles);
        mMissingStyles.removeIf([&styles](const QString &style) { return styles.contains(style); });
    }
}

QStringList Campaign::languages()
{
    const QDir tables(QStringLiteral(KV_BUNDLE_FOLDER "/KVMQRVOptions.pde/Contents/Resources"));
    QStringList languages = tables.entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    languages.replaceInStrings(QStringLiteral(".qm"), QString());
    return languages;
}

QList<PhotoProcess::Task> Campaign::tasks() const
{
    QList<PhotoProcess::Task> tasks = {{QLatin1String(photographers[0].program),
                                        {QStringLiteral("guide"), mGuide.absolutePath()},
                                        QStringLiteral("en"),
                                        QStringLiteral("1"),
                                        photographers[0].needsDisplay}};
    tasks += gtkTasks();
    for (qsizetype i = 0; i < mStyles.size(); ++i) {
        if (mStyles.at(i).isEmpty()) {
            continue;
        }
        const Photographer &photographer = photographers[i];
        for (const QString &language : languages()) {
            for (const char *scale : scales) {
                const QStringList what = {QStringLiteral("sheets"), mSheets.absolutePath(),
                                          language, QLatin1String(scale)};
                tasks.append({QLatin1String(photographer.program), what + mStyles.at(i), language,
                              QLatin1String(scale), photographer.needsDisplay});
            }
        }
    }
    return tasks;
}

QList<PhotoProcess::Task> Campaign::gtkTasks() const
{
    QList<PhotoProcess::Task> tasks;
#ifdef KV_GTK_PHOTOGRAPHER
    for (const QString &language : languages()) {
        for (const QString &scale : {QStringLiteral("1"), QStringLiteral("2")}) {
            const QStringList what = {mSheets.absolutePath(), language, scale};
            tasks.append({QStringLiteral(KV_GTK_PHOTOGRAPHER),
                          what + QStringLiteral(KV_GTK_VERSIONS).split(QLatin1Char(' ')), language,
                          scale, true});
        }
    }
#endif
    return tasks;
}

bool Campaign::runAll(const QList<PhotoProcess::Task> &tasks) const
{
    const auto atOnce = std::size_t(QThread::idealThreadCount());
    std::vector<std::unique_ptr<PhotoProcess>> running;
    bool succeeded = true;
    const auto finishOne = [&running, &succeeded] {
        succeeded = running.front()->finish() && succeeded;
        running.erase(running.begin());
    };
    for (const PhotoProcess::Task &task : tasks) {
        if (running.size() >= atOnce) {
            finishOne();
        }
        if (!succeeded) {
            break;
        }
        auto process = std::make_unique<PhotoProcess>(task, mFolder.path());
        const QString error = process->start();
        if (!error.isEmpty()) {
            complain(error);
            succeeded = false;
            break;
        }
        running.push_back(std::move(process));
    }
    while (!running.empty()) {
        finishOne();
    }
    return succeeded;
}

int Campaign::run()
{
    QString error;
    const auto scheduler = PrivateScheduler::start(&error);
    if (!scheduler || !addSamplePrinters(*scheduler, &error) ||
        !scheduler->addPrinter(QStringLiteral("Korvane_Cutter"), QStringLiteral(KV_DRIVERLESS_PPD),
                               &error) ||
        !mSheets.mkpath(QStringLiteral(".")) || !mGuide.mkpath(QStringLiteral("."))) {
        complain(error);
        return -1;
    }
    for (const QString &old : mSheets.entryList({QStringLiteral("*.png")})) {
        mSheets.remove(old);
    }
    if (!runAll(tasks())) {
        return -1;
    }
    mSheets.refresh();
    return int(mSheets.entryList({QStringLiteral("*.png")}).size());
}
