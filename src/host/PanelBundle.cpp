#include "host/PanelBundle.h"

#include "host/FileTrust.h"
#include "host/ProblemReporter.h"
#include "printcore/Bundle.h"

#include <QDir>
#include <QImageReader>
#include <QXmlStreamReader>

#include <utility>

namespace {
/// What is wrong with a picture; null when nothing is.
QString pictureFault(const QString &path)
{
    return QImageReader(path).read().isNull() ? QStringLiteral("is no picture") : QString();
}

/// What is wrong with a form of Qt Designer's; null when nothing is.
QString formFault(const QString &path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader form(&file);
    while (!form.atEnd()) {
        form.readNext();
    }
    return form.hasError() ? QStringLiteral("is no form: line %1: %2")
                                 .arg(form.lineNumber())
                                 .arg(form.errorString())
                           : QString();
}

struct ResourceKind
{
    QLatin1String suffix;
    QString (*fault)(const QString &path);
};

const ResourceKind checkedKinds[] = {
    {QLatin1String(".png"), pictureFault},
    {QLatin1String(".ui"), formFault},
};

/// Opens the bundle of that name unless others than root and the user can change it.
std::shared_ptr<Bundle> openTrusted(const QString &folder, const QString &name, QString *error)
{
    const QString path = QDir(folder).filePath(name);
    QString distrusted = distrust(folder, path);
    auto bundle = distrusted.isNull() ? Bundle::open(path, error) : nullptr;
    if (bundle) {
        distrusted = distrust(folder, bundle->libraryPath());
    }
    if (!distrusted.isNull()) {
        *error = QStringLiteral("%1 is not loaded: %2").arg(name, distrusted);
        return nullptr;
    }
    return bundle;
}

/// Why a library is no panel's plug-in, with its file's name.
QString loadFault(const QString &path, const QPluginLoader &loader)
{
    const QFileInfo library(path);
    if (!library.exists()) {
        return QStringLiteral("%1 is missing").arg(library.fileName());
    }
    return loader.isLoaded()
               ? QStringLiteral("%1 is no print dialog plug-in").arg(library.fileName())
               : loader.errorString();
}
} // namespace

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
        if (auto bundle = load(folder, candidate.fileName(), reporter)) {
            bundles.push_back(std::move(bundle));
        }
    }
    return bundles;
}

std::unique_ptr<PanelBundle> PanelBundle::load(const QString &folder, const QString &name,
                                               ProblemReporter &reporter)
{
    std::unique_ptr<PanelBundle> loaded(new PanelBundle);
    QString error;
    loaded->mBundle = openTrusted(folder, name, &error);
    if (!loaded->mBundle) {
        reporter.report(error);
        return nullptr;
    }
    loaded->mLoader.setFileName(loaded->mBundle->libraryPath());
    loaded->mFactory = qobject_cast<PDEPlugInFactory *>(loaded->mLoader.instance());
    if (!loaded->mFactory) {
        reporter.report(QStringLiteral("%1: %2").arg(
            loaded->name(), loadFault(loaded->mBundle->libraryPath(), loaded->mLoader)));
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

void PanelBundle::setLanguages(const QStringList &languages)
{
    mBundle->setLanguages(languages);
}

std::unique_ptr<PDEPlugIn> PanelBundle::makePlugIn() const
{
    auto plugIn = mFactory->makePlugIn(mBundle->principalClass());
    return plugIn && plugIn->initWithBundle(mBundle) ? std::move(plugIn) : nullptr;
}

QString PanelBundle::name() const
{
    return QDir(mBundle->bundlePath()).dirName();
}

bool PanelBundle::checkNextResource(ProblemReporter &reporter)
{
    const QStringList &files = mBundle->declaredResources();
    if (mCheckedResources == files.size()) {
        return false;
    }
    const QString &file = files.at(mCheckedResources++);
    const QString path = QDir(mBundle->resourcePath()).filePath(file);
    for (const ResourceKind &kind : checkedKinds) {
        const bool isChecked = file.endsWith(kind.suffix) && QFileInfo(path).isReadable();
        const QString fault = isChecked ? kind.fault(path) : QString();
        if (!fault.isNull()) {
            reporter.report(QStringLiteral("%1: %2 %3").arg(name(), file, fault));
        }
    }
    return true;
}
