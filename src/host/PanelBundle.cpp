#include "host/PanelBundle.h"

#include "host/FileTrust.h"
#include "host/ProblemReporter.h"
#include "printcore/Bundle.h"
#include "printcore/FileAccess.h"

#include <QDir>
#include <QImageReader>
#include <QXmlStreamReader>

#include <algorithm>
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
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("cannot be read: ") + file.errorString();
    }
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

const QLatin1String formSuffix(".ui");

const ResourceKind checkedKinds[] = {
    {QLatin1String(".png"), pictureFault},
    {formSuffix, formFault},
};

/// Opens the bundle of that name unless others than root and the user can change it.
std::shared_ptr<Bundle> openTrusted(const QString &folder, const QString &name, QString *error)
{
    const QString path = QDir(folder).filePath(name);
    QString distrusted = distrust(folder, path);
    const QString fault = accessFault(path, FileAccess::EnterFolder);
    if (distrusted.isNull() && !fault.isNull()) {
        *error = QStringLiteral("%1 %2").arg(path, fault);
        return nullptr;
    }
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

/// What is in the folder under a bundle's name, links that lead nowhere included.
QStringList candidatesIn(const QString &folder, ProblemReporter &reporter)
{
    const QString fault = accessFault(folder, FileAccess::ListFolder);
    if (!fault.isNull()) {
        reporter.report(QStringLiteral("%1 %2").arg(folder, fault));
        return {};
    }
    QStringList names =
        QDir(folder).entryList({QStringLiteral("*.pde")},
                               QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    if (names.isEmpty()) {
        reporter.report(QStringLiteral("%1: there is no panel bundle").arg(folder));
    }
    return names;
}
} // namespace

std::vector<std::unique_ptr<PanelBundle>> PanelBundle::loadAll(const QString &folder,
                                                               ProblemReporter &reporter)
{
    PanelBundles bundles;
    const QStringList names = candidatesIn(folder, reporter);
    for (const QString &name : names) {
        if (auto bundle = load(folder, name, reporter)) {
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
    error = loaded->loadLibrary();
    if (!error.isNull()) {
        reporter.report(QStringLiteral("%1: %2").arg(loaded->name(), error));
        return nullptr;
    }
    loaded->reportProblems(reporter);
    if (!loaded->makePlugIn()) {
        reporter.report(QStringLiteral("%1: the library has no class %2 that works on this system")
                            .arg(loaded->name(), loaded->mBundle->principalClass()));
        return nullptr;
    }
    return loaded;
}

PanelBundle::~PanelBundle() = default;

QString PanelBundle::loadLibrary()
{
    const QString path = mBundle->libraryPath();
    const QString name = QFileInfo(path).fileName();
    const QString fault = accessFault(path);
    if (!fault.isNull()) {
        return QStringLiteral("%1 %2").arg(name, fault);
    }
    mLoader.setFileName(path);
    mFactory = qobject_cast<PDEPlugInFactory *>(mLoader.instance());
    if (mFactory) {
        return {};
    }
    if (mLoader.isLoaded()) {
        return QStringLiteral("%1 is no print dialog plug-in").arg(name);
    }
    const QString error = mLoader.errorString();
    return error.contains(name) ? error : QStringLiteral("%1: %2").arg(name, error);
}

void PanelBundle::reportProblems(ProblemReporter &reporter) const
{
    const QStringList problems = mBundle->problems();
    for (const QString &problem : problems) {
        reporter.report(problem);
    }
}

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
    checkResource(files.at(mCheckedResources++), reporter);
    return true;
}

bool PanelBundle::checkResource(const QString &file, ProblemReporter &reporter) const
{
    const QString path = QDir(mBundle->resourcePath()).filePath(file);
    // What Bundle::problems() tells.
    QString fault = accessFault(path);
    if (!fault.isNull()) {
        return false;
    }
    for (const ResourceKind &kind : checkedKinds) {
        if (file.endsWith(kind.suffix)) {
            fault = kind.fault(path);
        }
    }
    if (!fault.isNull()) {
        reporter.report(QStringLiteral("%1: %2 %3").arg(name(), file, fault));
    }
    return fault.isNull();
}

bool PanelBundle::hasFormFault(ProblemReporter &reporter) const
{
    reportProblems(reporter);
    const QStringList &files = mBundle->declaredResources();
    return std::any_of(files.begin(), files.end(), [&](const QString &file) {
        return file.endsWith(formSuffix) && !checkResource(file, reporter);
    });
}
