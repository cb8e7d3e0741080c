// SPDX-License-Identifier: Apache-2.0
#include "host/PanelBundle.h"

#include "host/ProblemReporter.h"
#include "printcore/Bundle.h"
#include "printcore/CheckedFile.h"
#include "printcore/FormCheck.h"
#include "printcore/PictureDecoder.h"
#include "printcore/PictureVariants.h"
#include "printcore/ResourceLimits.h"

#include <QDir>
#include <QGuiApplication>
#include <QJsonObject>

#include <algorithm>
#include <utility>

namespace {
/// What is wrong with a picture's bytes; null when nothing is.
QString pictureFault(const QByteArray &bytes)
{
    QString fault;
    decodePicture(bytes, &fault);
    return fault;
}

struct ResourceKind
{
    QLatin1String suffix;
    qint64 greatestSize;
    QString (*fault)(const QByteArray &bytes);
};

const QLatin1String formSuffix(".ui");
const QLatin1String pictureSuffix(".png");

const ResourceKind checkedKinds[] = {
    {pictureSuffix, ResourceLimits::kPictureSize, pictureFault},
    {formSuffix, ResourceLimits::kFormSize, formFault},
};

/// Which version of the panel protocol a library has that has another one than this host; null for
/// any other library.
QString otherProtocol(const QPluginLoader &library)
{
    const QString ours = QStringLiteral(PDEPlugInFactory_iid);
    const QString theirs = library.metaData().value(QLatin1String("IID")).toString();
    const bool isPanel = theirs.section(u'/', 0, 0) == ours.section(u'/', 0, 0);
    return isPanel && theirs != ours ? theirs.section(u'/', 1) : QString();
}

/// Opens the bundle of that name unless others than root and the user can change it.
std::shared_ptr<Bundle> openTrusted(const QString &folder, const QString &name, QString *error)
{
    const CheckedFile bundle =
        CheckedFile::trusted(QDir(folder).filePath(name), FileUse::Enter, folder);
    if (!bundle.fault().isNull()) {
        *error = QStringLiteral("%1 %2").arg(bundle.path(), bundle.fault());
        return nullptr;
    }
    return Bundle::open(bundle.path(), error);
}
} // namespace

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
    const CheckedFile library = CheckedFile::trusted(mBundle->libraryPath());
    const QString name = QFileInfo(mBundle->libraryPath()).fileName();
    if (!library.fault().isNull()) {
        return QStringLiteral("%1 %2").arg(name, library.fault());
    }
    mLoader.setFileName(library.path());
    if (const QString protocol = otherProtocol(mLoader); !protocol.isNull()) {
        return QStringLiteral("%1 is for version %2 of the panel protocol, and kvprint has %3")
            .arg(name, protocol, QStringLiteral(PDEPlugInFactory_iid).section(u'/', 1));
    }
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

QString PanelBundle::mapFolder() const
{
    return QDir(mBundle->resourcePath()).filePath(QStringLiteral("printers"));
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
    if (file.endsWith(pictureSuffix)) {
        checkPicture(file, reporter);
    } else {
        checkResource(file, reporter);
    }
    return true;
}

void PanelBundle::checkPicture(const QString &file, ProblemReporter &reporter) const
{
    if (isFinerVariant(file)) {
        return;
    }
    for (const PictureVariant &variant : pictureVariants(file, qGuiApp->devicePixelRatio())) {
        if (checkResource(variant.file, reporter)) {
            return;
        }
    }
}

bool PanelBundle::checkResource(const QString &file, ProblemReporter &reporter) const
{
    CheckedFile resource = CheckedFile::trusted(QDir(mBundle->resourcePath()).filePath(file));
    // What Bundle::problems() tells.
    QString fault = resource.fault();
    if (!fault.isNull()) {
        return false;
    }
    for (const ResourceKind &kind : checkedKinds) {
        if (file.endsWith(kind.suffix)) {
            const QByteArray bytes = resource.read(kind.greatestSize);
            fault = resource.fault().isNull() ? kind.fault(bytes) : resource.fault();
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
