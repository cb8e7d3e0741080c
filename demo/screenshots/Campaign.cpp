#include "demo/screenshots/Campaign.h"

#include "demo/PrivateScheduler.h"
#include "demo/SamplePrinters.h"
#include "demo/screenshots/DialogStage.h"
#include "demo/screenshots/Look.h"
#include "demo/screenshots/Sheet.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThread>

#include <cstdio>

namespace {
constexpr const char *scales[] = {"1", "1.5", "2", "3"};
constexpr int taskTimeoutMs = 600'000;
/// Room for the widest dialog with its menu open, before it is scaled.
constexpr int screenSize = 1400;

/// Describes a screen to Qt's platform without a display.
bool writeScreen(const QString &path, double scale)
{
    const int size = int(screenSize * scale);
    const QJsonObject screen{{QStringLiteral("name"), QStringLiteral("screen")},
                             {QStringLiteral("x"), 0},
                             {QStringLiteral("y"), 0},
                             {QStringLiteral("width"), size},
                             {QStringLiteral("height"), size},
                             {QStringLiteral("logicalDpi"), 96},
                             {QStringLiteral("logicalBaseDpi"), 96},
                             {QStringLiteral("dpr"), 1.0}};
    const QJsonObject screens{{QStringLiteral("screens"), QJsonArray{screen}}};
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(screens).toJson()) > 0;
}

/// One picture of a sheet, taken after the ones before it.
struct Shot
{
    const char *caption;
    /// The queue to turn to; null to stay.
    const char *queue;
    /// The check boxes to click.
    std::initializer_list<const char *> clicks;
    /// Whether the menu of presets is open.
    bool hasMenu;
    /// Whether the whole dialog is in the picture.
    bool isWhole;
};

const Shot shots[] = {
    {"Tape printer", nullptr, {}, false, true},
    {"Half cut", nullptr, {"mHalfCutChkBx"}, false, false},
    {"Special tape", nullptr, {"mSpecialTapeChkBx"}, false, false},
    {"All options", "Korvane_Tape_All", {"mCutMarkChkBx", "mMirrorPrintChkBx"}, false, false},
    {"Label printer", "Korvane_Label", {}, false, false},
    {"Menu", "Korvane_Tape", {}, true, true},
};

bool take(DialogStage &stage, const Shot &shot, Sheet &sheet)
{
    if (shot.queue && !stage.pickPrinter(QLatin1String(shot.queue))) {
        return false;
    }
    for (const char *box : shot.clicks) {
        if (!stage.click(QLatin1String(box))) {
            return false;
        }
    }
    if (shot.hasMenu && !stage.openMenu()) {
        return false;
    }
    sheet.add(QLatin1String(shot.caption), shot.isWhole ? stage.picture() : stage.panelPicture());
    return true;
}

bool makeSheet(const QString &path)
{
    DialogStage stage;
    Sheet sheet;
    if (!stage.open(QLatin1String(samplePrinters[0].queue))) {
        return false;
    }
    for (const Shot &shot : shots) {
        if (!take(stage, shot, sheet)) {
            std::fprintf(stderr, "kvprint-screenshots: no picture of \"%s\"\n", shot.caption);
            return false;
        }
    }
    return sheet.save(path);
}
} // namespace

Campaign::Campaign(const QString &sheetFolder, const QString &guideFolder)
    : mSheets(sheetFolder)
    , mGuide(guideFolder)
{
}

QStringList Campaign::languages()
{
    const QDir tables(QStringLiteral(KV_BUNDLE_FOLDER "/KVMQRVOptions.pde/Contents/Resources"));
    QStringList languages = tables.entryList({QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    languages.replaceInStrings(QStringLiteral(".qm"), QString());
    return languages;
}

QString Campaign::screenFile(const QString &scale) const
{
    return mFolder.filePath(scale + QStringLiteral(".json"));
}

QList<Campaign::Task> Campaign::tasks() const
{
    QList<Task> tasks = {{QStringLiteral("en"),
                          QStringLiteral("1"),
                          {QStringLiteral("--guide"), mGuide.absolutePath()}}};
    for (const QString &language : languages()) {
        for (const char *scale : scales) {
            const QLatin1String name(scale);
            tasks.append({language,
                          name,
                          {QStringLiteral("--sheets"), mSheets.absolutePath(), language, name}});
        }
    }
    return tasks;
}

std::unique_ptr<QProcess> Campaign::start(const Task &task) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LC_ALL"));
    environment.insert(QStringLiteral("LC_CTYPE"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LANG"), task.language + QStringLiteral(".UTF-8"));
    environment.insert(QStringLiteral("LANGUAGE"), task.language);
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), task.scale);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                       QStringLiteral("offscreen:configfile=") + screenFile(task.scale));
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->start(QCoreApplication::applicationFilePath(), task.arguments);
    return process;
}

bool Campaign::runAll(const QList<Task> &tasks) const
{
    const auto atOnce = std::size_t(QThread::idealThreadCount());
    std::vector<std::unique_ptr<QProcess>> running;
    bool succeeded = true;
    const auto finishOne = [&running, &succeeded] {
        QProcess &oldest = *running.front();
        succeeded = oldest.waitForFinished(taskTimeoutMs) && succeeded &&
                    oldest.exitStatus() == QProcess::NormalExit && oldest.exitCode() == 0;
        running.erase(running.begin());
    };
    for (const Task &task : tasks) {
        if (running.size() >= atOnce) {
            finishOne();
        }
        if (!succeeded) {
            break;
        }
        running.push_back(start(task));
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
        !mSheets.mkpath(QStringLiteral(".")) || !mGuide.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "kvprint-screenshots: %s\n", qPrintable(error));
        return -1;
    }
    for (const QString &old : mSheets.entryList({QStringLiteral("*.png")})) {
        mSheets.remove(old);
    }
    for (const char *scale : scales) {
        const QLatin1String name(scale);
        if (!writeScreen(screenFile(name), QString(name).toDouble())) {
            return -1;
        }
    }
    if (!runAll(tasks())) {
        return -1;
    }
    mSheets.refresh();
    return int(mSheets.entryList({QStringLiteral("*.png")}).size());
}

int Campaign::makeSheets(const QString &folder, const QString &language, const QString &scale)
{
    int count = 0;
    for (const Look &look : Look::all(scale)) {
        look.apply();
        const QString name = QStringLiteral("%1-%2.png").arg(language, look.name(scale));
        if (!makeSheet(QDir(folder).filePath(name))) {
            std::fprintf(stderr, "kvprint-screenshots: %s could not be made\n", qPrintable(name));
            return -1;
        }
        ++count;
    }
    return count;
}
