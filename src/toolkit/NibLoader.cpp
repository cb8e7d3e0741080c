// SPDX-License-Identifier: Apache-2.0
#include "toolkit/NibLoader.h"

#include "printcore/CheckedFile.h"
#include "printcore/FormCheck.h"
#include "printcore/ResourceLimits.h"
#include "toolkit/CheckBox.h"
#include "toolkit/PopUpButton.h"
#include "toolkit/Stepper.h"
#include "toolkit/ViewGeometry.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QUiLoader>

#include <iterator>
#include <vector>

namespace {
/// The folder's own.
const NibClass ownClasses[] = {NibClass::of<CheckBox>(), NibClass::of<PopUpButton>(),
                               NibClass::of<Stepper>()};

class Loader : public QUiLoader
{
public:
    explicit Loader(std::span<const NibClass> classes)
        : mClasses(std::begin(ownClasses), std::end(ownClasses))
    {
        mClasses.insert(mClasses.end(), classes.begin(), classes.end());
    }

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        for (const NibClass &known : mClasses) {
            if (className == known.name) {
                QWidget *widget = known.make(parent);
                widget->setObjectName(name);
                return widget;
            }
        }
        return QUiLoader::createWidget(className, parent, name);
    }

private:
    std::vector<NibClass> mClasses;
};

/// While it lives, Qt finds no plug-ins.
class PlugInsHidden
{
public:
    PlugInsHidden() { QCoreApplication::setLibraryPaths({}); }
    ~PlugInsHidden() { QCoreApplication::setLibraryPaths(mPaths); }
    PlugInsHidden(const PlugInsHidden &) = delete;
    PlugInsHidden &operator=(const PlugInsHidden &) = delete;

private:
    QStringList mPaths = QCoreApplication::libraryPaths();
};

/// A QUiLoader loads all plug-ins of Qt Designer that it finds as it is made.
Loader makeLoader(std::span<const NibClass> classes)
{
    const PlugInsHidden hidden;
    return Loader(classes);
}

/// The bytes of a form that may be made widgets of; else @p fault tells why there are none.
QByteArray readForm(const QString &path, QString *fault)
{
    CheckedFile file = CheckedFile::trusted(path);
    const QByteArray form = file.read(ResourceLimits::kFormSize);
    *fault = file.fault().isNull() ? formFault(form) : file.fault();
    return form;
}
} // namespace

std::unique_ptr<QWidget> NibLoader::load(const QString &path, QString *error,
                                         std::span<const NibClass> classes)
{
    QString fault;
    std::unique_ptr<QWidget> top;
    QByteArray form = readForm(path, &fault);
    if (fault.isNull()) {
        Loader loader = makeLoader(classes);
        loader.setWorkingDirectory(QFileInfo(path).absoluteDir());
        QBuffer buffer(&form);
        top.reset(loader.load(&buffer));
        fault = loader.errorString();
    }
    if (top) {
        fitToFont(top.get());
    } else if (error) {
        *error = QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), fault);
    }
    return top;
}
