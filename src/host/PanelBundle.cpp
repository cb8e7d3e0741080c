#include "host/PanelBundle.h"

#include "host/ProblemReporter.h"
#include "printcore/Bundle.h"

#include <QDir>
#include <QImageReader>

std::vector<std::unique_ptr<PanelBundle>> PanelBundle::loadAll(const QString &folder,
                                                               ProblemReporter &reporter)
{
    PanelBundles bundles;
    const QFileInfoList candidates = QDir(folder).entryInfoList(
        {QStringLiteral("*.pde")}, QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    if (candidates.isEmpty()) {
        reporter.report(QStringLiteral("%1: there is no panel bundle").arg(folder));
    }
    for (const QFileInfo &candidate : candidates) {
        if (auto bundle = load(candidate.filePath(), reporter)) {
            bundles.push_back(std::move(bundle));
        }
    }
    return bundles;
}

std::unique_ptr<PanelBundle> PanelBundle::load(const QString &path, ProblemReporter &reporter)
{
    std::unique_ptr<PanelBundle> loaded(new PanelBundle);
    QString error;
    loaded->mBundle = Bundle::open(path, &error);
    if (!loaded->mBundle) {
        reporter.report(error);
        return nullptr;
    }
    loaded->mLoader.setFileName(loaded->mBundle->libraryPath());
    loaded->mFactory = qobject_cast<PDEPlugInFactory *>(loaded->mLoader.instance());
    if (!loaded->mFactory) {
        const QString reason = loaded->mLoader.isLoaded()
                                   ? QStringLiteral("the library is no print dialog plug-in")
                                   : loaded->mLoader.errorString();
        reporter.report(QStringLiteral("%1: %2").arg(loaded->name(), reason));
        return nullptr;
    }
    for (const QString &problem : loaded->mBundle->problems()) {
        reporter.report(problem);
    }
    if (!loaded->makePlugIn()) {
        reporter.report(QStringLiteral("%1: the library has no class %2 that works on this system")
                            .arg(loaded->name(), loaded->mBundle->principalClass()));
        return nullptr;
    }
    return loaded;
}

PanelBundle::~PanelBundle() = default;

std::unique_ptr<PDEPlugIn> PanelBundle::makePlugIn() const
{
    auto plugIn = mFactory->makePlugIn(mBundle->principalClass());
    return plugIn && plugIn->initWithBundle(mBundle) ? std::move(plugIn) : nullptr;
}

QString PanelBundle::name() const
{
    return QDir(mBundle->bundlePath()).dirName();
}

void PanelBundle::checkPictures(ProblemReporter &reporter) const
{
    const QDir resources(mBundle->resourcePath());
    for (const QString &file : mBundle->declaredResources()) {
        if (!file.endsWith(QLatin1String(".png")) || !resources.exists(file)) {
            continue;
        }
        if (QImageReader(resources.filePath(file)).read().isNull()) {
            reporter.report(QStringLiteral("%1: %2 is no picture").arg(name(), file));
        }
    }
}
